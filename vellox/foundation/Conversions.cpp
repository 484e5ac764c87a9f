#include "vellox/foundation/Conversions.h"

#include "vellox/foundation/UuidSource.h"
#include "vellox/host/services/RandomName.h"
#include "vellox/host/services/Utf8.h"

#include <algorithm>
#include <boost/algorithm/string/replace.hpp>
#include <boost/lexical_cast.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace vellox {

namespace {

constexpr char kBlanks[] = " \t\n\v\f\r";

// The narrow form of a number's text. A character beyond ASCII ends any number, so that one stand-in for
// all of them will do.
std::string narrow(const std::wstring& text) {
    std::string result;
    result.reserve(text.size());
    for (const wchar_t c : text)
        result.push_back(c > 0 && c < 0x80 ? static_cast<char>(c) : '?');
    return result;
}

// boost::lexical_cast and streams follow the global locale, in which "1,234" may be a whole number; what is
// read here comes from XML and from scripts, so that the classic locale has to rule.
template <class Number> Number readWhole(const std::wstring& text) {
    std::istringstream stream(narrow(text));
    stream.imbue(std::locale::classic());
    Number value = 0;
    stream >> value;
    return value;
}

// std::to_wstring goes through a format string and takes ten times as long.
template <class Number> std::wstring writeWhole(Number value) {
    char digits[std::numeric_limits<Number>::digits10 + 3];
    return std::wstring(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

double readNumber(std::string number);

// The value of a decimal number that no double can hold: none of it is left, or more than all. Which of the two
// tells the power of ten at its first digit that isn't zero.
double beyondRange(const std::string& number) {
    const std::size_t end = std::min(number.find_first_of("eE"), number.size());
    const std::string digits = number.substr(0, end);
    const auto point = static_cast<double>(std::min(digits.find('.'), end));
    const auto first = static_cast<double>(digits.find_first_of("123456789"));
    const double exponent = end < number.size() ? readNumber(number.substr(end + 1)) : 0;
    return point - first + exponent > 0 ? std::numeric_limits<double>::max() : 0;
}

bool isNamedValue(const std::string& text) {
    static const char* const names[] = {"nan", "NAN", "inf", "INF", "infinity", "INFINITY"};
    for (const char* name : names)
        if (text == name)
            return true;
    return false;
}

// The number that a text begins with; 0 if it doesn't begin with one.
double readNumber(std::string number) {
    const bool isNegative = number[0] == '-';
    const bool hasSign = isNegative || number[0] == '+';
    number.erase(0, hasSign ? 1 : 0);
    // What is left must begin like a number: from_chars would take a second sign, and names in mixed case.
    if (number.empty() || std::string("0123456789.").find(number[0]) == std::string::npos)
        return 0;
    double value = 0;
    const std::from_chars_result end = std::from_chars(number.data(), number.data() + number.size(), value);
    if (end.ptr == number.data())
        return 0;
    if (end.ec == std::errc::result_out_of_range)
        value = beyondRange(number.substr(0, static_cast<std::size_t>(end.ptr - number.data())));
    return isNegative ? -value : value;
}

// ASCII is mapped directly: it is nearly all that comes here, and it is the same in every locale but for the
// dotted i of some, which would keep "BIT" from being found in a table of spellings.
template <class Map>
std::wstring mapCharacters(const std::wstring& text, wchar_t first, wchar_t last, int shift, Map mapOther) {
    std::wstring result(text);
    for (wchar_t& c : result) {
        if (c >= first && c <= last)
            c += shift;
        else if (c >= 0x80)
            c = mapOther(c);
    }
    return result;
}

} // namespace

std::wstring num2str(int value) {
    return writeWhole(value);
}

std::wstring num2str(unsigned int value) {
    return writeWhole(value);
}

std::wstring num2str(double value) {
    char digits[32];
    const std::to_chars_result end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 17);
    return std::wstring(digits, end.ptr);
}

std::wstring bool2str(bool value) {
    return value ? L"TRUE" : L"FALSE";
}

int str2int(const std::wstring& text) {
    return readWhole<int>(text);
}

unsigned int str2uint(const std::wstring& text) {
    return readWhole<unsigned int>(text);
}

long str2long(const std::wstring& text) {
    return readWhole<long>(text);
}

namespace {

// Of digits and points alone, as lengths are, and few of them.
bool readPlainNumber(const std::wstring& text, double& value) {
    char digits[16];
    const auto isPlain = [](wchar_t c) { return (c >= L'0' && c <= L'9') || c == L'.'; };
    if (text.empty() || text.size() > sizeof digits || !std::all_of(text.begin(), text.end(), isPlain))
        return false;
    std::transform(text.begin(), text.end(), digits, [](wchar_t c) { return static_cast<char>(c); });
    value = 0;
    std::from_chars(digits, digits + text.size(), value);
    return true;
}

} // namespace

double str2double(const std::wstring& text) {
    double plain = 0;
    if (readPlainNumber(text, plain))
        return plain;
    std::string number = narrow(text);
    const std::size_t start = number.find_first_not_of("+-") == 1 ? 1 : 0;
    if (isNamedValue(number.substr(start)))
        return std::copysign(boost::lexical_cast<double>(number.substr(start)), number[0] == '-' ? -1 : 1);
    number.erase(0, number.find_first_not_of(kBlanks));
    return number.empty() ? 0 : readNumber(number);
}

int truncateToInt(double value) {
    using Limits = std::numeric_limits<int>;
    if (!(value > Limits::min()))
        return value == value ? Limits::min() : 0;
    return value < Limits::max() ? static_cast<int>(value) : Limits::max();
}

std::wstring toString(const std::wstring& text) {
    return text;
}

std::wstring toString(const std::string& text) {
    return fromUtf8(text);
}

std::wstring toStringFromASCIIStringLiteral(const char* text) {
    const std::string narrowText(text);
    return std::wstring(narrowText.begin(), narrowText.end());
}

std::wstring toLowerString(const std::wstring& text) {
    return mapCharacters(text, L'A', L'Z', L'a' - L'A',
                         [](wchar_t c) { return std::tolower(c, std::locale()); });
}

std::wstring toUpperString(const std::wstring& text) {
    return mapCharacters(text, L'a', L'z', L'A' - L'a',
                         [](wchar_t c) { return std::toupper(c, std::locale()); });
}

void replaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to) {
    if (!from.empty())
        boost::algorithm::replace_all(text, from, to);
}

std::wstring (*uuidSource)() = nullptr;

std::wstring uuid_gen() {
    if (uuidSource)
        return uuidSource();
    const boost::uuids::uuid id = host::drawUuid();
    return id.is_nil() ? std::wstring() : toString(to_string(id));
}

} // namespace vellox
