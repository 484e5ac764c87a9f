#include "vellox/host/services/Utf8.h"

#include <algorithm>
#include <boost/locale/encoding_utf.hpp>
#include <boost/locale/utf.hpp>
#include <cstdint>

namespace vellox {

using boost::locale::conv::skip;
using boost::locale::conv::utf_to_utf;

namespace {

// Names of parts, types and the like, which are nearly all that comes here.
template <class Text> bool isAscii(const Text& text) {
    return std::all_of(text.begin(), text.end(), [](auto c) { return static_cast<std::uint32_t>(c) < 0x80; });
}

} // namespace

std::string toUtf8(const std::wstring& text) {
    return isAscii(text) ? std::string(text.begin(), text.end()) : utf_to_utf<char>(text, skip);
}

std::wstring fromUtf8(const std::string& bytes) {
    using Decoder = boost::locale::utf::utf_traits<char>;
    if (isAscii(bytes))
        return std::wstring(bytes.begin(), bytes.end());
    std::wstring text;
    text.reserve(bytes.size());
    for (auto next = bytes.begin(); next != bytes.end();) {
        const auto start = next;
        const boost::locale::utf::code_point decoded = Decoder::decode(next, bytes.end());
        if (boost::locale::utf::is_valid_codepoint(decoded))
            text.push_back(static_cast<wchar_t>(decoded));
        else
            next = start + 1; // what the sequence lacked may be the byte that begins the next character
    }
    return text;
}

} // namespace vellox
