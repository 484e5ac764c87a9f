/// @file
/// Placeholders for titles and subtitles, and the base of all others.

#ifndef VELLOX_PPT_TREE_TEXTBOXPLACEHOLDER_H
#define VELLOX_PPT_TREE_TEXTBOXPLACEHOLDER_H

#include "vellox/ppt/tree/BaseTextBox.h"

namespace vellox::ppt {

class TextBoxPlaceholderImpl;

/// A shape that a layout puts on a new slide for the caller to fill with text. A handle: copies share one
/// placeholder.
///
/// A placeholder that was never on a slide, or whose place a picture or a table has taken, refuses text with
/// placeholderWasReplacedByObject.
class VELLOX_API TextBoxPlaceholder : public BaseTextBox {
public:
    TextBoxPlaceholder();

    /// The node as a TextBoxPlaceholder, or an empty pointer.
    static boost::shared_ptr<TextBoxPlaceholder> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit TextBoxPlaceholder(TextBoxPlaceholderImpl* impl);
};

} // namespace vellox::ppt

#endif
