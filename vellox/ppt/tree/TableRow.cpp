#include "vellox/ppt/tree/TableRow.h"

#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TableEntry.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TableRowImpl.h"

namespace vellox::ppt {

// TableRowImpl

TableRowImpl::TableRowImpl() {
    announceCreated(*this);
}

TableRowImpl::TableRowImpl(const TableRowImpl& other) : NodeOf(other), height_(other.height_) {
    announceCreated(*this);
}

TableRowImpl::~TableRowImpl() {
    announceDestroyed(*this);
}

void TableRowImpl::append(const Child& entry) {
    appendChild(entry);
    if (auto* table = dynamic_cast<TableImpl*>(getParent()))
        table->growTo(getChildren().size());
}

// TableRow

TableRow::TableRow() : TableRow(new TableRowImpl) {}
TableRow::TableRow(TableRowImpl* impl) : Element(impl) {}

TableRowImpl* TableRow::pimpl() {
    return implOf<TableRowImpl>(*this);
}

const TableRowImpl* TableRow::pimpl() const {
    return implOf<TableRowImpl>(*this);
}

const BaseAttribute<Dimension>& TableRow::getHeight() const {
    return pimpl()->getHeight();
}

void TableRow::setHeight(const std::wstring& length) {
    pimpl()->height().set(requireExtent(length, length));
}

void TableRow::unsetHeight() {
    pimpl()->height().unset();
}

TableEntry TableRow::append(const TableEntry& entry) {
    pimpl()->append(entry.makeInterface());
    return entry;
}

boost::shared_ptr<TableRow> TableRow::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TableRow>(node);
}

} // namespace vellox::ppt
