/// @file
/// Findings: what isn't as it was asked for, or as it should be. They are collected and returned; messages
/// are sent while work goes on, and errors are thrown.

#ifndef VELLOX_PPT_MESSAGES_FINDING_H
#define VELLOX_PPT_MESSAGES_FINDING_H

#include <string>

#include "vellox/Api.h"

namespace vellox::ppt {

enum class Severity {
    Error,   ///< the result is wrong, or a strict reader will want to repair it
    Warning, ///< readers cope with it, or the result may not be what was meant
    Info     ///< worth knowing
};

/// "error", "warning" or "info".
constexpr const char* toString(Severity severity) {
    return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "info";
}

/// One finding. A value.
struct VELLOX_API Finding {
    Severity severity = Severity::Error;
    /// What kind of finding it is, for programs: "duplicateSlideId". Those of an operation are listed with it.
    std::string code;
    /// The part of the package that it is about, such as "/ppt/slides/slide1.xml"; empty for the whole.
    std::wstring part;
    /// The number of the slide, counted from 1; 0 if it is about no slide.
    unsigned int slide = 0;
    /// The name of the shape, or empty.
    std::wstring shape;
    /// The finding in words, without a full stop.
    std::wstring text;
};

} // namespace vellox::ppt

#endif
