#include "vellox/ppt/tree/TextBox.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TextBoxImpl.h"

namespace vellox::ppt {

TextBoxImpl::TextBoxImpl() {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const std::wstring& name) : BaseTextBoxImpl(name) {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const std::wstring& name, const Record& record) : BaseTextBoxImpl(name, record) {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const TextBoxImpl& other) : BaseTextBoxImpl(other) {
    announceCreated(*this);
}

TextBoxImpl::~TextBoxImpl() {
    announceDestroyed(*this);
}

const char* TextBoxImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.TextBox";
}

PPTNodeImpl::Child TextBoxImpl::makeInterface() {
    return Child(new TextBox(this));
}

PPTNodeImpl::Child TextBoxImpl::clone() const {
    return copyOf(*this);
}

NodeType TextBoxImpl::getNodeType() const {
    return NodeType::TextBox;
}

bool TextBoxImpl::isA(NodeType type) const {
    return type == NodeType::TextBox || BaseTextBoxImpl::isA(type);
}

TextBox::TextBox() : TextBox(new TextBoxImpl) {}
TextBox::TextBox(const std::wstring& name) : TextBox(new TextBoxImpl(name)) {}
TextBox::TextBox(TextBoxImpl* impl) : BaseTextBox(impl) {}

boost::shared_ptr<TextBox> TextBox::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TextBox>(node);
}

} // namespace vellox::ppt
