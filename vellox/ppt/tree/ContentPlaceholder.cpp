#include "vellox/ppt/tree/ContentPlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ContentPlaceholderImpl.h"
#include "vellox/ppt/tree/TableImpl.h"

namespace vellox::ppt {

// ContentPlaceholderImpl

ContentPlaceholderImpl::ContentPlaceholderImpl() {
    announceCreated(*this);
}

ContentPlaceholderImpl::ContentPlaceholderImpl(const std::wstring& name, const Record& record)
    : NodeOf(name, record) {
    announceCreated(*this);
}

ContentPlaceholderImpl::ContentPlaceholderImpl(const ContentPlaceholderImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

ContentPlaceholderImpl::~ContentPlaceholderImpl() {
    announceDestroyed(*this);
}

void ContentPlaceholderImpl::replace(const HvContentPtr& content) {
    checkNotReplacedForReplace();
    if (auto* table = getObjectImpl<TableImpl>(content))
        replace(static_cast<const Table&>(*table->makeInterface()));
    else
        PicturePlaceholderImpl::replace(content);
}

Table ContentPlaceholderImpl::replace(const Table& table) {
    checkNotReplacedForReplace();
    return giveWayTo<TableImpl>(table, TakeName::IfSet);
}

// ContentPlaceholder

ContentPlaceholder::ContentPlaceholder() : ContentPlaceholder(new ContentPlaceholderImpl) {}
ContentPlaceholder::ContentPlaceholder(ContentPlaceholderImpl* impl) : PicturePlaceholder(impl) {}

ContentPlaceholderImpl* ContentPlaceholder::pimpl() {
    return implOf<ContentPlaceholderImpl>(*this);
}

const ContentPlaceholderImpl* ContentPlaceholder::pimpl() const {
    return implOf<ContentPlaceholderImpl>(*this);
}

Table ContentPlaceholder::replace(const Table& table) {
    return pimpl()->replace(table);
}

boost::shared_ptr<ContentPlaceholder> ContentPlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<ContentPlaceholder>(node);
}

} // namespace vellox::ppt
