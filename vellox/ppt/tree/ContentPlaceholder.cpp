#include "vellox/ppt/tree/ContentPlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ContentPlaceholderImpl.h"
#include "vellox/ppt/tree/TableImpl.h"

namespace vellox::ppt {

// ContentPlaceholderImpl

ContentPlaceholderImpl::ContentPlaceholderImpl() {
    announceCreated(*this);
}

ContentPlaceholderImpl::ContentPlaceholderImpl(const std::wstring& name, const Record& record,
                                               const std::wstring& placeholderType)
    : PicturePlaceholderImpl(name, record, placeholderType) {
    announceCreated(*this);
}

ContentPlaceholderImpl::ContentPlaceholderImpl(const ContentPlaceholderImpl& other)
    : PicturePlaceholderImpl(other) {
    announceCreated(*this);
}

ContentPlaceholderImpl::~ContentPlaceholderImpl() {
    announceDestroyed(*this);
}

const char* ContentPlaceholderImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.ContentPlaceholder";
}

PPTNodeImpl::Child ContentPlaceholderImpl::makeInterface() {
    return Child(new ContentPlaceholder(this));
}

PPTNodeImpl::Child ContentPlaceholderImpl::clone() const {
    return copyOf(*this);
}

NodeType ContentPlaceholderImpl::getNodeType() const {
    return NodeType::ContentPlaceholder;
}

bool ContentPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::ContentPlaceholder || PicturePlaceholderImpl::isA(type);
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
