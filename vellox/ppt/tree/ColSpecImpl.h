/// @file
/// The state behind ColSpec. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_COLSPECIMPL_H
#define VELLOX_PPT_TREE_COLSPECIMPL_H

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/ColSpec.h"

namespace vellox::ppt {

/// Everything about a column is a format in its style. Nothing writes it: a table's entries find its formats.
class ColSpecImpl : public NodeOf<NodeType::ColSpec, ColSpecImpl, ColSpec, ElementImpl> {
public:
    ColSpecImpl();
    ColSpecImpl(const ColSpecImpl& other);
    ~ColSpecImpl() override;
};

} // namespace vellox::ppt

#endif
