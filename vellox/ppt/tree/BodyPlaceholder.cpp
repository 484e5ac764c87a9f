#include "vellox/ppt/tree/BodyPlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/BodyPlaceholderImpl.h"

namespace vellox::ppt {

// BodyPlaceholderImpl

BodyPlaceholderImpl::BodyPlaceholderImpl() {
    announceCreated(*this);
}

BodyPlaceholderImpl::BodyPlaceholderImpl(const std::wstring& name, const Record& record,
                                         const std::wstring& placeholderType)
    : TextBoxPlaceholderImpl(name, record, placeholderType) {
    announceCreated(*this);
}

BodyPlaceholderImpl::BodyPlaceholderImpl(const BodyPlaceholderImpl& other) : TextBoxPlaceholderImpl(other) {
    announceCreated(*this);
}

BodyPlaceholderImpl::~BodyPlaceholderImpl() {
    announceDestroyed(*this);
}

const char* BodyPlaceholderImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.BodyPlaceholder";
}

PPTNodeImpl::Child BodyPlaceholderImpl::makeInterface() {
    return Child(new BodyPlaceholder(this));
}

PPTNodeImpl::Child BodyPlaceholderImpl::clone() const {
    return copyOf(*this);
}

NodeType BodyPlaceholderImpl::getNodeType() const {
    return NodeType::BodyPlaceholder;
}

bool BodyPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::BodyPlaceholder || TextBoxPlaceholderImpl::isA(type);
}

// BodyPlaceholder

BodyPlaceholder::BodyPlaceholder() : BodyPlaceholder(new BodyPlaceholderImpl) {}
BodyPlaceholder::BodyPlaceholder(BodyPlaceholderImpl* impl) : TextBoxPlaceholder(impl) {}

boost::shared_ptr<BodyPlaceholder> BodyPlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<BodyPlaceholder>(node);
}

} // namespace vellox::ppt
