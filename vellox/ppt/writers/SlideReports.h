/// @file
/// What can be told of a slide's nodes before they are written: which of their wishes no writer will fulfil.

#ifndef VELLOX_PPT_WRITERS_SLIDEREPORTS_H
#define VELLOX_PPT_WRITERS_SLIDEREPORTS_H

namespace vellox::ppt {

class Rules;
class SlideImpl;

/// Reports shapes in groups that were changed where the rules don't reach them, names with characters that are left out, and what of the layout the slide
/// lacks.
void reportOnSlide(const SlideImpl& slide, const Rules& rules);

} // namespace vellox::ppt

#endif
