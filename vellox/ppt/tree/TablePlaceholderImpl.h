/// @file
/// The state behind TablePlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_TABLEPLACEHOLDERIMPL_H

#include "vellox/ppt/tree/BodyPlaceholderImpl.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class TablePlaceholderImpl : public BodyPlaceholderImpl {
public:
    using BodyPlaceholderImpl::replace;

    TablePlaceholderImpl();
    TablePlaceholderImpl(const std::wstring& name, const Record& record, const std::wstring& placeholderType);
    TablePlaceholderImpl(const TablePlaceholderImpl& other);
    ~TablePlaceholderImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;
    void replace(const HvContentPtr& content) override;
    Table replace(const Table& table);
};

} // namespace vellox::ppt

#endif
