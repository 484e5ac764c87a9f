/// @file
/// The font sizes that a template gives to the levels of a text.

#ifndef VELLOX_PPT_TEMPLATE_TEXTSIZES_H
#define VELLOX_PPT_TEMPLATE_TEXTSIZES_H

#include <array>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// In hundredths of a point, by level from 0; 0 where nothing is said.
using TextSizes = std::array<unsigned short, 9>;

/// Those of a list of styles, such as a:lstStyle or p:bodyStyle; none for null.
TextSizes readTextSizes(const xercesc::DOMElement* styles);
/// Takes in what is said nearer to the text.
void layOver(TextSizes& sizes, const TextSizes& nearer);

} // namespace vellox::ppt

#endif
