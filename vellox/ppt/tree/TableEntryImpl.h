/// @file
/// The state behind TableEntry. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEENTRYIMPL_H
#define VELLOX_PPT_TREE_TABLEENTRYIMPL_H

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt {

class TableEntryImpl : public ElementImpl {
public:
    TableEntryImpl();
    TableEntryImpl(const TableEntryImpl& other);
    ~TableEntryImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
};

} // namespace vellox::ppt

#endif
