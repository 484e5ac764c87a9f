/// @file
/// How series and points of charts look that the template doesn't have.

#ifndef VELLOX_PPT_WRITERS_CHARTLOOKS_H
#define VELLOX_PPT_WRITERS_CHARTLOOKS_H

#include <string_view>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// The name of an element behind its prefix.
std::u16string_view getLocalName(const xercesc::DOMNode& element);
/// The first child element of such a name; null for a null parent or if there is none.
xercesc::DOMElement* findLocal(const xercesc::DOMNode* parent, std::u16string_view local);
/// Takes all children of a local name away.
void removeLocal(xercesc::DOMElement* parent, std::u16string_view local);

/// Makes the copy of a series look like the one of an index: in the colours of the theme that are its turn, without
/// what belongs to the original's points.
void continueLook(xercesc::DOMElement* series, unsigned long index);
/// Fits what a series says of single points to their number: that of points which are gone goes, and where each point
/// had a look of its own, as the pieces of a pie do, so have the new ones.
void limitPoints(xercesc::DOMElement* series, std::size_t count);

} // namespace vellox::ppt

#endif
