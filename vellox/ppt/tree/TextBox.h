/// @file
/// Free text boxes.

#ifndef VELLOX_PPT_TREE_TEXTBOX_H
#define VELLOX_PPT_TREE_TEXTBOX_H

#include <string>

#include "vellox/ppt/tree/BaseTextBox.h"

namespace vellox::ppt {

class TextBoxImpl;

/// A box of text that belongs to no placeholder. A handle: copies share one box.
///
///     TextBox box(L"Remark");
///     box.setX(L"2cm");
///     box.setWidth(L"8cm");
///     box.add(L"Measured at 20 degrees.");
///     slide.add(box);
class VELLOX_API TextBox : public BaseTextBox {
public:
    TextBox();
    explicit TextBox(const std::wstring& name);

    /// The node as a TextBox, or an empty pointer.
    static boost::shared_ptr<TextBox> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit TextBox(TextBoxImpl* impl);
};

} // namespace vellox::ppt

#endif
