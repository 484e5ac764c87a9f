/// @file
/// The state behind Group. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_GROUPIMPL_H
#define VELLOX_PPT_TREE_GROUPIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/Group.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

class GroupImpl : public NodeOf<NodeType::Group, GroupImpl, Group, ShapeImpl> {
public:
    GroupImpl();
    explicit GroupImpl(const std::wstring& name);
    GroupImpl(const std::wstring& name, const Record& record);
    GroupImpl(const GroupImpl& other);
    ~GroupImpl() override;
};

} // namespace vellox::ppt

#endif
