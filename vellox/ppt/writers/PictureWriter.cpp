#include "vellox/ppt/writers/PictureWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/InfoUtils.h"
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
    const PictureFacts facts = readFacts();
    const std::wstring id = getPartWriter().addImage(getCurrentSlidePartName(), picture_.getPath());
    if (id.empty() && getRules().missingFile() == Missing::Refused)
        refuseMissing();
    if (id.empty())
        getWriter().report(ppt_finding::unreadablePicture(picture_.getPath()));
    else if (!getPartWriter().leadsToImage(getCurrentSlidePartName(), id))
        reportUnknownType();
    if (!former) {
        makeFreePicture(*slide, id, picture_.getGeometry().shapeName, sizeFree(facts));
        return;
    }
    DOMNode* parent = former->getParentNode();
    const PictureElements made = makePictureInPlace(*slide, id, former, fit(facts));
    if (parent)
        parent->replaceChild(made.pic, former);
}

// A picture of the template that nobody has touched has none either.
void PictureWriter::reportMissingPath() const {
    if (getShapeType() != NodeType::Picture)
        getWriter().report(ppt_finding::pictureWithoutFile());
}

PictureFacts PictureWriter::readFacts() const {
    const ImageInfo info = InfoUtils::getImageInfo(picture_.getPath());
    PictureFacts facts{info.getWidth(), info.getHeight(), {}, {}};
    const ShapeGeometry& geometry = picture_.getGeometry();
    if (geometry.cx.isSet())
        facts.cx = geometry.cx.get().getEMUNumber();
    if (geometry.cy.isSet())
        facts.cy = geometry.cy.get().getEMUNumber();
    facts.isWidthOfFile = geometry.cx.isFromFile();
    facts.isHeightOfFile = geometry.cy.isFromFile();
    return facts;
}

ShapeGeometry PictureWriter::sizeFree(const PictureFacts& facts) const {
    const PictureFacts sized = getRules().sizeFree(facts);
    ShapeGeometry geometry = picture_.getGeometry();
    const auto take = [](Extent& extent, const std::optional<double>& given,
                         const std::optional<double>& found) {
        if (found && found != given)
            extent.setFromFile(
                Dimension(num2str(truncateToInt(*found)) + Dimension::dim2str(Dimension::emus)));
    };
    take(geometry.cx, facts.cx, sized.cx);
    take(geometry.cy, facts.cy, sized.cy);
    return geometry;
}

std::optional<Box> PictureWriter::fit(const PictureFacts& facts) const {
    const Place& place = getTemplateShape()->successorPlace;
    if (!place)
        return getRules().fit(facts, nullptr);
    const Box box = readBox(*place);
    return getRules().fit(facts, &box);
}

// Nothing has been saved yet: the output is as it was.
void PictureWriter::refuseMissing() const {
    raise(ppt_error::missingPictureFile(std::to_wstring(getWriter().getCurrentSlideNumber()),
                                        picture_.getName(), picture_.getPath()));
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
