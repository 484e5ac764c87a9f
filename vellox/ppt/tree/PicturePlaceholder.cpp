#include "vellox/ppt/tree/PicturePlaceholder.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/PicturePlaceholderImpl.h"

namespace vellox::ppt {

// PicturePlaceholderImpl

PicturePlaceholderImpl::PicturePlaceholderImpl() {
    announceCreated(*this);
}

PicturePlaceholderImpl::PicturePlaceholderImpl(const std::wstring& name, const Record& record)
    : NodeOf(name, record) {
    announceCreated(*this);
}

PicturePlaceholderImpl::PicturePlaceholderImpl(const PicturePlaceholderImpl& other) : NodeOf(other) {
    announceCreated(*this);
}

PicturePlaceholderImpl::~PicturePlaceholderImpl() {
    announceDestroyed(*this);
}

void PicturePlaceholderImpl::replace(const HvContentPtr& content) {
    checkNotReplacedForReplace();
    if (auto* picture = getObjectImpl<PictureImpl>(content))
        replace(static_cast<const Picture&>(*picture->makeInterface()));
    else
        BodyPlaceholderImpl::replace(content);
}

Picture PicturePlaceholderImpl::replace(const Picture& picture) {
    checkNotReplacedForReplace();
    return giveWayTo<PictureImpl>(picture, TakeName::IfSet);
}

// PicturePlaceholder

PicturePlaceholder::PicturePlaceholder() : PicturePlaceholder(new PicturePlaceholderImpl) {}
PicturePlaceholder::PicturePlaceholder(PicturePlaceholderImpl* impl) : BodyPlaceholder(impl) {}

PicturePlaceholderImpl* PicturePlaceholder::pimpl() {
    return implOf<PicturePlaceholderImpl>(*this);
}

const PicturePlaceholderImpl* PicturePlaceholder::pimpl() const {
    return implOf<PicturePlaceholderImpl>(*this);
}

Picture PicturePlaceholder::replace(const Picture& picture) {
    return pimpl()->replace(picture);
}

boost::shared_ptr<PicturePlaceholder> PicturePlaceholder::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<PicturePlaceholder>(node);
}

} // namespace vellox::ppt
