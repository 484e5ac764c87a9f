/// @file
/// The prefixes of names. Documents are read without namespaces, so that a name is what it is spelled as.

#ifndef VELLOX_PPT_XML_PREFIXES_H
#define VELLOX_PPT_XML_PREFIXES_H

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// Spells all names of the three namespaces of slides with the prefixes "a", "p" and "r", whichever the document has for
/// them. A prefix of these that stands for something else gets a number. Nothing is done to a document that has the usual
/// prefixes.
void useUsualPrefixes(xercesc::DOMDocument& document);

} // namespace vellox::ppt

#endif
