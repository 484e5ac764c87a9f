/// @file
/// The names of colours.

#ifndef VELLOX_PPT_FORMATS_COLORTABLE_H
#define VELLOX_PPT_FORMATS_COLORTABLE_H

#include <string>

namespace vellox::ppt {

/// The colour of a lower-case name, as "#" and six upper-case hexadecimal digits; null for a name that isn't in
/// the table.
const wchar_t* findColor(const std::wstring& name);

/// Whether a text in lower case is "#" and six hexadecimal digits, or a name in the table.
bool isColor(const std::wstring& text);
/// Six upper-case hexadecimal digits for such a text.
std::wstring toHex(const std::wstring& color);

} // namespace vellox::ppt

#endif
