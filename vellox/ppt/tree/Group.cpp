#include "vellox/ppt/tree/Group.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/GroupImpl.h"

namespace vellox::ppt {

GroupImpl::GroupImpl() {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const std::wstring& name) : NodeOf(name) {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const std::wstring& name, const Record& record) : NodeOf(name, record) {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const GroupImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

GroupImpl::~GroupImpl() {
    announceDestroyed(*this);
}

Group::Group() : Group(new GroupImpl) {}
Group::Group(const std::wstring& name) : Group(new GroupImpl(name)) {}
Group::Group(GroupImpl* impl) : Shape(impl) {}

} // namespace vellox::ppt
