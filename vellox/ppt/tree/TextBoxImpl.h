/// @file
/// The state behind TextBox. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTBOXIMPL_H
#define VELLOX_PPT_TREE_TEXTBOXIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/TextBox.h"

namespace vellox::ppt {

class TextBoxImpl : public NodeOf<NodeType::TextBox, TextBoxImpl, TextBox, BaseTextBoxImpl> {
public:
    TextBoxImpl();
    explicit TextBoxImpl(const std::wstring& name);
    TextBoxImpl(const std::wstring& name, const Record& record);
    TextBoxImpl(const TextBoxImpl& other);
    ~TextBoxImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
};

} // namespace vellox::ppt

#endif
