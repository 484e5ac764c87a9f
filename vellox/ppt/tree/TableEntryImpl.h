/// @file
/// The state behind TableEntry. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEENTRYIMPL_H
#define VELLOX_PPT_TREE_TABLEENTRYIMPL_H

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/TableEntry.h"

namespace vellox::ppt {

class TableEntryImpl : public NodeOf<NodeType::TableEntry, TableEntryImpl, TableEntry, ElementImpl> {
public:
    TableEntryImpl();
    TableEntryImpl(const TableEntryImpl& other);
    ~TableEntryImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
};

} // namespace vellox::ppt

#endif
