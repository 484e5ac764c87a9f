/// @file
/// The state behind TableRow. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEROWIMPL_H
#define VELLOX_PPT_TREE_TABLEROWIMPL_H

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt {

class TableRowImpl : public ElementImpl {
public:
    TableRowImpl();
    TableRowImpl(const TableRowImpl& other);
    ~TableRowImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;

    void append(const Child& entry);
};

} // namespace vellox::ppt

#endif
