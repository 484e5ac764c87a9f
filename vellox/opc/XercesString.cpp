#include "vellox/opc/XercesString.h"

#include <algorithm>
#include <xercesc/util/XMLString.hpp>

namespace opc {

namespace {

// XML 1.0, production [2].
bool isAllowed(char32_t c) {
    if (c < 0x20)
        return c == 0x9 || c == 0xA || c == 0xD;
    return c < 0xD800 || (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

bool isHighSurrogate(char16_t c) {
    return c >= 0xD800 && c < 0xDC00;
}

bool isLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

} // namespace

XercesString::XercesString(const std::wstring& text) {
    // Nearly every text is plain from its start to its end, and there are as many as cells.
    const auto plainEnd =
        std::find_if_not(text.begin(), text.end(), [](wchar_t c) { return c >= 0x20 && c < 0xD800; });
    text_.reserve(text.size());
    text_.assign(text.begin(), plainEnd);
    for (auto wide = plainEnd; wide != text.end(); ++wide) {
        const auto c = static_cast<char32_t>(*wide);
        if (!isAllowed(c)) {
            ++dropped_;
        } else if (c < 0x10000) {
            text_.push_back(static_cast<char16_t>(c));
        } else {
            text_.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
            text_.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
        }
    }
}

std::wstring XercesString::toString() const {
    return toWideString(text_.c_str());
}

std::wstring toWideString(const XMLCh* text) {
    std::wstring wide;
    wide.reserve(xercesc::XMLString::stringLen(text));
    for (; text && *text; ++text) {
        char32_t c = *text;
        if (isHighSurrogate(text[0]) && isLowSurrogate(text[1])) {
            c = 0x10000 + ((char32_t(text[0]) - 0xD800) << 10) + (char32_t(text[1]) - 0xDC00);
            ++text;
        }
        wide.push_back(static_cast<wchar_t>(c));
    }
    return wide;
}

std::wstring dropForbiddenCharacters(const std::wstring& text) {
    return XercesString(text).toString();
}

} // namespace opc
