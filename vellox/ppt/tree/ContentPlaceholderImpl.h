/// @file
/// The state behind ContentPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_CONTENTPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_CONTENTPLACEHOLDERIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/PicturePlaceholderImpl.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class ContentPlaceholderImpl : public NodeOf<NodeType::ContentPlaceholder, ContentPlaceholderImpl,
                                             ContentPlaceholder, PicturePlaceholderImpl> {
public:
    using PicturePlaceholderImpl::replace;

    ContentPlaceholderImpl();
    ContentPlaceholderImpl(const std::wstring& name, const Record& record);
    ContentPlaceholderImpl(const ContentPlaceholderImpl& other);
    ~ContentPlaceholderImpl() override;

    void replace(const HvContentPtr& content) override;
    Table replace(const Table& table);
};

} // namespace vellox::ppt

#endif
