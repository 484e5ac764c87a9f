/// @file
/// The state behind TextBox. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTBOXIMPL_H
#define VELLOX_PPT_TREE_TEXTBOXIMPL_H

#include "vellox/ppt/tree/BaseTextBoxImpl.h"

namespace vellox::ppt {

class TextBoxImpl : public BaseTextBoxImpl {
public:
    TextBoxImpl();
    explicit TextBoxImpl(const std::wstring& name);
    TextBoxImpl(const std::wstring& name, const Record& record);
    TextBoxImpl(const TextBoxImpl& other);
    ~TextBoxImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;
};

} // namespace vellox::ppt

#endif
