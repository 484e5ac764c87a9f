#include "vellox/ppt/tree/Group.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/GroupImpl.h"

namespace vellox::ppt {

GroupImpl::GroupImpl() {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const std::wstring& name) : ShapeImpl(name) {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const std::wstring& name, const Record& record) : ShapeImpl(name, record) {
    announceCreated(*this);
}

GroupImpl::GroupImpl(const GroupImpl& other) : ShapeImpl(other) {
    announceCreated(*this);
}

GroupImpl::~GroupImpl() {
    announceDestroyed(*this);
}

const char* GroupImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Group";
}

PPTNodeImpl::Child GroupImpl::makeInterface() {
    return Child(new Group(this));
}

PPTNodeImpl::Child GroupImpl::clone() const {
    return copyOf(*this);
}

NodeType GroupImpl::getNodeType() const {
    return NodeType::Group;
}

Group::Group() : Group(new GroupImpl) {}
Group::Group(const std::wstring& name) : Group(new GroupImpl(name)) {}
Group::Group(GroupImpl* impl) : Shape(impl) {}

} // namespace vellox::ppt
