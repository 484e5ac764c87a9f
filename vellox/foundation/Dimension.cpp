#include "vellox/foundation/Dimension.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"

#include <algorithm>
#include <array>
#include <locale>
#include <string_view>

namespace vellox {

namespace {

constexpr double kNoFactor = 1.0;

struct UnitRow {
    std::wstring_view text;
    double emu;
    double pixel;
    double twips;
};

// Indexed by Dimension::Units. These are products of rounded ratios on purpose: don't mend 0.0139 to 1/72.
// There is no twips factor for EMU, and none is wanted.
constexpr std::array<UnitRow, 10> kUnits{{
    {L"px", 9525, 1, (1.0 / 150) * 1440},
    {L"in", 914400, 150, 1440},
    {L"mm", 0.03937 * 914400, 0.03937 * 150, 0.03937 * 1440},
    {L"cm", 0.3937 * 914400, 0.3937 * 150, 0.3937 * 1440},
    {L"pt", 0.0139 * 914400, 0.0139 * 150, 20},
    {L"pi", 0.0833 * 914400, 0.0833 * 150, 0.0833 * 1440},
    {L"%", 1, 1, 1},
    {L"*", 1, 1, 1},
    {L"twips", (1.0 / 1440) * 914400, (1.0 / 1440) * 150, 1},
    {L"emus", 1, (1.0 / 914400) * 150, kNoFactor},
}};

constexpr double kEmuToPoints = 1.0 / 12700;
constexpr double kEmuToDXA = 20.0 / 12700;
constexpr double kEmuToHalfPoints = 2.0 / 12700;
constexpr double kEmuToEighthsPoints = 8.0 / 12700;

const UnitRow* findRow(Dimension::Units unit) {
    return unit >= Dimension::px && unit <= Dimension::emus ? &kUnits[static_cast<std::size_t>(unit)]
                                                            : nullptr;
}

double factor(Dimension::Units unit, double UnitRow::*column) {
    const UnitRow* row = findRow(unit);
    return row ? row->*column : kNoFactor;
}

struct Pieces {
    std::wstring_view number;
    std::wstring_view units;
};

// Beyond ASCII the global locale rules.
bool isBlank(wchar_t c) {
    return c < 0x80 ? c == L' ' || (c >= L'\t' && c <= L'\r') : std::isspace(c, std::locale());
}

bool isOfNumber(wchar_t c) {
    return (c >= L'0' && c <= L'9') || c == L'.';
}

bool isOfUnits(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'%' || c == L'*';
}

// Lengths come by the thousand, one for each cell of a table, and a regular expression would take longer over
// this than all else that is done for a cell's size. What doesn't fit is ignored.
Pieces split(std::wstring_view text) {
    const wchar_t* const end = text.data() + text.size();
    const wchar_t* const number = std::find_if_not(text.data(), end, isBlank);
    const wchar_t* const digits = number != end && *number == L'-' ? number + 1 : number;
    const wchar_t* const afterNumber = std::find_if_not(digits, end, isOfNumber);
    const wchar_t* const units = std::find_if_not(afterNumber, end, isBlank);
    const auto cut = [](const wchar_t* from, const wchar_t* to) {
        return std::wstring_view(from, static_cast<std::size_t>(to - from));
    };
    return {cut(number, afterNumber), cut(units, std::find_if_not(units, end, isOfUnits))};
}

// By the index of its row; that behind the last if it is none.
std::size_t findUnit(std::wstring_view lowerCase) {
    const auto row = std::find_if(kUnits.begin(), kUnits.end(),
                                  [&](const UnitRow& each) { return each.text == lowerCase; });
    return static_cast<std::size_t>(row - kUnits.begin());
}

} // namespace

Dimension::Dimension() : Dimension(L"1in") {}

Dimension::Dimension(const std::wstring& value) : rawValue_(value) {
    parse();
}

Dimension& Dimension::operator=(const Dimension& other) {
    if (this != &other)
        setRawValue(other.rawValue_);
    return *this;
}

bool Dimension::isValid(const std::wstring& text) {
    const Pieces pieces = split(text);
    return !pieces.number.empty() && (pieces.units.empty() || str2dim(std::wstring(pieces.units)) != invalid);
}

const Dimension::Units& Dimension::str2dim(const std::wstring& text) {
    static constexpr std::array<Units, 11> values{px,      in,           mm,    cm,   pt,     pi,
                                                  percent, proportional, twips, emus, invalid};
    return values[findUnit(toLowerString(text))];
}

const std::wstring& Dimension::dim2str(Units unit) {
    static const auto& texts = []() -> const auto& {
        auto& made = *new std::array<std::wstring, kUnits.size()>;
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = kUnits[i].text;
        return made;
    }
    ();
    static const std::wstring& none = *new const std::wstring;
    return findRow(unit) ? texts[static_cast<std::size_t>(unit)] : none;
}

void Dimension::setRawValue(const std::wstring& value) {
    if (&value != &rawValue_)
        rawValue_ = value;
    parse();
}

void Dimension::parse() {
    const Pieces pieces = split(rawValue_);
    if (pieces.number == L"-")
        raise(dom_error::invalidDimensionSign());
    units_ = str2dim(std::wstring(pieces.units));
    if (units_ == invalid) {
        if (!pieces.units.empty())
            raise(dom_error::invalidDimensionUnits(std::wstring(pieces.units)));
        units_ = px;
    }
    const std::wstring number(pieces.number.empty() ? L"0" : pieces.number);
    const std::wstring& units = dim2str(units_);
    if (rawValue_.size() != number.size() + units.size() ||
        rawValue_.compare(number.size(), units.npos, units) != 0)
        rawValue_ = number + units;
    numericValue_ = str2double(number);
}

double Dimension::toEMU() const {
    return numericValue_ * factor(units_, &UnitRow::emu);
}

int Dimension::getEMUNumber() const {
    return truncateToInt(toEMU());
}

std::wstring Dimension::getEMUValue() const {
    return num2str(getEMUNumber());
}

double Dimension::getPointNumber() const {
    return units_ == pt ? numericValue_ : toEMU() * kEmuToPoints;
}

std::wstring Dimension::getPointValue() const {
    return num2str(getPointNumber());
}

double Dimension::getDXANumber() const {
    return toEMU() * kEmuToDXA;
}

std::wstring Dimension::getDXAValue() const {
    return num2str(getDXANumber());
}

std::wstring Dimension::getHalfPointValue() const {
    return num2str(truncateToInt(toEMU() * kEmuToHalfPoints));
}

std::wstring Dimension::getEighthsPointValue() const {
    return num2str(truncateToInt(toEMU() * kEmuToEighthsPoints));
}

std::wstring Dimension::getPixelValue() const {
    return num2str(numericValue_ * factor(units_, &UnitRow::pixel));
}

std::wstring Dimension::getTwipsValue() const {
    return num2str(truncateToInt(numericValue_ * factor(units_, &UnitRow::twips)));
}

double Dimension::getPCTNumber() const {
    return numericValue_ * 50;
}

std::wstring Dimension::getPCTValue() const {
    return num2str(getPCTNumber());
}

std::wstring Dimension::getPercentValue() const {
    return num2str(numericValue_);
}

std::wstring Dimension::getProportionalValue() const {
    return num2str(numericValue_);
}

namespace {

// What two dimensions are compared by: their numbers if they share a unit, else points.
struct Comparable {
    double left;
    double right;
};

Comparable toComparable(const Dimension& left, const Dimension& right) {
    if (left.getUnits() == right.getUnits())
        return {left.getNumericValue(), right.getNumericValue()};
    return {left.getPointNumber(), right.getPointNumber()};
}

} // namespace

bool Dimension::operator==(const Dimension& other) const {
    const Comparable numbers = toComparable(*this, other);
    return numbers.left == numbers.right;
}

bool Dimension::operator!=(const Dimension& other) const {
    return !(*this == other);
}

bool Dimension::operator<(const Dimension& other) const {
    const Comparable numbers = toComparable(*this, other);
    return numbers.left < numbers.right;
}

bool Dimension::operator>(const Dimension& other) const {
    const Comparable numbers = toComparable(*this, other);
    return numbers.left > numbers.right;
}

} // namespace vellox
