#include "vellox/ppt/tree/TableEntry.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/NodeText.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

// TableEntryImpl

TableEntryImpl::TableEntryImpl() {
    announceCreated(*this);
}

TableEntryImpl::TableEntryImpl(const TableEntryImpl& other) : NodeOf(other), given_(other.given_) {
    announceCreated(*this);
}

TableEntryImpl::~TableEntryImpl() {
    announceDestroyed(*this);
}

void TableEntryImpl::setTemplateCell(const boost::shared_ptr<const SlideSource>& source,
                                     const xercesc::DOMElement& cell) {
    given_.require().source = source;
    given_.require().cell = &cell;
}

std::wstring TableEntryImpl::getText() const {
    const Given& given = given_.get();
    const std::wstring text = given.newText ? *given.newText : readBody(findChild(given.cell, xml::kATxBody));
    return joinTexts(text, readParagraphs(*this));
}

void TableEntryImpl::setText(const std::wstring& text) {
    const bool isGiven = given_.get().source != nullptr;
    if (isGiven)
        given_.require().newText = text;
    setChildren(isGiven ? Children() : Children{Paragraph(text).makeInterface()});
}

// TableEntry

TableEntry::TableEntry() : TableEntry(new TableEntryImpl) {}
TableEntry::TableEntry(const std::wstring& text) : TableEntry() {
    append(text);
}
TableEntry::TableEntry(const Paragraph& paragraph) : TableEntry() {
    append(paragraph);
}
TableEntry::TableEntry(TableEntryImpl* impl) : Element(impl) {}

TableEntryImpl* TableEntry::pimpl() {
    return implOf<TableEntryImpl>(*this);
}

const TableEntryImpl* TableEntry::pimpl() const {
    return implOf<TableEntryImpl>(*this);
}

Paragraph TableEntry::append(const std::wstring& text) {
    return append(Paragraph(text));
}

Paragraph TableEntry::append(const Paragraph& paragraph) {
    pimpl()->appendChild(paragraph.makeInterface());
    return paragraph;
}

std::wstring TableEntry::getText() const {
    return pimpl()->getText();
}

void TableEntry::setText(const std::wstring& text) {
    heldImplOf<TableEntryImpl>(*this)->setText(text);
}

boost::shared_ptr<TableEntry> TableEntry::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TableEntry>(node);
}

} // namespace vellox::ppt
