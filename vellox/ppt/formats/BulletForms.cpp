#include "vellox/ppt/formats/BulletForms.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"

#include <algorithm>
#include <optional>
#include <sstream>

namespace vellox::ppt {

namespace {

enum Script { Arabic, LowerAlpha, UpperAlpha, LowerRoman, UpperRoman };
enum Dress { Plain, Period, Closed, Enclosed };

// By script and dress. Bare letters are characters, not numbers.
constexpr const XMLCh* kNumberings[][4] = {
    {u"arabicPlain", u"arabicPeriod", u"arabicParenR", u"arabicParenBoth"},
    {nullptr, u"alphaLcPeriod", u"alphaLcParenR", u"alphaLcParenBoth"},
    {nullptr, u"alphaUcPeriod", u"alphaUcParenR", u"alphaUcParenBoth"},
    {nullptr, u"romanLcPeriod", u"romanLcParenR", u"romanLcParenBoth"},
    {nullptr, u"romanUcPeriod", u"romanUcParenR", u"romanUcParenBoth"},
};

constexpr unsigned int kGreatestStart = 32767; // of the format
constexpr std::size_t kLongestDigits = 5;
constexpr std::size_t kLongestCharacter = 2; // some have a mark behind them that says how they are drawn

bool isIn(wchar_t c, wchar_t first, wchar_t last) {
    return c >= first && c <= last;
}

bool areAllIn(const std::wstring& text, wchar_t first, wchar_t last) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [&](wchar_t c) { return isIn(c, first, last); });
}

struct Count {
    Script script;
    unsigned int start;
};

// A digit counts against the number if a greater one comes behind it.
std::optional<unsigned int> readRoman(const std::wstring& lowerCase) {
    constexpr wchar_t kDigits[] = L"ivxlcdm";
    constexpr unsigned int kValues[] = {1, 5, 10, 50, 100, 500, 1000};
    constexpr std::size_t kLongest = 15;
    if (lowerCase.size() > kLongest)
        return {};
    int number = 0, greatest = 0;
    for (auto digit = lowerCase.rbegin(); digit != lowerCase.rend(); ++digit) {
        const std::size_t place = std::wstring(kDigits).find(*digit);
        if (place == std::wstring::npos)
            return {};
        const int value = static_cast<int>(kValues[place]);
        number += value < greatest ? -value : value;
        greatest = std::max(greatest, value);
    }
    return number > 0 ? static_cast<unsigned int>(number) : std::optional<unsigned int>();
}

// "i" is the first of the Roman numbers: nobody begins to count with the ninth letter.
std::optional<Count> readCount(const std::wstring& text) {
    if (areAllIn(text, L'0', L'9') && text.size() <= kLongestDigits) {
        const unsigned int start = str2uint(text);
        return start >= 1 && start <= kGreatestStart ? Count{Arabic, start} : std::optional<Count>();
    }
    const bool isLower = areAllIn(text, L'a', L'z');
    if (!isLower && !areAllIn(text, L'A', L'Z'))
        return {};
    const std::wstring lower = toLowerString(text);
    if (lower.size() == 1 && lower != L"i")
        return Count{isLower ? LowerAlpha : UpperAlpha, static_cast<unsigned int>(lower[0] - L'a') + 1};
    if (const auto roman = readRoman(lower))
        return Count{isLower ? LowerRoman : UpperRoman, *roman};
    return {};
}

Dress undress(std::wstring& word) {
    const wchar_t last = word.back();
    if (word.size() > 1 && (last == L'.' || last == L')')) {
        word.pop_back();
        const bool isOpened = last == L')' && word.size() > 1 && word.front() == L'(';
        if (isOpened)
            word.erase(0, 1);
        return last == L'.' ? Period : isOpened ? Enclosed : Closed;
    }
    return Plain;
}

std::optional<BulletForm> readForm(const std::wstring& word) {
    BulletForm form;
    if (toLowerString(word) == L"none")
        return form;
    std::wstring bare = word;
    const Dress dress = undress(bare);
    if (const auto count = readCount(bare))
        if ((form.numbering = kNumberings[count->script][dress])) {
            form.start = count->start;
            return form;
        }
    if (word.size() > kLongestCharacter || opc::dropForbiddenCharacters(word).empty())
        return {};
    form.character = word;
    return form;
}

} // namespace

std::vector<BulletForm> parseBullets(const std::wstring& text) {
    std::vector<BulletForm> forms;
    std::wistringstream words(text);
    for (std::wstring word; words >> word;) {
        const auto form = readForm(word);
        if (!form)
            raise(ppt_error::invalidPropertyValue(text));
        forms.push_back(*form);
    }
    if (forms.empty())
        raise(ppt_error::invalidPropertyValue(text));
    return forms;
}

} // namespace vellox::ppt
