#include "vellox/ppt/tree/TablePlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TablePlaceholderImpl.h"

namespace vellox::ppt {

// TablePlaceholderImpl

TablePlaceholderImpl::TablePlaceholderImpl() {
    announceCreated(*this);
}

TablePlaceholderImpl::TablePlaceholderImpl(const std::wstring& name, const Record& record)
    : NodeOf(name, record) {
    announceCreated(*this);
}

TablePlaceholderImpl::TablePlaceholderImpl(const TablePlaceholderImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

TablePlaceholderImpl::~TablePlaceholderImpl() {
    announceDestroyed(*this);
}

void TablePlaceholderImpl::replace(const HvContentPtr& content) {
    checkNotReplacedForReplace();
    if (auto* table = getObjectImpl<TableImpl>(content))
        replace(static_cast<const Table&>(*table->makeInterface()));
    else
        BodyPlaceholderImpl::replace(content);
}

Table TablePlaceholderImpl::replace(const Table& table) {
    checkNotReplacedForReplace();
    return giveWayTo<TableImpl>(table, TakeName::IfSet);
}

// TablePlaceholder

TablePlaceholder::TablePlaceholder() : TablePlaceholder(new TablePlaceholderImpl) {}
TablePlaceholder::TablePlaceholder(TablePlaceholderImpl* impl) : BodyPlaceholder(impl) {}

TablePlaceholderImpl* TablePlaceholder::pimpl() {
    return implOf<TablePlaceholderImpl>(*this);
}

const TablePlaceholderImpl* TablePlaceholder::pimpl() const {
    return implOf<TablePlaceholderImpl>(*this);
}

Table TablePlaceholder::replace(const Table& table) {
    return pimpl()->replace(table);
}

boost::shared_ptr<TablePlaceholder> TablePlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<TablePlaceholder>(node);
}

} // namespace vellox::ppt
