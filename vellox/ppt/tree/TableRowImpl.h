/// @file
/// The state behind TableRow. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEROWIMPL_H
#define VELLOX_PPT_TREE_TABLEROWIMPL_H

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/TableRow.h"

namespace vellox::ppt {

class TableRowImpl : public NodeOf<NodeType::TableRow, TableRowImpl, TableRow, ElementImpl> {
public:
    TableRowImpl();
    TableRowImpl(const TableRowImpl& other);
    ~TableRowImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    void append(const Child& entry);
    BaseAttribute<Dimension>& height() { return height_; }
    const BaseAttribute<Dimension>& getHeight() const { return height_; }

private:
    BaseAttribute<Dimension> height_;
};

} // namespace vellox::ppt

#endif
