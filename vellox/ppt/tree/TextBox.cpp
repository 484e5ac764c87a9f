#include "vellox/ppt/tree/TextBox.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TextBoxImpl.h"

namespace vellox::ppt {

TextBoxImpl::TextBoxImpl() {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const std::wstring& name) : NodeOf(name) {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const std::wstring& name, const Record& record) : NodeOf(name, record) {
    announceCreated(*this);
}

TextBoxImpl::TextBoxImpl(const TextBoxImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

TextBoxImpl::~TextBoxImpl() {
    announceDestroyed(*this);
}

TextBox::TextBox() : TextBox(new TextBoxImpl) {}
TextBox::TextBox(const std::wstring& name) : TextBox(new TextBoxImpl(name)) {}
TextBox::TextBox(TextBoxImpl* impl) : BaseTextBox(impl) {}

boost::shared_ptr<TextBox> TextBox::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TextBox>(node);
}

} // namespace vellox::ppt
