#include "vellox/ppt/writers/PictureWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/SvgDrawing.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/writers/ExternalLinkWriter.h"
#include "vellox/ppt/writers/GroupSpace.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ShapeMakers.h"
#include "vellox/ppt/writers/SvgPictures.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

PictureWriter::PictureWriter(const PictureImpl& picture, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(picture, writer, parentNode),
      picture_(picture) {}

void PictureWriter::write() {
    SlideDocument* slide = getCurrentSlide();
    DOMElement* former = getSlideElement();
    if (!slide || picture_.getImage().isEmpty())
        return keep(former);
    readImage();
    const std::wstring id = isDrawn_ ? std::wstring() : addImage();
    if (!former) {
        const ShapeGeometry geometry = sizeFree();
        const PictureElements made = makeFreePicture(*slide, id, picture_.getWrittenName(), geometry);
        if (const auto placement = fitFree(geometry))
            writePlacement(made, *placement, orientation_);
        writeSvg(made);
        return dress(made.pic);
    }
    const GroupSpace space(*former);
    facts_.cx = facts_.cx ? space.toWidth(*facts_.cx) : facts_.cx;
    facts_.cy = facts_.cy ? space.toHeight(*facts_.cy) : facts_.cy;
    const std::optional<PicturePlacement> placement = fitInPlace();
    DOMNode* parent = former->getParentNode();
    const PictureElements made =
        makePictureInPlace(*slide, id, former, placement ? placement->box : std::optional<Box>());
    if (placement)
        writePlacement(made, *placement, orientation_);
    writeSvg(made);
    if (parent)
        parent->replaceChild(made.pic, former);
    dropDescription(made.pic);
    dress(made.pic);
}

// A picture of the template that nobody gave another image stays.
void PictureWriter::keep(DOMElement* former) {
    if (getShapeType() != NodeType::Picture)
        return getWriter().report(ppt_finding::pictureWithoutFile());
    if (former)
        dress(former);
}

void PictureWriter::dress(DOMElement* shape) const {
    writeAltText(shape);
    writeLink(shape);
}

std::wstring PictureWriter::addImage() const {
    const ImageSource& image = picture_.getImage();
    const bool isShared = image.getBytes() || getRules().sharesImages();
    const std::wstring id = getPartWriter().addImage(getCurrentSlidePartName(), image, isShared);
    if (id.empty() && getRules().missingFile() == Missing::Refused)
        refuseMissing();
    if (id.empty())
        getWriter().report(ppt_finding::unreadablePicture(picture_.getPath()));
    else if (!getPartWriter().leadsToImage(getCurrentSlidePartName(), id))
        reportUnknownType();
    return id;
}

// Its own size isn't known before it is read.
void PictureWriter::readSvg() {
    constexpr double kPerInch = 96;
    try {
        const SvgSize size = getWriter().getSvgPictures().findSize(picture_.getImage());
        facts_.pixelWidth = size.width;
        facts_.pixelHeight = size.height;
        facts_.perInchX = facts_.perInchY = kPerInch;
    } catch (const SvgFault& fault) {
        refuseSvg(fault.what());
    }
}

void PictureWriter::writeSvg(const PictureElements& made) {
    if (!isDrawn_)
        return;
    constexpr double kEmuPerPixel = 9525;
    const std::wstring cx = getAttribute(made.ext, xml::kCx), cy = getAttribute(made.ext, xml::kCy);
    const bool hasBox = !cx.empty() && !cy.empty();
    SvgPictures::Ids ids;
    try {
        ids = getWriter().getSvgPictures().add(
            getCurrentSlidePartName(), picture_.getImage(),
            hasBox ? SvgSize{str2double(cx), str2double(cy)}
                   : SvgSize{facts_.pixelWidth * kEmuPerPixel, facts_.pixelHeight * kEmuPerPixel});
    } catch (const SvgFault& fault) {
        refuseSvg(fault.what());
    }
    setAttribute(made.blip, xml::kREmbed, ids.drawing);
    DOMElement* extension = appendElement(appendElement(made.blip, xml::kAExtLst), u"a:ext");
    extension->setAttribute(u"uri", u"{96DAC541-7B7A-43D3-8B79-37D633B846F1}");
    DOMElement* blip = appendElement(extension, u"asvg:svgBlip");
    blip->setAttribute(u"xmlns:asvg", u"http://schemas.microsoft.com/office/drawing/2016/SVG/main");
    setAttribute(blip, xml::kREmbed, ids.svg);
}

void PictureWriter::readImage() {
    const ImageInfo info = picture_.getImage().getInfo();
    facts_ = {info.getWidth(), info.getHeight(), {}, {}};
    if (getRules().readsTraits()) {
        const ImageTraits traits = picture_.getImage().getTraits();
        orientation_ = traits.orientation;
        facts_.perInchX = traits.perInchX;
        facts_.perInchY = traits.perInchY;
    }
    isDrawn_ = getRules().drawsSvg() && isSvg(picture_.getImage()) && picture_.getImage().open();
    if (isDrawn_)
        readSvg();
    if (liesOnSide(orientation_)) {
        std::swap(facts_.pixelWidth, facts_.pixelHeight);
        std::swap(facts_.perInchX, facts_.perInchY);
    }
    const ShapeGeometry& geometry = picture_.getGeometry();
    if (geometry.cx.isSet())
        facts_.cx = geometry.cx.get().getEMUNumber();
    if (geometry.cy.isSet())
        facts_.cy = geometry.cy.get().getEMUNumber();
    facts_.isWidthOfFile = geometry.cx.isFromFile();
    facts_.isHeightOfFile = geometry.cy.isFromFile();
}

ShapeGeometry PictureWriter::sizeFree() const {
    const PictureFacts sized = getRules().sizeFree(facts_);
    ShapeGeometry geometry = picture_.getGeometry();
    const auto take = [](Extent& extent, const std::optional<double>& given,
                         const std::optional<double>& found) {
        if (found && found != given)
            extent.setFromFile(
                Dimension(num2str(truncateToInt(*found)) + Dimension::dim2str(Dimension::emus)));
    };
    take(geometry.cx, facts_.cx, sized.cx);
    take(geometry.cy, facts_.cy, sized.cy);
    return geometry;
}

// A size that somebody has set in both directions is a box. Nothing is said of a picture that fills its own size.
std::optional<PicturePlacement> PictureWriter::fitFree(const ShapeGeometry& geometry) const {
    const Box box = readBox(geometry);
    const bool hasBox = facts_.cx && facts_.cy && !facts_.isWidthOfFile && !facts_.isHeightOfFile;
    if (hasBox && picture_.getWishes().fit.isSet()) {
        PictureFacts facts = facts_;
        facts.cx.reset();
        facts.cy.reset();
        return fitInBox(box, facts);
    }
    return orientation_ == 1 ? std::optional<PicturePlacement>() : PicturePlacement{box, {}};
}

std::optional<PicturePlacement> PictureWriter::fitInPlace() const {
    const Place& place = getTemplateShape()->successorPlace;
    if (place)
        return fitInBox(readBox(*place), facts_);
    const std::optional<Box> box = getRules().fit(facts_, nullptr);
    return box ? PicturePlacement{*box, {}} : std::optional<PicturePlacement>();
}

PicturePlacement PictureWriter::fitInBox(const Box& box, const PictureFacts& facts) const {
    const PictureImpl::Wishes& wishes = picture_.getWishes();
    const Fit fit = wishes.fit.isSet() ? requireFit(wishes.fit.get()).fit : Fit::Contain;
    const FitPosition& position = requireFitPosition(wishes.fitPosition.isSet() ? wishes.fitPosition.get()
                                                                                : std::wstring(kMiddleOfBox));
    if (fit != Fit::Contain) {
        const bool hasDensity = facts.perInchX > 0 && facts.perInchY > 0;
        const double width = hasDensity ? facts.pixelWidth / facts.perInchX : facts.pixelWidth;
        const double height = hasDensity ? facts.pixelHeight / facts.perInchY : facts.pixelHeight;
        return fitInto(box, width, height, fit, position);
    }
    const Box fitted = getRules().fit(facts, &box).value_or(box);
    return {wishes.fitPosition.isSet() ? moveInto(box, fitted, position) : fitted, {}};
}

void PictureWriter::writeLink(DOMElement* shape) const {
    const BaseAttribute<std::wstring>& link = picture_.getWishes().link;
    const SlideTarget& slide = picture_.getWishes().slide;
    DOMElement* properties = findChild(findNonVisual(*shape), xml::kCNvPr);
    if ((!link.isSet() && !slide.isSet()) || !properties)
        return;
    const std::wstring id = addLink(*this, link.isSet() ? link.get() : std::wstring(), slide);
    if (!id.empty() || slide.isSet()) // one to a slide that is gone isn't that of the template again
        removeChildElements(properties, xml::kAHlinkClick);
    if (id.empty())
        return;
    DOMElement* click = createElement(xml::kAHlinkClick);
    setAttribute(click, xml::kRId, id);
    if (slide.isSet())
        click->setAttribute(u"action", kSlideJump);
    properties->insertBefore(click, properties->getFirstChild());
}

// Nothing has been saved yet: the output is as it was.
void PictureWriter::refuseMissing() const {
    const std::wstring name = picture_.getName();
    raise(ppt_error::missingPictureFile(std::to_wstring(getWriter().getCurrentSlideNumber()),
                                        name.empty() ? L"a shape without a name" : name, picture_.getPath()));
}

void PictureWriter::refuseSvg(const std::string& reason) const {
    const std::wstring slide = std::to_wstring(getWriter().getCurrentSlideNumber());
    const std::wstring file = picture_.getImage().getFileName();
    if (!canDrawSvg())
        raise(ppt_error::svgNeedsRenderer(slide, picture_.getName(), file));
    raise(ppt_error::invalidSvg(slide, picture_.getName(), file, fromUtf8(reason)));
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
