/// @file
/// How numbers and dates are to look.

#ifndef VELLOX_PPT_FILL_NUMBERFORM_H
#define VELLOX_PPT_FILL_NUMBERFORM_H

#include <optional>
#include <string>

namespace vellox::ppt {

/// A number in a form, as Python's format() gives it: [+][,][.digits][f, F, e, E, g, G, d, %]. "," sets off thousands.
/// @return nothing if the form is none, or asks for a whole number and this is none
std::optional<std::wstring> formatNumber(double number, const std::wstring& form);

/// A date such as "2026-11-21" or "2026-11-21 09:30:00" in a form such as "%d.%m.%Y": %d, %m, %y, %Y, %H, %M, %S, and the
/// English names %a, %A, %b, %B.
/// @return nothing if the text is no date, or the form none
std::optional<std::wstring> formatDate(const std::wstring& date, const std::wstring& form);

} // namespace vellox::ppt

#endif
