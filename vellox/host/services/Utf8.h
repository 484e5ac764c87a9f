/// @file
/// The one passage between the library's wide strings (UTF-32) and UTF-8, which files, paths, message
/// catalogs and hosts speak. It never looks at the process's locale.

#ifndef VELLOX_HOST_SERVICES_UTF8_H
#define VELLOX_HOST_SERVICES_UTF8_H

#include <string>

#include "vellox/Api.h"

namespace vellox {

/// The text in UTF-8. What is no character (a surrogate, a value above U+10FFFF) is left out.
VELLOX_API std::string toUtf8(const std::wstring& text);

/// The text of a UTF-8 sequence. Malformed bytes are left out.
VELLOX_API std::wstring fromUtf8(const std::string& bytes);

} // namespace vellox

#endif
