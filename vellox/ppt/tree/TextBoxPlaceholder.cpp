#include "vellox/ppt/tree/TextBoxPlaceholder.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"

namespace vellox::ppt {

// TextBoxPlaceholderImpl

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl() {
    announceCreated(*this);
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(const std::wstring& name, const Record& record)
    : NodeOf(name, record) {
    announceCreated(*this);
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(const TextBoxPlaceholderImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

TextBoxPlaceholderImpl::~TextBoxPlaceholderImpl() {
    announceDestroyed(*this);
}

void TextBoxPlaceholderImpl::checkNotReplaced() const {
    if (!getParent())
        raise(ppt_error::placeholderWasReplacedByObject());
}

void TextBoxPlaceholderImpl::checkNotReplacedForReplace() const {
    checkNotReplaced();
}

void TextBoxPlaceholderImpl::checkNotReplacedForAdd() const {
    checkNotReplaced();
}

Paragraph TextBoxPlaceholderImpl::add(const Paragraph& paragraph) {
    checkNotReplacedForAdd();
    return BaseTextBoxImpl::add(paragraph);
}

Paragraph TextBoxPlaceholderImpl::add(const std::wstring& text) {
    checkNotReplacedForAdd();
    return BaseTextBoxImpl::add(text);
}

Paragraph TextBoxPlaceholderImpl::replace(const Paragraph& paragraph) {
    checkNotReplacedForReplace();
    return BaseTextBoxImpl::replace(paragraph);
}

Paragraph TextBoxPlaceholderImpl::replace(const std::wstring& text) {
    checkNotReplacedForReplace();
    return BaseTextBoxImpl::replace(text);
}

// TextBoxPlaceholder

TextBoxPlaceholder::TextBoxPlaceholder() : TextBoxPlaceholder(new TextBoxPlaceholderImpl) {}
TextBoxPlaceholder::TextBoxPlaceholder(TextBoxPlaceholderImpl* impl) : BaseTextBox(impl) {}

boost::shared_ptr<TextBoxPlaceholder> TextBoxPlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TextBoxPlaceholder>(node);
}

} // namespace vellox::ppt
