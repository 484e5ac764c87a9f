#include "vellox/ppt/fill/NumberForm.h"

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

struct Form {
    bool hasSign = false, hasGroups = false;
    std::optional<int> digits;
    wchar_t type = 0;
};

std::optional<Form> parse(const std::wstring& text) {
    Form form;
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
    return at == text.end() && isType ? std::optional(form) : std::nullopt;
}

std::string print(double number, const Form& form) {
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
    case 0:
        return form.digits ? format(std::chars_format::general)
                           : finish(std::to_chars(buffer.begin(), buffer.end(), number));
    default:
        return format(std::chars_format::fixed);
    }
}

void setOffThousands(std::string& digits) {
    const std::size_t end = std::min(digits.find_first_not_of("0123456789"), digits.size());
    for (std::size_t at = end; at > 3; at -= 3)
        digits.insert(at - 3, ",");
}

} // namespace

std::optional<std::wstring> formatNumber(double number, const std::wstring& text) {
    const std::optional<Form> form = parse(text);
    const bool isWhole = std::isfinite(number) && std::floor(number) == number;
    if (!form || (form->type == L'd' && (!isWhole || form->digits)))
        return std::nullopt;
    const double shown = form->type == L'%' ? number * 100 : number;
    std::string digits = print(std::fabs(shown), *form);
    if (form->hasGroups)
        setOffThousands(digits);
    if (form->type == L'E' || form->type == L'G')
        std::transform(digits.begin(), digits.end(), digits.begin(),
                       [](char c) { return c == 'e' ? 'E' : c; });
    const char* sign = std::signbit(shown) ? "-" : form->hasSign ? "+" : "";
    digits = sign + digits + (form->type == L'%' ? "%" : "");
    return std::wstring(digits.begin(), digits.end());
}

std::optional<std::wstring> formatDate(const std::wstring& date, const std::wstring& form) {
    const std::wstring known = L"aAbBdmyYHMS%";
    for (std::size_t at = form.find(L'%'); at != std::wstring::npos; at = form.find(L'%', at + 2))
        if (at + 1 >= form.size() || known.find(form[at + 1]) == std::wstring::npos)
            return std::nullopt;
    std::tm time = {};
    std::wistringstream stream(date);
    stream.imbue(std::locale::classic());
    stream >> std::get_time(&time, L"%Y-%m-%d");
    if (!stream)
        return std::nullopt;
    const wchar_t mark = stream.eof() ? L'\0' : static_cast<wchar_t>(stream.get());
    if (mark == L' ' || mark == L'T')
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
