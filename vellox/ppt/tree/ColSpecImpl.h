/// @file
/// The state behind ColSpec. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_COLSPECIMPL_H
#define VELLOX_PPT_TREE_COLSPECIMPL_H

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt {

/// Everything about a column is a format in its style. Nothing writes it: a table's entries find its formats.
class ColSpecImpl : public ElementImpl {
public:
    ColSpecImpl();
    ColSpecImpl(const ColSpecImpl& other);
    ~ColSpecImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
};

} // namespace vellox::ppt

#endif
