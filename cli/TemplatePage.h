/// @file
/// A template as a page for a browser.

#ifndef CLI_TEMPLATEPAGE_H
#define CLI_TEMPLATEPAGE_H

#include <string>

#include "vellox/doctor/TemplateReport.h"

namespace vellox::cli {

/// HTML with a drawing of each layout to scale, the names and classes of its placeholders, the colours and
/// fonts of its masters, and the findings. It needs nothing else, neither files nor a network.
std::string makeTemplatePage(const ppt::TemplateReport& report);

} // namespace vellox::cli

#endif
