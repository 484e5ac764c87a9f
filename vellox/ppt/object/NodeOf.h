/// @file
/// What the state behind a node has because of its class. Internal.

#ifndef VELLOX_PPT_OBJECT_NODEOF_H
#define VELLOX_PPT_OBJECT_NODEOF_H

#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

namespace vellox::ppt {

/// Stands between the state behind a facade and the state that it builds on:
///
///     class GroupImpl : public NodeOf<NodeType::Group, GroupImpl, Group, ShapeImpl> { ...
///
/// Each level of a class has one, so that an object which is announced level by level is of that level's class then.
template <NodeType kType, class Impl, class Facade, class Base> class NodeOf : public Base {
public:
    using Level = Impl;
    static constexpr NodeType kLevel = kType;

    using Base::Base;

    const char* getFullyQualifiedHostTypeName() const override { return getNodeKind(kType).hostName; }
    PPTNodeImpl::Child makeInterface() override {
        return ObjectAccess::makeFacade<Facade>(static_cast<Impl*>(this));
    }
    PPTNodeImpl::Child clone() const override { return Base::copyOf(static_cast<const Impl&>(*this)); }
    NodeType getNodeType() const override { return kType; }
    void* findLevel(NodeType type) override {
        return type == kType ? static_cast<Impl*>(this) : Base::findLevel(type);
    }
};

} // namespace vellox::ppt

#endif
