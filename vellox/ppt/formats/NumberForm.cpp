#include "vellox/ppt/formats/NumberForm.h"

#include "vellox/host/services/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <iomanip>
#include <iterator>
#include <locale>
#include <sstream>

namespace vellox::ppt {

namespace {

constexpr int kMostDigits = 100; // behind the point
constexpr int kUsualDigits = 6;

void setOffThousands(std::wstring& digits, const std::wstring& mark) {
    const std::size_t end = std::min(digits.find_first_not_of(L"0123456789"), digits.size());
    for (std::size_t at = end; at > 3; at -= 3)
        digits.insert(at - 3, mark);
}

/// The number that a text is from its beginning to its end.
template <class Number> std::optional<Number> readNumber(const std::wstring& text) {
    const std::string bytes = toUtf8(text);
    Number number = 0;
    const auto end = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
    const bool isWhole = end.ec == std::errc() && end.ptr == bytes.data() + bytes.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

/// Whether it is written as 2026-11-21, with or without a time and its fraction behind; other texts may be anything.
bool isDate(const std::wstring& text) {
    constexpr wchar_t kShape[] = L"0000-00-00 00:00:00.";
    constexpr std::size_t kDay = 10, kTime = 19;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t wanted = i < kTime + 1 ? kShape[i] : L'0';
        const bool isDigit = text[i] >= L'0' && text[i] <= L'9';
        if (wanted == L'0' ? !isDigit : text[i] != wanted && !(i == kDay && text[i] == L'T'))
            return false;
    }
    return text.size() == kDay || text.size() == kTime || text.size() > kTime + 1;
}

bool isDateForm(const std::wstring& form) {
    const std::wstring known = L"aAbBdmyYHMS%";
    std::size_t at = form.find(L'%');
    const bool hasTerms = at != std::wstring::npos;
    for (; at != std::wstring::npos; at = form.find(L'%', at + 2))
        if (at + 1 >= form.size() || known.find(form[at + 1]) == std::wstring::npos)
            return false;
    return hasTerms;
}

} // namespace

std::wstring NumberMarks::mark(const std::wstring& number) const {
    const std::size_t point = number.find(L'.');
    return point == std::wstring::npos || areUsual()
               ? number
               : number.substr(0, point) + decimal + number.substr(point + 1);
}

// Parsing

std::optional<NumberForm> NumberForm::parse(const std::wstring& text) {
    NumberForm form;
    const bool hasBraces = text.find_first_of(L"{}") != std::wstring::npos;
    const bool isForm = hasBraces ? form.parseBraces(text) : form.parseBare(text);
    return isForm ? std::optional(form) : std::nullopt;
}

bool NumberForm::parseBraces(const std::wstring& text) {
    bool hasField = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const wchar_t c = text[at];
        std::wstring& around = hasField ? after_ : before_;
        const bool isDoubled = at + 1 < text.size() && text[at + 1] == c;
        if (c != L'{' && c != L'}') {
            around += c;
        } else if (isDoubled) {
            around += c;
            ++at;
        } else {
            const std::size_t end = text.find(L'}', at);
            if (c == L'}' || hasField || end == std::wstring::npos)
                return false;
            const std::wstring field = text.substr(at + 1, end - at - 1);
            if (field.empty() || field == L":")
                number_ = Number();
            else if (field[0] != L':' || !parseBare(field.substr(1)))
                return false;
            hasField = true;
            at = end;
        }
    }
    return hasField;
}

bool NumberForm::parseBare(const std::wstring& text) {
    if (text.empty())
        return false;
    number_ = parseNumber(text);
    if (!number_)
        date_ = text;
    return number_ || isDateForm(text);
}

std::optional<NumberForm::Number> NumberForm::parseNumber(const std::wstring& text) {
    Number form;
    auto at = text.begin();
    const auto take = [&](wchar_t c) {
        const bool isThere = at != text.end() && *at == c;
        at += isThere ? 1 : 0;
        return isThere;
    };
    form.hasSign = take(L'+');
    form.hasGroups = take(L',');
    if (take(L'.')) {
        int digits = 0;
        const auto start = at;
        for (; at != text.end() && *at >= L'0' && *at <= L'9' && digits <= kMostDigits; ++at)
            digits = digits * 10 + static_cast<int>(*at - L'0');
        if (at == start || digits > kMostDigits)
            return std::nullopt;
        form.digits = digits;
    }
    if (at != text.end())
        form.type = *at++;
    const std::wstring types = L"fFeEgGd%";
    const bool isType = form.type == 0 || types.find(form.type) != std::wstring::npos;
    const bool isWhole = form.type == L'd' && form.digits;
    return at == text.end() && isType && !isWhole ? std::optional(form) : std::nullopt;
}

// Showing

std::string NumberForm::print(double number, const Number& form) {
    std::array<char, 512> buffer; // the longest double has 309 digits ahead of the point
    const auto finish = [&](std::to_chars_result end) { return std::string(buffer.data(), end.ptr); };
    const auto format = [&](std::chars_format how) {
        return finish(
            std::to_chars(buffer.begin(), buffer.end(), number, how, form.digits.value_or(kUsualDigits)));
    };
    switch (form.type) {
    case L'e':
    case L'E':
        return format(std::chars_format::scientific);
    case L'g':
    case L'G':
        return format(std::chars_format::general);
    case L'd':
        return finish(std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed, 0));
    case 0: {
        constexpr double kLeastPlain = 1e-4, kGreatestPlain = 1e16;
        const bool isTiny = number > 0 && number < kLeastPlain;
        const auto how =
            isTiny || number >= kGreatestPlain ? std::chars_format::scientific : std::chars_format::fixed;
        return form.digits ? format(std::chars_format::general)
                           : finish(std::to_chars(buffer.begin(), buffer.end(), number, how));
    }
    default:
        return format(std::chars_format::fixed);
    }
}

std::optional<std::wstring> NumberForm::show(double number, const NumberMarks& marks) const {
    const double shown = number_ && number_->type == L'%' ? number * 100 : number;
    if (!number_ || !std::isfinite(shown) || (number_->type == L'd' && std::floor(number) != number))
        return std::nullopt;
    return finish(print(std::fabs(shown), *number_), std::signbit(shown), marks);
}

std::optional<std::wstring> NumberForm::showWhole(long long number, const NumberMarks& marks) const {
    constexpr long long kExact = 1LL << 53; // up to which a double has all digits
    constexpr wchar_t kPlain[] = {L'd', L'f', L'F', 0};
    const bool isPlain =
        number_ && std::find(std::begin(kPlain), std::end(kPlain), number_->type) != std::end(kPlain);
    if (!isPlain || (number_->type == 0 && number_->digits) || (number < kExact && number > -kExact))
        return show(static_cast<double>(number), marks);
    std::string digits = std::to_string(number);
    if (number < 0)
        digits.erase(0, 1);
    const int fraction =
        number_->type == L'd' || number_->type == 0 ? 0 : number_->digits.value_or(kUsualDigits);
    if (fraction > 0)
        digits += "." + std::string(static_cast<std::size_t>(fraction), '0');
    return finish(digits, number < 0, marks);
}

std::wstring NumberForm::finish(std::string digits, bool isNegative, const NumberMarks& marks) const {
    if (number_->type == L'E' || number_->type == L'G')
        std::transform(digits.begin(), digits.end(), digits.begin(),
                       [](char c) { return c == 'e' ? 'E' : c; });
    std::wstring text = marks.mark(std::wstring(digits.begin(), digits.end()));
    if (number_->hasGroups)
        setOffThousands(text, marks.thousands);
    const wchar_t* sign = isNegative ? L"-" : number_->hasSign ? L"+" : L"";
    return before_ + sign + text + (number_->type == L'%' ? L"%" : L"") + after_;
}

std::optional<std::wstring> NumberForm::show(const std::wstring& text, const NumberMarks& marks) const {
    if (number_) {
        if (const auto whole = readNumber<long long>(text))
            return showWhole(*whole, marks);
        const auto number = readNumber<double>(text);
        return number && std::isfinite(*number) ? show(*number, marks) : std::nullopt;
    }
    const std::optional<std::wstring> date = showDate(text, date_);
    return date ? std::optional(before_ + *date + after_) : std::nullopt;
}

std::optional<std::wstring> NumberForm::showDate(const std::wstring& date, const std::wstring& form) {
    if (form.empty() || !isDate(date))
        return std::nullopt;
    std::tm time = {};
    std::wistringstream stream(date);
    stream.imbue(std::locale::classic());
    stream >> std::get_time(&time, L"%Y-%m-%d");
    if (stream && !stream.eof() && stream.ignore())
        stream >> std::get_time(&time, L"%H:%M:%S");
    const std::tm given = time;
    if (!stream || timegm(&time) == -1 || time.tm_mday != given.tm_mday) // which finds the day of the week
        return std::nullopt;
    std::wostringstream out;
    out.imbue(std::locale::classic());
    out << std::put_time(&time, form.c_str());
    return out.str();
}

} // namespace vellox::ppt
