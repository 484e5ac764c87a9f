#include "vellox/ppt/tree/ColSpec.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ColSpecImpl.h"

namespace vellox::ppt {

// ColSpecImpl

ColSpecImpl::ColSpecImpl() {
    announceCreated(*this);
}

ColSpecImpl::ColSpecImpl(const ColSpecImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

ColSpecImpl::~ColSpecImpl() {
    announceDestroyed(*this);
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
