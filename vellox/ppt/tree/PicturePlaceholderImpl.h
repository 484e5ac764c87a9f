/// @file
/// The state behind PicturePlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_PICTUREPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_PICTUREPLACEHOLDERIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BodyPlaceholderImpl.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/PicturePlaceholder.h"

namespace vellox::ppt {

class PicturePlaceholderImpl : public NodeOf<NodeType::PicturePlaceholder, PicturePlaceholderImpl,
                                             PicturePlaceholder, BodyPlaceholderImpl> {
public:
    using BodyPlaceholderImpl::replace;

    PicturePlaceholderImpl();
    PicturePlaceholderImpl(const std::wstring& name, const Record& record);
    PicturePlaceholderImpl(const PicturePlaceholderImpl& other);
    ~PicturePlaceholderImpl() override;

    void replace(const HvContentPtr& content) override;
    Picture replace(const Picture& picture);
};

} // namespace vellox::ppt

#endif
