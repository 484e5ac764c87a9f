/// @file
/// The state behind BodyPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_BODYPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_BODYPLACEHOLDERIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BodyPlaceholder.h"
#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"

namespace vellox::ppt {

class BodyPlaceholderImpl
    : public NodeOf<NodeType::BodyPlaceholder, BodyPlaceholderImpl, BodyPlaceholder, TextBoxPlaceholderImpl> {
public:
    BodyPlaceholderImpl();
    BodyPlaceholderImpl(const std::wstring& name, const Record& record);
    BodyPlaceholderImpl(const BodyPlaceholderImpl& other);
    ~BodyPlaceholderImpl() override;
};

} // namespace vellox::ppt

#endif
