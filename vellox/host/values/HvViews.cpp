#include "vellox/host/values/HvViews.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Exception.h"
#include "vellox/host/services/Utf8.h"

#include <algorithm>
#include <limits>

namespace vellox {

namespace {

[[noreturn]] void fail(const std::string& text) {
    throw HvArrayException(text, boost::system::error_code(0, boost::system::system_category()));
}

// What a class of host values is before its shape is looked at.
HvContent::ContentType getContentBase(const hvArray& value) {
    const int code = value.getClassCode();
    if (code >= HvFirstIntegerClass && code <= HvLastIntegerClass)
        return HvContent::Integer;
    switch (code) {
    case HvCellClass:
        return HvContent::List;
    case HvLogicalClass:
        return HvContent::Boolean;
    case HvCharClass:
        return HvContent::String;
    case HvDoubleClass:
    case HvSingleClass:
        return HvContent::Double;
    case HvObjectClass:
        return value.getNElements() > 0 && value.getObject(0) ? HvContent::Object : HvContent::Unknown;
    default:
        return HvContent::Unknown;
    }
}

// An object of a host array, or a stand-in for one that isn't an object of the host's object system.
HvContentPtr makeObjectContent(const hvArray* value, std::size_t element) {
    const auto data = boost::make_shared<HvData>(value);
    if (const auto object = value->getObject(element))
        return boost::make_shared<ObjectContent>(data, object);
    return boost::make_shared<DataContent>(data, HvContent::Object);
}

} // namespace

HvArray::~HvArray() = default;
HvList::~HvList() = default;
HvTable::~HvTable() = default;

// HvArray

unsigned int HvArray::getNDimensions(const hvArray* value) {
    return value ? value->getNDimensions() : 0;
}

unsigned int HvArray::getDimension(unsigned int i) const {
    if (getNDimensions() == 0)
        fail("Array with no dimensions is provided");
    if (i >= getNDimensions())
        fail("Dimension arg >= number of dimensions.");
    return static_cast<unsigned int>(
        std::min<std::size_t>(value_->getDimension(i), std::numeric_limits<unsigned int>::max()));
}

bool HvArray::isEmpty(const hvArray* value) {
    return !value || value->getNElements() == 0;
}

bool HvArray::isCellArray(const hvArray* value) {
    return value && value->getClassCode() == HvCellClass;
}

// HvCell

HvContent::ContentType HvCell::getContentType() const {
    if (!getHvArray())
        return HvContent::Empty;
    const HvContent::ContentType base = getContentBase(*getHvArray());
    if (base == HvContent::Unknown || base == HvContent::String)
        return base;
    if (getNDimensions() != 2 || isEmpty())
        return HvContent::Empty;
    if (getDimension(0) > 1)
        return HvContent::Table;
    return getDimension(1) > 1 ? HvContent::List : base;
}

HvContentPtr HvCell::getContent() const {
    const hvArray* value = getHvArray();
    const HvContent::ContentType type = getContentType();
    switch (type) {
    case HvContent::Boolean:
        return boost::make_shared<BooleanContent>(value->getLogical());
    case HvContent::Integer:
        return boost::make_shared<IntegerContent>(value->getInteger());
    case HvContent::Double:
        return boost::make_shared<DoubleContent>(value->getDouble());
    case HvContent::String:
        return boost::make_shared<StringContent>(value->getString());
    case HvContent::Object:
        return makeObjectContent(value, 0);
    case HvContent::List:
        return makeListContent();
    case HvContent::Table:
        return makeTableContent();
    case HvContent::Unknown:
        return boost::make_shared<DataContent>(boost::make_shared<HvData>(value), HvContent::Unknown);
    case HvContent::Empty:
        break;
    }
    return {};
}

HvContentPtr HvCell::makeListContent() const {
    const hvArray* value = getHvArray();
    boost::shared_ptr<HvList> list;
    switch (getContentBase(*value)) {
    case HvContent::Object:
        list = boost::make_shared<ObjectList>(value);
        break;
    case HvContent::Boolean:
        list = boost::make_shared<ArrayList<bool, BooleanContent>>(value, value->getLogicals());
        break;
    case HvContent::Double:
        list = boost::make_shared<ArrayList<double, DoubleContent>>(value, value->getDoubles());
        break;
    case HvContent::Integer:
        list = boost::make_shared<ArrayList<double, IntegerContent>>(value, value->getDoubles());
        break;
    default:
        list = boost::make_shared<CellList>(value);
        break;
    }
    return boost::make_shared<ListContent>(list);
}

HvContentPtr HvCell::makeTableContent() const {
    const hvArray* value = getHvArray();
    boost::shared_ptr<HvTable> table;
    switch (getContentBase(*value)) {
    case HvContent::Object:
        table = boost::make_shared<ObjectTable>(value);
        break;
    case HvContent::Boolean:
        table = boost::make_shared<ArrayTable<bool, BooleanContent>>(value, value->getLogicals());
        break;
    case HvContent::Double:
        table = boost::make_shared<ArrayTable<double, DoubleContent>>(value, value->getDoubles());
        break;
    case HvContent::Integer:
        table = boost::make_shared<ArrayTable<double, IntegerContent>>(value, value->getDoubles());
        break;
    default:
        table = boost::make_shared<CellTable>(value);
        break;
    }
    return boost::make_shared<TableContent>(table);
}

HvContent::ContentType HvCell::getContentType(const Indices& indices) const {
    return getCell(indices)->getContentType();
}

HvContentPtr HvCell::getContent(const Indices& indices) const {
    return getCell(indices)->getContent();
}

boost::shared_ptr<HvCell> HvCell::getCell(const Indices& indices) const {
    checkIndicesLegitimacy(indices);
    const std::size_t element = getHvArray() ? getHvArray()->getSubscript(indices) : 0;
    const bool isThere = isCellArray() && element < getHvArray()->getNElements();
    return boost::make_shared<HvCell>(isThere ? getHvArray()->getCell(element) : nullptr);
}

bool HvCell::isEmptyCell(const Indices& indices) const {
    return getCell(indices)->isEmpty();
}

void HvCell::checkIndicesLegitimacy(const Indices& indices) const {
    const std::string name = "vellox::HvCell::checkIndicesLegitimacy";
    if (indices.size() != getNDimensions())
        fail(name + ". Length of \"indices\" vector=" + std::to_string(indices.size()) +
             (indices.size() > getNDimensions() ? " > " : " < ") +
             " than number of dimensions=" + std::to_string(getNDimensions()));
    for (unsigned int i = 0; i < indices.size(); ++i) {
        // An index that equals the size passes here, though indices start at 0; the reading operations
        // find nothing there.
        if (indices[i] > getDimension(i))
            fail(name + ". Provided index=" + std::to_string(indices[i]) +
                 " in dimension=" + std::to_string(i) +
                 " exceeds maximum allowed=" + std::to_string(getDimension(i)) + " for this dimension.");
    }
}

// HvData

std::wstring HvData::getClassName() const {
    return getHvArray() ? fromUtf8(getHvArray()->getClassName()) : std::wstring();
}

std::wstring HvData::getDispl() const {
    std::wstring text = getClassName();
    if (getNDimensions() < 2)
        return text;
    for (unsigned int i = 0; i < getNDimensions(); ++i)
        text += (i == 0 ? L" [" : L"x") + num2str(getDimension(i));
    return text + L"]";
}

// Lists and tables

unsigned int HvList::getSize() const {
    return isEmpty() ? 0 : static_cast<unsigned int>(getHvArray()->getNElements());
}

unsigned int HvTable::getNRows() const {
    return isEmpty() ? 0 : getDimension(0);
}

unsigned int HvTable::getNCols() const {
    return isEmpty() ? 0 : getDimension(1);
}

HvContentPtr CellList::getItem(unsigned int i) const {
    return getContent({0, i});
}

bool CellList::isEmptyItem(unsigned int i) const {
    return isEmptyCell({0, i});
}

HvContentPtr CellTable::getEntry(unsigned int r, unsigned int c) const {
    return getContent({r, c});
}

bool CellTable::isEmptyEntry(unsigned int r, unsigned int c) const {
    return isEmptyCell({r, c});
}

HvContentPtr ObjectList::getItem(unsigned int i) const {
    return makeObjectContent(getHvArray(), i);
}

HvContentPtr ObjectTable::getEntry(unsigned int r, unsigned int c) const {
    return makeObjectContent(getHvArray(), getHvArray()->getSubscript({r, c}));
}

HvContentPtr makeElementContent(const bool* element, const BooleanContent*) {
    return boost::make_shared<BooleanContent>(*element);
}

HvContentPtr makeElementContent(const double* element, const DoubleContent*) {
    return boost::make_shared<DoubleContent>(*element);
}

HvContentPtr makeElementContent(const double* element, const IntegerContent*) {
    return boost::make_shared<IntegerContent>(truncateToInt(*element));
}

} // namespace vellox
