/// @file
/// The state behind TextBoxPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTBOXPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_TEXTBOXPLACEHOLDERIMPL_H

#include "vellox/ppt/tree/BaseTextBoxImpl.h"

namespace vellox::ppt {

class TextBoxPlaceholderImpl : public BaseTextBoxImpl {
public:
    using BaseTextBoxImpl::add;
    using BaseTextBoxImpl::replace;

    TextBoxPlaceholderImpl();
    TextBoxPlaceholderImpl(const std::wstring& name, const Record& record,
                           const std::wstring& placeholderType);
    TextBoxPlaceholderImpl(const TextBoxPlaceholderImpl& other);
    ~TextBoxPlaceholderImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

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

    std::wstring placeholderType_;
};

} // namespace vellox::ppt

#endif
