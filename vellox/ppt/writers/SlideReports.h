/// @file
/// What can be told of a slide's nodes before they are written: which of their wishes no writer will fulfil.

#ifndef VELLOX_PPT_WRITERS_SLIDEREPORTS_H
#define VELLOX_PPT_WRITERS_SLIDEREPORTS_H

#include "vellox/ppt/object/PPTNode.h"

namespace vellox::ppt {

class PresentationModel;
class SlideImpl;

/// Reports shapes in groups that were changed where the rules don't reach them, names with characters that are left
/// out, what of the layout the slide lacks, placeholders that were left empty, and texts and tables that find no room.
/// @param shapes those of the slide, kept from listeners
void reportOnSlide(const SlideImpl& slide, const PPTNode::Children& shapes, const PresentationModel& model);

} // namespace vellox::ppt

#endif
