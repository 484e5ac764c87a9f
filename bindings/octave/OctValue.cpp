#include "bindings/octave/OctValue.h"

#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctObject.h"
#include "vellox/host/binding/BindingRegistry.h"

#include <octave/lo-mappers.h>
#include <octave/ov-struct.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vellox::ppt::oct {

using namespace hostbind;

namespace {

/// What a matrix that is stored in less than its size may have: ranges and sparse matrices are read in full.
constexpr octave_idx_type kMostElements = octave_idx_type(1) << 26;

bool fitsInt(double number) {
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

/// 0 for what isn't a number.
int getNumericCode(builtin_type_t type) {
    constexpr struct {
        builtin_type_t type;
        int code;
    } kCodes[] = {{btyp_double, HvDoubleClass},          {btyp_float, HvSingleClass},
                  {btyp_int8, HvFirstIntegerClass},      {btyp_uint8, HvFirstIntegerClass + 1},
                  {btyp_int16, HvFirstIntegerClass + 2}, {btyp_uint16, HvFirstIntegerClass + 3},
                  {btyp_int32, HvFirstIntegerClass + 4}, {btyp_uint32, HvUint32Class},
                  {btyp_int64, HvFirstIntegerClass + 6}, {btyp_uint64, HvLastIntegerClass}};
    for (const auto& row : kCodes)
        if (row.type == type)
            return row.code;
    return 0;
}

/// An element of a numeric array as users of Octave read it, if no number of the library says that.
octave_value getMark(double number) {
    if (octave::math::isna(number))
        return octave_value("NA");
    if (std::isnan(number))
        return octave_value("NaN");
    return octave_value(number < 0 ? "-Inf" : "Inf");
}

} // namespace

OctValue::OctValue(octave_value value, const Reading& reading)
    : value_(std::move(value)),
      reading_(reading),
      dimensions_(value_.dims()) {
    if (reading_.depth > kDeepestList)
        raiseError("vellox:nestedTooDeeply", "cell arrays are nested too deeply");
    read();
}

OctValue::~OctValue() = default;

void OctValue::read() {
    if (value_.is_string()) {
        code_ = HvCharClass;
        requireUtf8();
    } else if (value_.iscell()) {
        readCells(value_.cell_value());
    } else if (value_.islogical()) {
        code_ = HvLogicalClass;
        readNumbers();
    } else if (value_.iscomplex()) {
        raiseError("vellox:complex", "complex numbers can't be shown: give abs (x), real (x) or a text");
    } else if (value_.isnumeric()) {
        code_ = getNumericCode(value_.builtin_type());
        readNumbers();
    } else if (isBoundObject(value_)) {
        code_ = HvObjectClass;
    } else if (value_.class_name() == "containers.Map") {
        octave::interpreter& interpreter = getInterpreter();
        readNamed(interpreter.feval("keys", ovl(value_), 1)(0).cell_value(),
                  interpreter.feval("values", ovl(value_), 1)(0).cell_value());
    } else if (value_.isstruct()) {
        readStructs();
    } // else it stays unknown
}

void OctValue::readNumbers() {
    if (dimensions_.numel() == 0)
        return;
    // An array of more dimensions is no content: its first element is all that is ever asked for.
    const bool isArray = dimensions_.ndims() == 2 && dimensions_.numel() > 1;
    const octave_value first = dimensions_.numel() > 1 ? value_.index_op(ovl(octave_value(1))) : value_;
    number_ = code_ == HvLogicalClass ? static_cast<double>(first.bool_value()) : first.double_value();
    if (isArray || reading_.depth > 0 || reading_.digits == Digits::Always)
        readArray();
    if (code_ >= HvFirstIntegerClass && code_ <= HvLastIntegerClass && !fitsInt(number_))
        code_ = HvDoubleClass; // contents of integers hold an int each
}

void OctValue::readArray() {
    if (dimensions_.ndims() != 2)
        return;
    if ((value_.is_range() || value_.issparse()) && dimensions_.numel() > kMostElements)
        raiseError("vellox:tooLarge", "a matrix of " + dimensions_.str() + " can't be read in full");
    if (code_ == HvLogicalClass) {
        logicals_ = value_.bool_array_value();
        return;
    }
    numbers_ = value_.array_value();
    const octave_idx_type count = numbers_.numel();
    const double* numbers = numbers_.data();
    const bool isInteger = code_ >= HvFirstIntegerClass;
    const auto needsText = [&](double n) { return isInteger ? isLong(n) : !std::isfinite(n); };
    const bool hasTexts = std::any_of(numbers, numbers + count, needsText);
    if (hasTexts && wantsDigits(reading_.digits, count > 1 || reading_.depth > 0)) {
        Cell items(dimensions_);
        for (octave_idx_type i = 0; i < count; ++i) {
            const octave_value element = value_.index_op(ovl(octave_value(i + 1)));
            if (!needsText(numbers[i]))
                items(i) = element;
            else if (!isInteger)
                items(i) = getMark(numbers[i]);
            else
                items(i) = code_ == HvLastIntegerClass ? std::to_string(element.uint64_scalar_value().value())
                                                       : std::to_string(element.int64_scalar_value().value());
        }
        if (count == 1)
            setText(items(0).string_value());
        else
            readCells(items);
    } else if (isInteger && !std::all_of(numbers, numbers + count, fitsInt)) {
        code_ = HvDoubleClass;
    }
}

void OctValue::setText(const std::string& text) {
    value_ = octave_value(text);
    dimensions_ = value_.dims();
    code_ = HvCharClass;
}

void OctValue::readCells(const Cell& cells) {
    code_ = HvCellClass;
    dimensions_ = cells.dims();
    items_ = cells;
}

namespace {

/// The entries of a column; none for a value that is no column.
std::vector<octave_value> readColumn(octave_value column) {
    std::vector<octave_value> entries;
    const dim_vector size = column.dims();
    if (column.is_string()) {
        const string_vector rows = column.string_vector_value();
        for (octave_idx_type i = 0; i < rows.numel(); ++i)
            entries.emplace_back(rows(i));
        return entries;
    }
    const bool isColumn =
        size.ndims() == 2 && (size(0) == 1 || size(1) == 1) && size.numel() <= kMostElements;
    if (!isColumn)
        return entries;
    if (column.iscell()) {
        const Cell cells = column.cell_value();
        for (octave_idx_type i = 0; i < cells.numel(); ++i)
            entries.push_back(cells(i));
    } else if (column.isnumeric() || column.islogical()) {
        for (octave_idx_type i = 0; i < size.numel(); ++i)
            entries.push_back(column.index_op(ovl(octave_value(i + 1))));
    }
    return entries;
}

} // namespace

void OctValue::readStructs() {
    if (value_.numel() != 1) {
        const octave_map all = value_.map_value();
        Cell each(1, reading_.fields ? all.numel() : 0);
        for (octave_idx_type i = 0; i < each.numel(); ++i)
            each(i) = all.checkelem(i);
        if (reading_.fields)
            readCells(each);
        return;
    }
    const octave_scalar_map map = value_.scalar_map_value();
    const Cell names(map.fieldnames());
    Cell values(1, names.numel());
    for (octave_idx_type i = 0; i < names.numel(); ++i)
        values(i) = map.getfield(names(i).string_value());
    readNamed(names, values);
}

/// Columns of two or more entries are a table, but for what is an argument by itself and can be fields.
void OctValue::readNamed(const Cell& names, const Cell& values) {
    const bool isTable = (!reading_.fields || reading_.depth > 0) && readColumns(names, values);
    constexpr octave_idx_type kLeastRows = 3; // with the names
    if (!reading_.fields || (isTable && items_.rows() >= kLeastRows))
        return;
    code_ = 0;
    dimensions_ = value_.dims();
    names_ = names;
    items_ = values;
}

/// Takes equally long columns for a table with a header. Anything else stays unknown.
bool OctValue::readColumns(const Cell& names, const Cell& columns) {
    std::vector<std::vector<octave_value>> entries;
    for (octave_idx_type c = 0; c < columns.numel(); ++c) {
        entries.push_back(readColumn(columns(c)));
        if (entries.back().empty() || entries.back().size() != entries.front().size())
            return false;
    }
    if (entries.empty())
        return false;
    const auto nRows = static_cast<octave_idx_type>(entries.front().size());
    Cell table(nRows + 1, columns.numel());
    for (octave_idx_type c = 0; c < columns.numel(); ++c) {
        table(0, c) = names(c);
        for (octave_idx_type r = 0; r < nRows; ++r)
            table(r + 1, c) = entries[static_cast<std::size_t>(c)][static_cast<std::size_t>(r)];
    }
    readCells(table);
    return true;
}

// Reading

std::string OctValue::getClassName() const {
    return value_.class_name();
}

std::size_t OctValue::getDimension(unsigned int i) const {
    return static_cast<std::size_t>(dimensions_(static_cast<int>(i)));
}

int OctValue::getInteger() const {
    return fitsInt(number_) ? static_cast<int>(number_) : 0;
}

std::wstring OctValue::getString() const {
    return code_ == HvCharClass ? fromUtf8(getChars()) : std::wstring();
}

/// Characters of Octave are bytes, which need not be a text.
void OctValue::requireUtf8() const {
    const charNDArray characters = value_.char_array_value();
    const auto isOther = [](char c) { return (c & 0x80) != 0; };
    if (std::none_of(characters.data(), characters.data() + characters.numel(), isOther))
        return;
    const std::string bytes = getChars();
    if (toUtf8(fromUtf8(bytes)) != bytes)
        raiseError("vellox:encoding",
                   "a text isn't in UTF-8; unicode2native and native2unicode convert texts");
}

std::string OctValue::getChars() const {
    if (value_.rows() == 1 && value_.dims().ndims() == 2)
        return value_.string_value();
    std::string lines;
    if (value_.dims().ndims() == 2) {
        const string_vector rows = value_.string_vector_value();
        for (octave_idx_type i = 0; i < rows.numel(); ++i)
            lines += (i == 0 ? "" : "\n") + rows(i);
    } else {
        const charNDArray all = value_.char_array_value();
        lines.assign(all.data(), static_cast<std::size_t>(all.numel()));
    }
    return lines;
}

const bool* OctValue::getLogicals() const {
    return logicals_.numel() > 0 ? logicals_.data() : nullptr;
}

const double* OctValue::getDoubles() const {
    if (numbers_.numel() > 0)
        return numbers_.data();
    const bool isOne = code_ >= HvDoubleClass && code_ <= HvLastIntegerClass && dimensions_.numel() == 1;
    return isOne ? &number_ : nullptr;
}

const hvArray* OctValue::getCell(std::size_t i) const {
    return code_ == HvCellClass && i < static_cast<std::size_t>(items_.numel()) ? &getItem(i) : nullptr;
}

const OctValue& OctValue::getItem(std::size_t i) const {
    cells_.resize(static_cast<std::size_t>(items_.numel()));
    std::unique_ptr<OctValue>& cell = cells_[i];
    if (!cell)
        cell = std::make_unique<OctValue>(items_(static_cast<octave_idx_type>(i)),
                                          Reading{reading_.digits, reading_.fields, reading_.depth + 1});
    return *cell;
}

std::wstring OctValue::getFieldName(std::size_t i) const {
    const octave_value name = names_(static_cast<octave_idx_type>(i));
    return name.is_string() ? fromUtf8(name.string_value()) : std::to_wstring(name.double_value());
}

boost::shared_ptr<objreg::HostInterface> OctValue::getObject(std::size_t i) const {
    if (code_ != HvObjectClass || i >= getNElements())
        return {};
    const octave::cdef_object object = value_.classdef_object_value()->get_object();
    OctSlot* slot =
        findSlot(object.is_array() ? object.array_value()(static_cast<octave_idx_type>(i)) : object);
    if (!slot || !slot->getProxy() || BindingRegistry::isEnding(*slot->getProxy()))
        return {};
    // The object that Octave holds lives as long as this view.
    return boost::shared_ptr<objreg::HostInterface>(boost::shared_ptr<void>(), slot);
}

} // namespace vellox::ppt::oct
