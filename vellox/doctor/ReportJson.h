/// @file
/// The report of a template as JSON, for programs in other languages.

#ifndef VELLOX_DOCTOR_REPORTJSON_H
#define VELLOX_DOCTOR_REPORTJSON_H

#include <string>

#include "vellox/Api.h"
#include "vellox/doctor/TemplateReport.h"

namespace vellox::ppt {

/// One object with the fields of the report under their names, but with words between underscores instead of capitals:
/// "slide_width". What there is none of is null. In ASCII.
VELLOX_API std::string toJson(const TemplateReport& report);

} // namespace vellox::ppt

#endif
