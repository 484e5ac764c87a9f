#include "vellox/ppt/tree/BodyPlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/BodyPlaceholderImpl.h"

namespace vellox::ppt {

// BodyPlaceholderImpl

BodyPlaceholderImpl::BodyPlaceholderImpl() {
    announceCreated(*this);
}

BodyPlaceholderImpl::BodyPlaceholderImpl(const std::wstring& name, const Record& record)
    : NodeOf(name, record) {
    announceCreated(*this);
}

BodyPlaceholderImpl::BodyPlaceholderImpl(const BodyPlaceholderImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

BodyPlaceholderImpl::~BodyPlaceholderImpl() {
    announceDestroyed(*this);
}

// BodyPlaceholder

BodyPlaceholder::BodyPlaceholder() : BodyPlaceholder(new BodyPlaceholderImpl) {}
BodyPlaceholder::BodyPlaceholder(BodyPlaceholderImpl* impl) : TextBoxPlaceholder(impl) {}

boost::shared_ptr<BodyPlaceholder> BodyPlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<BodyPlaceholder>(node);
}

} // namespace vellox::ppt
