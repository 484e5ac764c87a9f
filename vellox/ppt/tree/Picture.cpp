#include "vellox/ppt/tree/Picture.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/FitWords.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

namespace vellox::ppt {

// PictureImpl

PictureImpl::PictureImpl() {
    announceCreated(*this);
}

PictureImpl::PictureImpl(const std::wstring& name, const Record& record) : NodeOf(name, record) {
    announceCreated(*this);
}

namespace {

// What a former picture had from its file is a size to keep: it isn't that of the new one's file.
void takeExtent(Extent& extent, const Extent& given) {
    if (given.isSet())
        extent = given;
    else
        extent.adopt();
}

} // namespace

PictureImpl::PictureImpl(const ShapeImpl& former, TakeName takeName, const PictureImpl& picture)
    : NodeOf(former, takeName),
      image_(picture.image_),
      fileSize_(picture.fileSize_),
      wishes_(picture.wishes_) {
    takeExtent(geometry().cx, picture.getGeometry().cx);
    takeExtent(geometry().cy, picture.getGeometry().cy);
    announceCreated(*this);
}

PictureImpl::PictureImpl(const PictureImpl& other)
    : NodeOf(other),
      image_(other.image_),
      fileSize_(other.fileSize_),
      wishes_(other.wishes_) {
    announceCreated(*this);
}

PictureImpl::~PictureImpl() {
    announceDestroyed(*this);
}

void PictureImpl::setImage(const ImageSource& image) {
    fileSize_ = image.getInfo();
    image_ = image;
    geometry().cx.setFromFile(Dimension(num2str(fileSize_.getWidth())));
    geometry().cy.setFromFile(Dimension(num2str(fileSize_.getHeight())));
}

void PictureImpl::checkReplaceable() const {
    if (!getParent())
        raise(ppt_error::pictureCannotBeReplaced());
}

Picture PictureImpl::replace(const Picture& picture) {
    checkReplaceable();
    return giveWayTo<PictureImpl>(picture, TakeName::Always);
}

// Picture

Picture::Picture() : Picture(new PictureImpl) {}
Picture::Picture(const std::wstring& path) : Picture(new PictureImpl) {
    pimpl()->setPath(path);
}
Picture::Picture(const std::vector<unsigned char>& image) : Picture(new PictureImpl) {
    pimpl()->setImage(ImageSource(std::string(image.begin(), image.end())));
}
Picture::Picture(PictureImpl* impl) : Shape(impl) {}

PictureImpl* Picture::pimpl() {
    return implOf<PictureImpl>(*this);
}

const PictureImpl* Picture::pimpl() const {
    return implOf<PictureImpl>(*this);
}

const std::wstring& Picture::getPath() const {
    return pimpl()->getPath();
}

void Picture::setPath(const std::wstring& path) {
    pimpl()->setPath(path);
}

const BaseAttribute<std::wstring>& Picture::getFit() const {
    return pimpl()->getWishes().fit;
}

void Picture::setFit(const std::wstring& fit) {
    pimpl()->wishes().fit.set(requireFit(fit).word);
}

void Picture::unsetFit() {
    pimpl()->wishes().fit.unset();
}

const BaseAttribute<std::wstring>& Picture::getFitPosition() const {
    return pimpl()->getWishes().fitPosition;
}

void Picture::setFitPosition(const std::wstring& position) {
    pimpl()->wishes().fitPosition.set(requireFitPosition(position).word);
}

void Picture::unsetFitPosition() {
    pimpl()->wishes().fitPosition.unset();
}

const BaseAttribute<std::wstring>& Picture::getLink() const {
    return pimpl()->getWishes().link;
}

void Picture::setLink(const std::wstring& target) {
    pimpl()->wishes().link.set(target);
    pimpl()->wishes().slide.unset();
}

void Picture::setLink(const Slide& target) {
    pimpl()->wishes().link.unset();
    pimpl()->wishes().slide.set(implOf<SlideImpl>(target)->getTemplateSlide());
}

void Picture::unsetLink() {
    pimpl()->wishes().link.unset();
    pimpl()->wishes().slide.unset();
}

Picture Picture::replace(const Picture& picture) {
    return pimpl()->replace(picture);
}

boost::shared_ptr<Picture> Picture::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Picture>(node);
}

} // namespace vellox::ppt
