/// @file
/// Shapes that hold paragraphs.

#ifndef VELLOX_PPT_TREE_BASETEXTBOX_H
#define VELLOX_PPT_TREE_BASETEXTBOX_H

#include <string>

#include "vellox/ppt/formats/FormatProperties.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Shape.h"

namespace vellox::ppt {

class BaseTextBoxImpl;

/// The base of text boxes and placeholders. A handle: copies share one box.
class VELLOX_API BaseTextBox : public Shape,
                               public CharacterProperties<BaseTextBox>,
                               public ParagraphProperties<BaseTextBox>,
                               public BackgroundColorProperty<BaseTextBox>,
                               public VAlignProperty<BaseTextBox> {
public:
    BaseTextBox();
    explicit BaseTextBox(const std::wstring& name);

    /// Adds a new paragraph.
    /// @return a handle on it
    Paragraph add(const std::wstring& text);
    /// Adds this very paragraph, not a copy.
    /// @throws failedToAppendChild if the paragraph already has a parent
    Paragraph add(const Paragraph& paragraph);
    /// Adds the items of a list as paragraphs, see replace(); any other content is ignored.
    void add(const HvContentPtr& content);

    /// Makes a new paragraph the only one; what the template's shape held goes too.
    /// @return a handle on it
    Paragraph replace(const std::wstring& text);
    /// Makes this paragraph the only one, or a copy of it if it already has a parent.
    /// @return a handle on the paragraph that went in
    Paragraph replace(const Paragraph& paragraph);
    /// Makes the items of a list the paragraphs. Numbers and texts become paragraphs, a Paragraph goes in
    /// itself, or as a copy if it already has a parent. A list within the list is one level deeper: its items
    /// get level 2, those of a list in that level 3, and so on.
    /// @throws invalidReplaceArg for an empty pointer or for what is no list
    void replace(const HvContentPtr& content);

    /// @{ What becomes of a text that is longer than the box: "none", nothing; "shrink", letters and lines become smaller
    /// until it fits; "resize", the box becomes as high as the text; in upper or lower case. Unset it is as the template
    /// has it. Programs do it when somebody edits the text; with the profile "office" it is also estimated as the deck is
    /// written, so that all show it fitting: see Rules::measuresTexts().
    const BaseAttribute<std::wstring>& getAutofit() const;
    /// @throws invalidPropertyValue
    void setAutofit(const std::wstring& autofit);
    void unsetAutofit();
    /// @}

    /// What the shape shows: what the template has in it, as far as that stands, and what came since. "\n" ends
    /// paragraphs and lines. Prompts of placeholders, which no slide shows, are no text.
    std::wstring getText() const;

    /// The node as a BaseTextBox, or an empty pointer.
    static boost::shared_ptr<BaseTextBox> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit BaseTextBox(BaseTextBoxImpl* impl);
    BaseTextBoxImpl* pimpl();
    const BaseTextBoxImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
