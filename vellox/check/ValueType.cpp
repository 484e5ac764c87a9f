#include "vellox/check/ValueType.h"

#include "vellox/check/Names.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace vellox::check {

struct ValueType::BuiltIn {
    const char* name;
    Kind kind;
    std::int64_t low = INT64_MIN;
    std::int64_t high = INT64_MAX;
};

const ValueType::BuiltIn ValueType::kBuiltIns[] = {
    {"string", Kind::Any},
    {"token", Kind::Any},
    {"anyURI", Kind::Any},
    {"base64Binary", Kind::Any},
    {"boolean", Kind::Boolean},
    {"byte", Kind::Whole, INT8_MIN, INT8_MAX},
    {"short", Kind::Whole, INT16_MIN, INT16_MAX},
    {"int", Kind::Whole, INT32_MIN, INT32_MAX},
    {"long", Kind::Whole, INT64_MIN, INT64_MAX},
    {"unsignedByte", Kind::Whole, 0, UINT8_MAX},
    {"unsignedShort", Kind::Whole, 0, UINT16_MAX},
    {"unsignedInt", Kind::Whole, 0, UINT32_MAX},
    {"unsignedLong", Kind::Whole, 0, INT64_MAX},
    {"double", Kind::Decimal},
    {"float", Kind::Decimal},
    {"decimal", Kind::Decimal},
    {"hexBinary", Kind::Hex},
    {"guid", Kind::Guid},
    {"percent", Kind::Percent},
    {"decimalPercent", Kind::DecimalPercent},
    {"measure", Kind::Measure},
    {"dateTime", Kind::DateTime},
    {"NCName", Kind::Name},
};

namespace {

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

std::u16string_view trim(std::u16string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

std::size_t countDigits(std::u16string_view text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    return static_cast<std::size_t>(end - text.begin());
}

/// @return false for what is no whole number of 64 bits
bool readWhole(std::u16string_view text, std::int64_t& number) {
    const bool isNegative = !text.empty() && text[0] == u'-';
    if (isNegative || (!text.empty() && text[0] == u'+'))
        text.remove_prefix(1);
    if (text.empty() || countDigits(text) != text.size())
        return false;
    number = 0;
    for (const char16_t c : text) {
        const int digit = c - u'0';
        if (number > (INT64_MAX - digit) / 10)
            return false;
        number = number * 10 + digit;
    }
    number = isNegative ? -number : number;
    return true;
}

/// Takes an optional minus, digits, and optionally a point and digits from the front of a text.
bool takeDecimal(std::u16string_view& text, std::int64_t& whole) {
    const std::size_t sign = !text.empty() && text[0] == u'-' ? 1 : 0;
    const std::size_t digits = countDigits(text.substr(sign));
    if (digits == 0 || !readWhole(text.substr(0, sign + digits), whole))
        return false;
    text.remove_prefix(sign + digits);
    if (text.size() < 2 || text[0] != u'.' || !isDigit(text[1]))
        return text.empty() || text[0] != u'.';
    text.remove_prefix(1 + countDigits(text.substr(1)));
    return true;
}

bool isDouble(std::u16string_view text) {
    if (text == u"INF" || text == u"-INF" || text == u"NaN")
        return true;
    std::string ascii(text.begin(), text.end());
    const std::size_t plus = !ascii.empty() && ascii[0] == '+' ? 1 : 0;
    double number = 0;
    const auto end = std::from_chars(ascii.data() + plus, ascii.data() + ascii.size(), number);
    const bool isNumber = ascii.find_first_not_of("+-.0123456789eE") == std::string::npos;
    return isNumber && !ascii.empty() && end.ec != std::errc::invalid_argument &&
           end.ptr == ascii.data() + ascii.size();
}

bool isHexDigit(char16_t c) {
    return isDigit(c) || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

// 9 stands for a digit, F for one of the hexadecimal ones in upper case, anything else for itself.
bool fits(std::u16string_view text, std::string_view pattern) {
    if (text.size() != pattern.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isFit = pattern[i] == '9'   ? isDigit(text[i])
                           : pattern[i] == 'F' ? isHexDigit(text[i]) && text[i] < u'a'
                                               : text[i] == char16_t(pattern[i]);
        if (!isFit)
            return false;
    }
    return true;
}

bool isDateTime(std::u16string_view text) {
    constexpr std::size_t kLength = 19;
    if (!fits(text.substr(0, kLength), "9999-99-99T99:99:99"))
        return false;
    text.remove_prefix(kLength);
    if (!text.empty() && text[0] == u'.')
        text.remove_prefix(1 + countDigits(text.substr(1)));
    return text.empty() || text == u"Z" || fits(text, "+99:99") || fits(text, "-99:99");
}

bool isUnit(std::u16string_view text) {
    for (const char16_t* unit : {u"mm", u"cm", u"in", u"pt", u"pc", u"pi"})
        if (text == unit)
            return true;
    return false;
}

bool isNameStart(char16_t c) {
    return c == u'_' || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c >= 0x80;
}

bool isName(std::u16string_view text) {
    return !text.empty() && isNameStart(text[0]) && std::all_of(text.begin(), text.end(), [](char16_t c) {
        return isNameStart(c) || isDigit(c) || c == u'.' || c == u'-';
    });
}

} // namespace

ValueType ValueType::parse(std::string_view rule, const Lookup& lookup) {
    if (rule.find(" | ") == std::string_view::npos)
        return parseOne(rule, lookup);
    ValueType choice;
    choice.kind_ = Kind::Choice;
    for (std::size_t start = 0; start < rule.size();) {
        const std::size_t end = std::min(rule.find(" | ", start), rule.size());
        choice.choices_.push_back(parseOne(rule.substr(start, end - start), lookup));
        start = end + 3;
    }
    return choice;
}

ValueType ValueType::parseOne(std::string_view rule, const Lookup& lookup) {
    if (rule.front() != '{') {
        const std::size_t blank = std::min(rule.find(' '), rule.size());
        ValueType type = findKind(rule.substr(0, blank), lookup);
        type.narrow(rule.substr(blank));
        return type;
    }
    ValueType words;
    words.kind_ = Kind::Words;
    for (std::size_t start = 1; start < rule.size();) {
        const std::size_t end = rule.find_first_of(" }", start);
        const std::string_view word = rule.substr(start, end - start);
        if (word == "''")
            words.words_.emplace_back();
        else if (!word.empty())
            words.words_.emplace_back(word.begin(), word.end());
        start = end + 1;
    }
    return words;
}

ValueType ValueType::findKind(std::string_view name, const Lookup& lookup) {
    for (const BuiltIn& row : kBuiltIns) {
        if (name != row.name)
            continue;
        ValueType type;
        type.kind_ = row.kind;
        type.low_ = row.low;
        type.high_ = row.high;
        return type;
    }
    return lookup(name);
}

// " 0..5", where one of the two may be missing; nothing at all leaves the kind as it is.
void ValueType::narrow(std::string_view range) {
    const std::size_t dots = range.find("..");
    if (dots == std::string_view::npos)
        return;
    const std::string_view low = range.substr(1, dots - 1), high = range.substr(dots + 2);
    if (!low.empty())
        std::from_chars(low.data(), low.data() + low.size(), low_);
    if (!high.empty())
        std::from_chars(high.data(), high.data() + high.size(), high_);
}

bool ValueType::acceptsWord(std::u16string_view text) const {
    return std::find(words_.begin(), words_.end(), text) != words_.end();
}

bool ValueType::accepts(std::u16string_view text) const {
    std::int64_t number = 0;
    if (kind_ == Kind::Any)
        return isInRange(static_cast<std::int64_t>(text.size()));
    text = trim(text);
    switch (kind_) {
    case Kind::Any:
        return true;
    case Kind::Boolean:
        return text == u"1" || text == u"0" || text == u"true" || text == u"false";
    case Kind::Whole:
        return readWhole(text, number) && isInRange(number);
    case Kind::Decimal:
        return isDouble(text);
    case Kind::Hex:
        return text.size() % 2 == 0 && isInRange(static_cast<std::int64_t>(text.size() / 2)) &&
               std::all_of(text.begin(), text.end(), isHexDigit);
    case Kind::Guid:
        return fits(text, "{FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF}");
    case Kind::Percent:
        return !text.empty() && text.back() == u'%' && readWhole(text.substr(0, text.size() - 1), number) &&
               isInRange(number);
    case Kind::DecimalPercent:
        return takeDecimal(text, number) && text == u"%" && isInRange(number);
    case Kind::Measure:
        return takeDecimal(text, number) && isInRange(number) && isUnit(text);
    case Kind::DateTime:
        return isDateTime(text);
    case Kind::Name:
        return isName(text) && isInRange(static_cast<std::int64_t>(text.size()));
    case Kind::Words:
        return acceptsWord(text);
    case Kind::Choice:
        return std::any_of(choices_.begin(), choices_.end(),
                           [&](const ValueType& type) { return type.accepts(text); });
    }
    return true;
}

std::wstring ValueType::describeRange() const {
    const std::wstring low = std::to_wstring(low_), high = std::to_wstring(high_);
    if (low_ != INT64_MIN && high_ != INT64_MAX)
        return low_ == high_ ? L" of " + low : L" from " + low + L" to " + high;
    return low_ != INT64_MIN ? L" from " + low + L" on" : high_ != INT64_MAX ? L" up to " + high : L"";
}

std::wstring ValueType::describe() const {
    constexpr std::size_t kMaxWords = 8;
    std::wstring text;
    switch (kind_) {
    case Kind::Any:
        return L"a text of a length" + describeRange();
    case Kind::Boolean:
        return L"1, 0, true or false";
    case Kind::Whole:
        return L"a whole number" + describeRange();
    case Kind::Decimal:
        return L"a number";
    case Kind::Hex:
        return L"hexadecimal, with a number of bytes" + describeRange();
    case Kind::Guid:
        return L"an identifier in curly brackets, in upper case";
    case Kind::Percent:
    case Kind::DecimalPercent:
        return L"a percentage" + describeRange();
    case Kind::Measure:
        return L"a number with a unit";
    case Kind::DateTime:
        return L"a date and time";
    case Kind::Name:
        return L"a name without blanks";
    case Kind::Words:
        for (std::size_t i = 0; i < words_.size() && i < kMaxWords; ++i)
            text += (i > 0 ? L", " : L"one of ") + widen(words_[i]);
        return text + (words_.size() > kMaxWords ? L" ..." : L"");
    case Kind::Choice:
        for (const ValueType& type : choices_)
            text += (text.empty() ? L"" : L" or ") + type.describe();
        return text;
    }
    return text;
}

} // namespace vellox::check
