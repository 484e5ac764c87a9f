/// @file
/// Slides of the template that go.

#ifndef VELLOX_PPT_WRITERS_SLIDEREMOVAL_H
#define VELLOX_PPT_WRITERS_SLIDEREMOVAL_H

#include <set>

#include "vellox/opc/Package.h"

namespace vellox::ppt {

class PPTPartWriter;

/// Takes slides out of a package whose other slides, and whose list of slides, are written: their parts, what only
/// they needed, such as notes and charts, and all that leads to them, such as links and entries of custom shows.
/// @throws opc::Exception, partDOMBuildError
void removeSlides(const std::set<opc::PartName>& slides, PPTPartWriter& partWriter);

} // namespace vellox::ppt

#endif
