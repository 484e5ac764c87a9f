/// @file
/// Adding and replacing by name, as slides and presentations offer it. Every node of the name below a start
/// is taken, in document order; those that don't take what is given are passed over, and so is a
/// name that nothing bears; the presentation has a finding then. A failure in one node leaves those ahead of it changed.

#ifndef VELLOX_PPT_TREE_BYNAME_H
#define VELLOX_PPT_TREE_BYNAME_H

#include <string>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/tree/Paragraph.h"

namespace vellox::ppt {

/// Text boxes and placeholders, but for those of tables, each get a new paragraph.
void addByName(const PPTNode& start, const std::wstring& name, std::wstring text);
/// The same boxes get the paragraph: the first one the object itself unless it has a parent, the others
/// copies.
void addByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph);
/// The same boxes lose what they hold for a new paragraph.
void replaceByName(const PPTNode& start, const std::wstring& name, std::wstring text);
/// The same boxes lose what they hold for the paragraph, or a copy of it.
void replaceByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph);
/// The same boxes, tables and their placeholders get other content.
void replaceByName(const PPTNode& start, const std::wstring& name, const HvContentPtr& content);

} // namespace vellox::ppt

#endif
