/// @file
/// The state behind ContentPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_CONTENTPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_CONTENTPLACEHOLDERIMPL_H

#include "vellox/ppt/tree/PicturePlaceholderImpl.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class ContentPlaceholderImpl : public PicturePlaceholderImpl {
public:
    using PicturePlaceholderImpl::replace;

    ContentPlaceholderImpl();
    ContentPlaceholderImpl(const std::wstring& name, const Record& record,
                           const std::wstring& placeholderType);
    ContentPlaceholderImpl(const ContentPlaceholderImpl& other);
    ~ContentPlaceholderImpl() override;

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
