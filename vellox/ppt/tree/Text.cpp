#include "vellox/ppt/tree/Text.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TextImpl.h"

#include <limits>

namespace vellox::ppt {

// TextImpl

TextImpl::TextImpl() {
    announceCreated(*this);
}

TextImpl::TextImpl(const std::wstring& text) : textContent_(text) {
    announceCreated(*this);
}

TextImpl::TextImpl(const Given& given) {
    setGiven(given);
    announceCreated(*this);
}

TextImpl::TextImpl(const HvContentPtr& content) {
    setContent(content);
    announceCreated(*this);
}

TextImpl::TextImpl(const TextImpl& other)
    : NodeOf(other),
      textContent_(other.textContent_),
      given_(other.given_) {
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
        setGiven(BooleanContent::getValue(content));
        break;
    case HvContent::Integer:
        setGiven(static_cast<long long>(IntegerContent::getValue(content)));
        break;
    case HvContent::Double:
        setGiven(DoubleContent::getValue(content));
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

void TextImpl::setTextContent(const std::wstring& text) {
    textContent_ = text;
    given_ = {};
}

namespace {

struct ToDouble {
    const std::wstring& text;

    double operator()(std::monostate) const { return str2double(text); }
    template <class Number> double operator()(Number number) const { return static_cast<double>(number); }
};

} // namespace

double TextImpl::getNumContent() const {
    return std::visit(ToDouble{textContent_}, given_);
}

void TextImpl::setGiven(const Given& given) {
    given_ = given;
    textContent_ = isNumContent() ? num2str(getNumContent()) : std::wstring();
}

// Text

Text::Text() : Text(new TextImpl) {}
Text::Text(const std::wstring& text) : Text(new TextImpl(text)) {}
Text::Text(double number) : Text(new TextImpl(number)) {}
Text::Text(TextImpl* impl) : Element(impl) {}

TextImpl* Text::makeImpl(bool value) {
    return new TextImpl(value);
}

TextImpl* Text::makeImpl(long long number) {
    return new TextImpl(number);
}

TextImpl* Text::makeImpl(unsigned long long number) {
    const bool fits = number <= static_cast<unsigned long long>(std::numeric_limits<long long>::max());
    return fits ? makeImpl(static_cast<long long>(number)) : new TextImpl(static_cast<double>(number));
}

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
    pimpl()->setGiven(number);
}

bool Text::isNumContent() const {
    return pimpl()->isNumContent();
}

boost::shared_ptr<Text> Text::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Text>(node);
}

} // namespace vellox::ppt
