/// @file
/// The state behind TablePlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_TABLEPLACEHOLDERIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BodyPlaceholderImpl.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TablePlaceholder.h"

namespace vellox::ppt {

class TablePlaceholderImpl
    : public NodeOf<NodeType::TablePlaceholder, TablePlaceholderImpl, TablePlaceholder, BodyPlaceholderImpl> {
public:
    using BodyPlaceholderImpl::replace;

    TablePlaceholderImpl();
    TablePlaceholderImpl(const std::wstring& name, const Record& record);
    TablePlaceholderImpl(const TablePlaceholderImpl& other);
    ~TablePlaceholderImpl() override;

    void replace(const HvContentPtr& content) override;
    Table replace(const Table& table);
};

} // namespace vellox::ppt

#endif
