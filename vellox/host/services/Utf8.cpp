#include "vellox/host/services/Utf8.h"

#include <boost/locale/encoding_utf.hpp>
#include <boost/locale/utf.hpp>

namespace vellox {

using boost::locale::conv::skip;
using boost::locale::conv::utf_to_utf;

std::string toUtf8(const std::wstring& text) {
    return utf_to_utf<char>(text, skip);
}

std::wstring fromUtf8(const std::string& bytes) {
    using Decoder = boost::locale::utf::utf_traits<char>;
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
