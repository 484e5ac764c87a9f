#include "vellox/ppt/tree/Paragraph.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

// ParagraphImpl

ParagraphImpl::ParagraphImpl() {
    announceCreated(*this);
}

ParagraphImpl::ParagraphImpl(const BaseAttribute<unsigned int>& level) : level_(level) {
    announceCreated(*this);
}

ParagraphImpl::ParagraphImpl(const ParagraphImpl& other)
    : NodeOf(other),
      level_(other.level_),
      truthValue_(other.truthValue_) {
    announceCreated(*this);
}

ParagraphImpl::~ParagraphImpl() {
    announceDestroyed(*this);
}

// Content to paragraphs

PPTNodeImpl::Child makeParagraph() {
    return (new ParagraphImpl)->makeInterface();
}

PPTNodeImpl::Child makeParagraph(const HvContentPtr& content) {
    const PPTNodeImpl::Child paragraph = makeParagraph();
    implOf<ParagraphImpl>(*paragraph)->appendChild((new TextImpl(content))->makeInterface());
    return paragraph;
}

PPTNodeImpl::Child makeParagraphOfTruth(bool value) {
    const PPTNodeImpl::Child paragraph = makeParagraph();
    implOf<ParagraphImpl>(*paragraph)->setTruthValue(value);
    return paragraph;
}

PPTNodeImpl::Child getParagraphObject(const HvContentPtr& content) {
    const auto object = ObjectContent::getValue(content);
    const auto handle = object ? object->getProxy() : boost::shared_ptr<PPTObject>();
    auto* paragraph = handle ? implAs<ParagraphImpl>(*handle) : nullptr;
    return paragraph ? paragraph->makeInterface() : PPTNodeImpl::Child();
}

PPTNodeImpl::Child contentToParagraph(const HvContentPtr& content) {
    if (!content)
        return makeParagraph();
    switch (content->getContentType()) {
    case HvContent::Integer:
    case HvContent::Double:
    case HvContent::String:
    case HvContent::Unknown:
        return makeParagraph(content);
    case HvContent::Object:
        if (const PPTNodeImpl::Child paragraph = getParagraphObject(content))
            return paragraph;
        return makeParagraph(content);
    case HvContent::Boolean: // a run can show one, a list item doesn't
        return makeParagraphOfTruth(BooleanContent::getValue(content));
    case HvContent::List:
    case HvContent::Table:
    case HvContent::Empty:
        break;
    }
    return makeParagraph();
}

// Paragraph

Paragraph::Paragraph() : Paragraph(new ParagraphImpl) {}
Paragraph::Paragraph(unsigned int level) : Paragraph(new ParagraphImpl(BaseAttribute<unsigned int>(level))) {}
Paragraph::Paragraph(const std::wstring& text) : Paragraph() {
    append(text);
}
Paragraph::Paragraph(const std::wstring& text, unsigned int level) : Paragraph(level) {
    append(text);
}
Paragraph::Paragraph(double number) : Paragraph() {
    append(Text(number));
}
Paragraph::Paragraph(int number) : Paragraph() {
    append(Text(number));
}
Paragraph::Paragraph(double number, unsigned int level) : Paragraph(level) {
    append(Text(number));
}
Paragraph::Paragraph(const Text& text) : Paragraph() {
    append(text);
}
Paragraph::Paragraph(const Text& text, unsigned int level) : Paragraph(level) {
    append(text);
}
Paragraph::Paragraph(ParagraphImpl* impl) : Element(impl) {}

ParagraphImpl* Paragraph::pimpl() {
    return implOf<ParagraphImpl>(*this);
}

const ParagraphImpl* Paragraph::pimpl() const {
    return implOf<ParagraphImpl>(*this);
}

Text Paragraph::append(const std::wstring& text) {
    return append(Text(text));
}

Text Paragraph::append(const Text& text) {
    pimpl()->appendChild(text.makeInterface());
    return text;
}

ExternalLink Paragraph::append(const ExternalLink& link) {
    pimpl()->appendChild(link.makeInterface());
    return link;
}

const BaseAttribute<unsigned int>& Paragraph::getLevel() const {
    return pimpl()->getLevel();
}

void Paragraph::setLevel(unsigned int level) {
    pimpl()->setLevel(level);
}

void Paragraph::unsetLevel() {
    pimpl()->unsetLevel();
}

boost::shared_ptr<Paragraph> Paragraph::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Paragraph>(node);
}

} // namespace vellox::ppt
