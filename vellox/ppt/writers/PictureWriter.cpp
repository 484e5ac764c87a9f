#include "vellox/ppt/writers/PictureWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/InfoUtils.h"
#include "vellox/ppt/engine/ShapeMakers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"

namespace vellox::ppt {

using namespace xercesc;

PictureWriter::PictureWriter(const PictureImpl& picture, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(picture, writer, parentNode),
      picture_(picture) {}

void PictureWriter::write() {
    TemplateSlide* slide = getCurrentSlide();
    DOMElement* former = getSlideElement();
    if (!slide || picture_.getPath().empty())
        return;
    const ImageInfo info = InfoUtils::getImageInfo(picture_.getPath());
    const PixelSize size{info.getWidth(), info.getHeight()};
    const std::wstring id = getPartWriter().addImage(getCurrentSlidePartName(), picture_.getPath());
    if (!id.empty() && wantsErrors() && !getPartWriter().leadsToImage(getCurrentSlidePartName(), id))
        reportUnknownType();
    const ShapeGeometry& geometry = picture_.getGeometry();
    if (!former) {
        makeFreePicture(*slide, id, geometry.shapeName, geometry);
        return;
    }
    DOMNode* parent = former->getParentNode();
    const PictureElements made =
        getShapeType() == NodeType::Picture
            ? makePictureForPicture(*slide, id, former, size, geometry)
            : makePictureForPlaceholder(*slide, id, former, getLayoutElement(), size, geometry);
    if (parent)
        parent->replaceChild(made.pic, former);
}

void PictureWriter::reportUnknownType() const {
    const ppt_warning::unknownImageType id(picture_.getPath());
    MessageDispatcher::getTheDispatcher().dispatch(
        ErrorMessage(id, *const_cast<PictureImpl&>(picture_).makeInterface()));
}

} // namespace vellox::ppt
