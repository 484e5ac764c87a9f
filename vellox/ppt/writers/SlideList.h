/// @file
/// The list of slides in the presentation part.

#ifndef VELLOX_PPT_WRITERS_SLIDELIST_H
#define VELLOX_PPT_WRITERS_SLIDELIST_H

#include <boost/shared_ptr.hpp>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class NotesParts;
class PPTPartWriter;

/// Writes the presentation part with a p:sldIdLst of these slides and no others, in this order. New slides get
/// their relationships, which their records know from then on.
/// @throws opc::Exception
void updateSlideList(const ReadTemplate& source, const std::vector<boost::shared_ptr<TemplateSlide>>& slides,
                     PPTPartWriter& partWriter, const NotesParts& notes);

} // namespace vellox::ppt

#endif
