#include "vellox/ppt/tree/ColSpec.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ColSpecImpl.h"

namespace vellox::ppt {

// ColSpecImpl

ColSpecImpl::ColSpecImpl() {
    announceCreated(*this);
}

ColSpecImpl::ColSpecImpl(const ColSpecImpl& other) : ElementImpl(other) {
    announceCreated(*this);
}

ColSpecImpl::~ColSpecImpl() {
    announceDestroyed(*this);
}

const char* ColSpecImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.ColSpec";
}

PPTNodeImpl::Child ColSpecImpl::makeInterface() {
    return Child(new ColSpec(this));
}

PPTNodeImpl::Child ColSpecImpl::clone() const {
    return copyOf(*this);
}

NodeType ColSpecImpl::getNodeType() const {
    return NodeType::ColSpec;
}

// ColSpec

ColSpec::ColSpec() : ColSpec(new ColSpecImpl) {}
ColSpec::ColSpec(const std::wstring& width) : ColSpec() {
    setWidth(width);
}
ColSpec::ColSpec(ColSpecImpl* impl) : Element(impl) {}

boost::shared_ptr<ColSpec> ColSpec::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<ColSpec>(node);
}

} // namespace vellox::ppt
