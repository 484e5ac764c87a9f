/// @file
/// Names that say what a placeholder is for and where it stands: "Title", "Left Content", "Lower Right Picture".

#ifndef VELLOX_DOCTOR_SPEAKINGNAMES_H
#define VELLOX_DOCTOR_SPEAKINGNAMES_H

#include <optional>
#include <string>
#include <vector>

#include "vellox/doctor/TemplateReport.h"

namespace vellox::ppt {

/// Names for the placeholders of a layout, all different. Those that somebody has given stay if there is no other of
/// the name; what a program has made gives way to the word for the type.
std::vector<std::wstring> makeSpeakingNames(const std::vector<PlaceholderReport>& placeholders);

/// The word for a layout that has no name, from its type: "Two Content".
std::wstring getLayoutWord(const std::wstring& type);

} // namespace vellox::ppt

#endif
