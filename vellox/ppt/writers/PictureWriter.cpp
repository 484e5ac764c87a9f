#include "vellox/ppt/writers/PictureWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/InfoUtils.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ShapeMakers.h"

namespace vellox::ppt {

using namespace xercesc;

PictureWriter::PictureWriter(const PictureImpl& picture, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(picture, writer, parentNode),
      picture_(picture) {}

void PictureWriter::write() {
    SlideDocument* slide = getCurrentSlide();
    DOMElement* former = getSlideElement();
    if (!slide || picture_.getPath().empty())
        return reportMissingPath();
    const ImageInfo info = InfoUtils::getImageInfo(picture_.getPath());
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
        makePictureInPlace(*slide, id, former, fit({info.getWidth(), info.getHeight(), {}, {}}));
    if (parent)
        parent->replaceChild(made.pic, former);
}

// A picture of the template that nobody has touched has none either.
void PictureWriter::reportMissingPath() const {
    if (getShapeType() != NodeType::Picture)
        getWriter().report(ppt_finding::pictureWithoutFile());
}

std::optional<Box> PictureWriter::fit(PictureFacts facts) const {
    const ShapeGeometry& geometry = picture_.getGeometry();
    if (geometry.cx.isSet())
        facts.cx = geometry.cx.get().getEMUNumber();
    if (geometry.cy.isSet())
        facts.cy = geometry.cy.get().getEMUNumber();
    const Rules& rules = getModel().getRules();
    const Place& place = getTemplateShape()->successorPlace;
    if (!place)
        return rules.fit(facts, nullptr);
    const Box box = readBox(*place);
    return rules.fit(facts, &box);
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
