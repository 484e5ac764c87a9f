/// @file
/// What a shape element of a layout, a slide or a master says of itself.

#ifndef VELLOX_PPT_TEMPLATE_SHAPEREADER_H
#define VELLOX_PPT_TEMPLATE_SHAPEREADER_H

#include <boost/shared_ptr.hpp>

#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

ShapeFacts readFacts(const xercesc::DOMElement& shape, bool isInGroup = false);

/// The element in which a shape keeps id, name and placeholder, such as p:nvSpPr; null if it has none.
xercesc::DOMElement* findNonVisual(const xercesc::DOMElement& shape);

/// The place that a shape gives itself.
/// @return empty if it gives none
boost::shared_ptr<const PlaceText> readPlace(const xercesc::DOMElement& shape);

/// The first element of a shape tree, from which its siblings are visited.
xercesc::DOMElement* findFirstShape(xercesc::DOMDocument* document, TreePath path);

/// The greatest id of a p:cNvPr of a document; 0 if there is none.
unsigned int findGreatestId(xercesc::DOMDocument* document);
/// Where ids end that are counted on from: programs want them below 2^31, and those beyond stand alone.
inline constexpr unsigned int kEndOfIds = 0x7FFF0000;
/// The greatest id below that end of anything drawn on a page, of whatever namespace; 0 if there is none.
unsigned int findLastId(xercesc::DOMDocument* document);
/// Gives shapes whose id another one ahead of them has ids of their own, counted on from one that is free. What refers
/// to a shape by its id means the first. A fallback stands for a shape, and has its id.
/// @return the next free id
unsigned int renumberRepeatedIds(xercesc::DOMDocument* document, unsigned int next);

} // namespace vellox::ppt

#endif
