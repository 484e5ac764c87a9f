/// @file
/// The sections of a deck (p14:sectionLst, an extension of the format), which name slides by their ids.

#ifndef VELLOX_PPT_WRITERS_SECTIONS_H
#define VELLOX_PPT_WRITERS_SECTIONS_H

#include <string>
#include <vector>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// Lets the sections follow when slides are given new ids, counted from the first: readers offer to repair a
/// deck whose sections lead nowhere, and find a home of their own for slides that they leave out. A new slide
/// joins the section of the slide before it, or, ahead of all others, of the first that has one. So does a slide
/// that was moved out of its section. A slide that is gone leaves its section.
/// @param formerIds for each slide of the deck, in order, its id in the template; empty for a new one
void updateSections(xercesc::DOMDocument& presentation, const std::vector<std::wstring>& formerIds,
                    unsigned int firstId);

} // namespace vellox::ppt

#endif
