#include "vellox/ppt/fill/Tokens.h"

namespace vellox::ppt {

namespace {

bool isNameCharacter(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'_' ||
           c == L'-' || (c > 0xA0 && c != 0x2028 && c != 0x2029);
}

// Behind a name, from an index on; the same index if there is none.
std::size_t skipName(const std::wstring& text, std::size_t at) {
    const std::size_t start = at;
    while (at < text.size() &&
           (isNameCharacter(text[at]) || (text[at] == L'.' && at > start && text[at - 1] != L'.')))
        ++at;
    return at > start && text[at - 1] == L'.' ? start : at;
}

} // namespace

std::vector<Token> findTokens(const std::wstring& text) {
    std::vector<Token> tokens;
    for (std::size_t at = text.find_first_of(L"{}"); at != std::wstring::npos;
         at = text.find_first_of(L"{}", at)) {
        if (at + 1 < text.size() && text[at + 1] == text[at]) {
            tokens.push_back({at, at + 2, {}, {}});
            at += 2;
            continue;
        }
        const std::size_t behindName = text[at] == L'{' ? skipName(text, at + 1) : at + 1;
        std::size_t end = behindName;
        if (end > at + 1 && end < text.size() && text[end] == L':')
            end = text.find_first_of(L"{}\n", end);
        if (behindName == at + 1 || end >= text.size() || text[end] != L'}') {
            ++at;
            continue;
        }
        const std::wstring name = text.substr(at + 1, behindName - at - 1);
        const std::wstring form = end > behindName ? text.substr(behindName + 1, end - behindName - 1) : L"";
        tokens.push_back({at, end + 1, name, form});
        at = end + 1;
    }
    return tokens;
}

} // namespace vellox::ppt
