#include "vellox/ppt/tree/TableEntry.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TableEntryImpl.h"

namespace vellox::ppt {

// TableEntryImpl

TableEntryImpl::TableEntryImpl() {
    announceCreated(*this);
}

TableEntryImpl::TableEntryImpl(const TableEntryImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

TableEntryImpl::~TableEntryImpl() {
    announceDestroyed(*this);
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

boost::shared_ptr<TableEntry> TableEntry::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TableEntry>(node);
}

} // namespace vellox::ppt
