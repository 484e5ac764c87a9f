/// @file
/// What a run's properties say of its very words, and not of their look.

#ifndef VELLOX_PPT_XML_RUNMARKS_H
#define VELLOX_PPT_XML_RUNMARKS_H

#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

/// Children: where the words lead to.
inline constexpr const XMLCh* kRunLinks[] = {xml::kAHlinkClick, xml::kAHlinkMouseOver};
/// Attributes: bookmarks, and marks of the spelling.
inline constexpr const XMLCh* kRunMarks[] = {xml::kBmk, xml::kDirty, xml::kErr, xml::kSmtClean};

} // namespace vellox::ppt

#endif
