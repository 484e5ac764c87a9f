/// @file
/// The state behind TextBoxPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTBOXPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_TEXTBOXPLACEHOLDERIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/TextBoxPlaceholder.h"

namespace vellox::ppt {

class TextBoxPlaceholderImpl : public NodeOf<NodeType::TextBoxPlaceholder, TextBoxPlaceholderImpl,
                                             TextBoxPlaceholder, BaseTextBoxImpl> {
public:
    using BaseTextBoxImpl::add;
    using BaseTextBoxImpl::replace;

    TextBoxPlaceholderImpl();
    TextBoxPlaceholderImpl(const std::wstring& name, const Record& record);
    TextBoxPlaceholderImpl(const TextBoxPlaceholderImpl& other);
    ~TextBoxPlaceholderImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    Paragraph add(const Paragraph& paragraph) override;
    Paragraph add(const std::wstring& text) override;
    Paragraph replace(const Paragraph& paragraph) override;
    Paragraph replace(const std::wstring& text) override;
    /// @{ @throws placeholderWasReplacedByObject if this placeholder stands nowhere
    virtual void checkNotReplacedForReplace() const;
    virtual void checkNotReplacedForAdd() const;
    /// @}

private:
    void checkNotReplaced() const;
};

} // namespace vellox::ppt

#endif
