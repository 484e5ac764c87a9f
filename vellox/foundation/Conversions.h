/// @file
/// Numbers, truth values and strings turned into one another. Reading is tolerant: a text that isn't a clean
/// number gives the number that its beginning spells, or zero, and never an error. Writing is exact: doubles
/// come with 17 significant digits. Neither looks at the process's locale.

#ifndef VELLOX_FOUNDATION_CONVERSIONS_H
#define VELLOX_FOUNDATION_CONVERSIONS_H

#include <string>

#include "vellox/Api.h"

namespace vellox {

/// @{ The decimal text of a whole number.
VELLOX_API std::wstring num2str(int value);
VELLOX_API std::wstring num2str(unsigned int value);
/// @}
/// The shortest text of up to 17 significant digits: 2.5 gives "2.5", 0.1 gives "0.10000000000000001". What
/// has no digits gives "nan", "-nan", "inf" or "-inf".
VELLOX_API std::wstring num2str(double value);
/// "TRUE" or "FALSE".
VELLOX_API std::wstring bool2str(bool value);

/// @{ The number that the text begins with, leading blanks aside; 0 where there is none. Beyond the range
/// of the type it is the nearest number of the type; "-1" read as unsigned wraps around, as in C.
VELLOX_API int str2int(const std::wstring& text);
VELLOX_API unsigned int str2uint(const std::wstring& text);
VELLOX_API long str2long(const std::wstring& text);
/// @}
/// As its siblings. A text that is "nan", "inf" or "infinity" as a whole, in lower or in upper case and with
/// or without a sign, gives that value.
VELLOX_API double str2double(const std::wstring& text);

/// The number without its fraction. One that no int can hold stops at the limit, what is no number is 0.
VELLOX_API int truncateToInt(double value);

/// The same text.
VELLOX_API std::wstring toString(const std::wstring& text);
/// Narrow text, in UTF-8, widened.
VELLOX_API std::wstring toString(const std::string& text);
/// An ASCII text widened, one character to one character.
VELLOX_API std::wstring toStringFromASCIIStringLiteral(const char* text);

/// @{ A copy mapped character by character; no length changes. Beyond ASCII the global locale rules.
VELLOX_API std::wstring toLowerString(const std::wstring& text);
VELLOX_API std::wstring toUpperString(const std::wstring& text);
/// @}

/// Replaces every `from` in the text. What was put in isn't searched again; an empty `from` does nothing.
VELLOX_API void replaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to);

/// A new random UUID (version 4): 36 lower-case characters with hyphens.
VELLOX_API std::wstring uuid_gen();

} // namespace vellox

#endif
