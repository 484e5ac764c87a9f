/// @file
/// Where a line of a text ends.

#ifndef VELLOX_FOUNDATION_LINES_H
#define VELLOX_FOUNDATION_LINES_H

#include <string>
#include <vector>

namespace vellox {

/// Whether a character ends a line: "\n", "\r", the vertical tab, which programs leave behind where they had a line
/// break, the line and the paragraph separator.
bool endsLine(wchar_t c);

/// The lines of a text, without their ends; "\r\n" is one end. There is at least one.
std::vector<std::wstring> splitLines(std::wstring text);

} // namespace vellox

#endif
