/// @file
/// What shapes and cells show, as text. Internal.

#ifndef VELLOX_PPT_TREE_NODETEXT_H
#define VELLOX_PPT_TREE_NODETEXT_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

class Rules;

/// The text of a paragraph.
/// @param rules by which numbers and truth values are shown; without any, as the classic ones do
std::wstring readRuns(const PPTNodeImpl& paragraph, const Rules* rules);

/// The texts of the paragraphs that a node holds, one below the other, as its presentation shows them.
std::wstring readParagraphs(const PPTNodeImpl& node);

/// Two texts, one below the other; an empty one takes no line.
std::wstring joinTexts(const std::wstring& upper, const std::wstring& lower);

/// What a shape's slide was made from; empty for shapes of new slides and for those that stand nowhere.
boost::shared_ptr<const SlideSource> findSource(const ShapeImpl& shape);

} // namespace vellox::ppt

#endif
