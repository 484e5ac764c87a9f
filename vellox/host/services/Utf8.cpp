#include "vellox/host/services/Utf8.h"

#include <boost/locale/encoding_utf.hpp>

namespace vellox {

using boost::locale::conv::skip;
using boost::locale::conv::utf_to_utf;

std::string toUtf8(const std::wstring& text) {
    return utf_to_utf<char>(text, skip);
}

std::wstring fromUtf8(const std::string& bytes) {
    return utf_to_utf<wchar_t>(bytes, skip);
}

} // namespace vellox
