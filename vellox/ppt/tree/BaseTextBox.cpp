#include "vellox/ppt/tree/BaseTextBox.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/NodeText.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <vector>

namespace vellox::ppt {

// BaseTextBoxImpl

BaseTextBoxImpl::BaseTextBoxImpl() {
    announceCreated(*this);
}

BaseTextBoxImpl::BaseTextBoxImpl(const std::wstring& name) : NodeOf(name) {
    announceCreated(*this);
}

BaseTextBoxImpl::BaseTextBoxImpl(const std::wstring& name, const Record& record) : NodeOf(name, record) {
    announceCreated(*this);
}

BaseTextBoxImpl::BaseTextBoxImpl(const BaseTextBoxImpl& other) : NodeOf(other), autofit_(other.autofit_) {
    announceCreated(*this);
}

BaseTextBoxImpl::~BaseTextBoxImpl() {
    announceDestroyed(*this);
}

namespace {

using Child = PPTNodeImpl::Child;

Paragraph toParagraph(const Child& node) {
    return static_cast<const Paragraph&>(*node);
}

Child freeOrClone(const Child& node) {
    return implOf<PPTNodeImpl>(*node)->getParent() ? node->clone() : node;
}

// A list whose items are being taken.
struct OpenList {
    boost::shared_ptr<HvList> list;
    unsigned int level; // 1 at the top
    unsigned int next = 0;
};

// Turns the items of a list into paragraph nodes, in order, and those of the lists in it, which stand one
// level deeper, however deep that is.
void collectParagraphs(PPTNodeImpl::Children& target, const boost::shared_ptr<HvList>& list) {
    if (!list)
        raise(ppt_error::invalidReplaceArg());
    std::vector<OpenList> open{{list, 1}};
    while (!open.empty()) {
        OpenList& current = open.back();
        if (current.next >= current.list->getSize()) {
            open.pop_back();
            continue;
        }
        const HvContentPtr item = current.list->getItem(current.next++);
        const unsigned int level = current.level;
        if (const auto sublist = ListContent::cast(item)) {
            open.push_back({sublist->getValue(), level + 1});
            continue;
        }
        const Child node = freeOrClone(contentToParagraph(item));
        if (level > 1)
            implOf<ParagraphImpl>(*node)->setLevel(level);
        target.push_back(node);
    }
}

} // namespace

void BaseTextBoxImpl::addList(const boost::shared_ptr<HvList>& list) {
    collectParagraphs(children(), list);
}

void BaseTextBoxImpl::add(const HvContentPtr& content) {
    if (const auto list = ListContent::cast(content))
        addList(list->getValue());
    else
        report(ppt_finding::listExpected(), *this);
}

Paragraph BaseTextBoxImpl::add(const Paragraph& paragraph) {
    appendChild(paragraph.makeInterface());
    return paragraph;
}

Paragraph BaseTextBoxImpl::add(const std::wstring& text) {
    return add(Paragraph(text));
}

void BaseTextBoxImpl::replaceList(const boost::shared_ptr<HvList>& list) {
    Children paragraphs;
    collectParagraphs(paragraphs, list);
    setChildren(paragraphs);
}

void BaseTextBoxImpl::replace(const HvContentPtr& content) {
    const auto list = ListContent::cast(content);
    if (!list)
        raise(ppt_error::invalidReplaceArg());
    markContentReplaced();
    replaceList(list->getValue());
}

Paragraph BaseTextBoxImpl::replace(const Paragraph& paragraph) {
    markContentReplaced();
    const Child node = freeOrClone(paragraph.makeInterface());
    setChildren({node});
    return toParagraph(node);
}

Paragraph BaseTextBoxImpl::replace(const std::wstring& text) {
    markContentReplaced();
    const Paragraph paragraph(text);
    setChildren({paragraph.makeInterface()});
    return paragraph;
}

std::wstring BaseTextBoxImpl::getText() const {
    const auto source = isContentReplaced() ? nullptr : findSource(*this);
    const xercesc::DOMElement* element = source ? source->find(getTemplateUid()) : nullptr;
    return joinTexts(readBody(findChild(element, xml::kTxBody)), readParagraphs(*this));
}

void BaseTextBoxImpl::setAutofit(const std::wstring& value) {
    const std::wstring word = toLowerString(value);
    constexpr const wchar_t* kWords[] = {autofit::kNone, autofit::kShrink, autofit::kResize};
    if (std::find(std::begin(kWords), std::end(kWords), word) == std::end(kWords))
        raise(ppt_error::invalidPropertyValue(value));
    autofit_.require().set(word);
}

// BaseTextBox

BaseTextBox::BaseTextBox() : BaseTextBox(new BaseTextBoxImpl) {}
BaseTextBox::BaseTextBox(const std::wstring& name) : BaseTextBox(new BaseTextBoxImpl(name)) {}
BaseTextBox::BaseTextBox(BaseTextBoxImpl* impl) : Shape(impl) {}

BaseTextBoxImpl* BaseTextBox::pimpl() {
    return implOf<BaseTextBoxImpl>(*this);
}

const BaseTextBoxImpl* BaseTextBox::pimpl() const {
    return implOf<BaseTextBoxImpl>(*this);
}

Paragraph BaseTextBox::add(const std::wstring& text) {
    return heldImplOf<BaseTextBoxImpl>(*this)->add(text);
}

Paragraph BaseTextBox::add(const Paragraph& paragraph) {
    return heldImplOf<BaseTextBoxImpl>(*this)->add(paragraph);
}

void BaseTextBox::add(const HvContentPtr& content) {
    heldImplOf<BaseTextBoxImpl>(*this)->add(content);
}

Paragraph BaseTextBox::replace(const std::wstring& text) {
    return heldImplOf<BaseTextBoxImpl>(*this)->replace(text);
}

Paragraph BaseTextBox::replace(const Paragraph& paragraph) {
    return heldImplOf<BaseTextBoxImpl>(*this)->replace(paragraph);
}

void BaseTextBox::replace(const HvContentPtr& content) {
    heldImplOf<BaseTextBoxImpl>(*this)->replace(content);
}

const BaseAttribute<std::wstring>& BaseTextBox::getAutofit() const {
    return implOf<BaseTextBoxImpl>(*this)->requireAutofit();
}

void BaseTextBox::setAutofit(const std::wstring& autofit) {
    pimpl()->setAutofit(autofit);
}

void BaseTextBox::unsetAutofit() {
    pimpl()->unsetAutofit();
}

std::wstring BaseTextBox::getText() const {
    return pimpl()->getText();
}

boost::shared_ptr<BaseTextBox> BaseTextBox::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<BaseTextBox>(node);
}

} // namespace vellox::ppt
