#include "vellox/ppt/tree/Text.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

// TextImpl

TextImpl::TextImpl() {
    announceCreated(*this);
}

TextImpl::TextImpl(const std::wstring& text) : textContent_(text) {
    announceCreated(*this);
}

TextImpl::TextImpl(double number) {
    setNumContent(number);
    announceCreated(*this);
}

TextImpl::TextImpl(const HvContentPtr& content) {
    setContent(content);
    announceCreated(*this);
}

TextImpl::TextImpl(const TextImpl& other)
    : ElementImpl(other),
      textContent_(other.textContent_),
      numContent_(other.numContent_),
      isNum_(other.isNum_) {
    announceCreated(*this);
}

TextImpl::~TextImpl() {
    announceDestroyed(*this);
}

void TextImpl::setContent(const HvContentPtr& content) {
    if (!content)
        return;
    switch (content->getContentType()) {
    case HvContent::Boolean:
        setNumContent(BooleanContent::getValue(content) ? 1 : 0);
        break;
    case HvContent::Integer:
        setNumContent(IntegerContent::getValue(content));
        break;
    case HvContent::Double:
        setNumContent(DoubleContent::getValue(content));
        break;
    case HvContent::String:
        setTextContent(StringContent::getValue(content));
        break;
    case HvContent::Object:
    case HvContent::Unknown:
        if (const auto data = DataContent::getValue(content))
            setTextContent(data->getDispl());
        break;
    case HvContent::List:
    case HvContent::Table:
    case HvContent::Empty:
        break;
    }
}

const char* TextImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Text";
}

PPTNodeImpl::Child TextImpl::makeInterface() {
    return Child(new Text(this));
}

PPTNodeImpl::Child TextImpl::clone() const {
    return copyOf(*this);
}

NodeType TextImpl::getNodeType() const {
    return NodeType::Text;
}

void TextImpl::setTextContent(const std::wstring& text) {
    textContent_ = text;
    isNum_ = false;
}

double TextImpl::getNumContent() const {
    return isNum_ ? numContent_ : str2double(textContent_);
}

void TextImpl::setNumContent(double number) {
    numContent_ = number;
    textContent_ = num2str(number);
    isNum_ = true;
}

// Text

Text::Text() : Text(new TextImpl) {}
Text::Text(const std::wstring& text) : Text(new TextImpl(text)) {}
Text::Text(double number) : Text(new TextImpl(number)) {}
Text::Text(TextImpl* impl) : Element(impl) {}

TextImpl* Text::pimpl() {
    return implOf<TextImpl>(*this);
}

const TextImpl* Text::pimpl() const {
    return implOf<TextImpl>(*this);
}

const std::wstring& Text::getTextContent() const {
    return pimpl()->getTextContent();
}

void Text::setTextContent(const std::wstring& text) {
    pimpl()->setTextContent(text);
}

double Text::getNumContent() const {
    return pimpl()->getNumContent();
}

void Text::setNumContent(double number) {
    pimpl()->setNumContent(number);
}

bool Text::isNumContent() const {
    return pimpl()->isNumContent();
}

boost::shared_ptr<Text> Text::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Text>(node);
}

} // namespace vellox::ppt
