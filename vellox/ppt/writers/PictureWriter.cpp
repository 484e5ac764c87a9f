#include "vellox/ppt/writers/PictureWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/InfoUtils.h"
#include "vellox/ppt/engine/ShapeMakers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"

namespace vellox::ppt {

using namespace xercesc;

PictureWriter::PictureWriter(const PictureImpl& picture, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(picture, writer, parentNode),
      picture_(picture) {}

void PictureWriter::write() {
    TemplateSlide* slide = getCurrentSlide();
    DOMElement* former = getSlideElement();
    if (!slide || picture_.getPath().empty())
        return reportMissingPath();
    const ImageInfo info = InfoUtils::getImageInfo(picture_.getPath());
    const PixelSize size{info.getWidth(), info.getHeight()};
    const std::wstring id = getPartWriter().addImage(getCurrentSlidePartName(), picture_.getPath());
    if (id.empty())
        getWriter().report(ppt_finding::unreadablePicture(picture_.getPath()));
    else if (!getPartWriter().leadsToImage(getCurrentSlidePartName(), id))
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

// A picture of the template that nobody has touched has none either.
void PictureWriter::reportMissingPath() const {
    if (getShapeType() != NodeType::Picture)
        getWriter().report(ppt_finding::pictureWithoutFile());
}

void PictureWriter::reportUnknownType() const {
    getWriter().report(ppt_finding::unknownImageType(picture_.getPath()));
    if (!wantsErrors())
        return;
    const ppt_warning::unknownImageType id(picture_.getPath());
    MessageDispatcher::getTheDispatcher().dispatch(
        ErrorMessage(id, *const_cast<PictureImpl&>(picture_).makeInterface()));
}

} // namespace vellox::ppt
