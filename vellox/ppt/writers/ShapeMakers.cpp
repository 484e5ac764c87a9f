#include "vellox/ppt/writers/ShapeMakers.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/writers/GroupSpace.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr Box kFreeTableBox{0, 0, 3234567, 3234567};
constexpr Box kFreeShapeBox{0, 0, 1234567, 1234567};

std::wstring toCoordinate(double emu) {
    return num2str(truncateToInt(emu));
}

std::wstring toExtent(double emu) {
    return num2str(std::max(0, truncateToInt(emu)));
}

// The box with what the geometry sets in the place of its own values.
Box overlay(Box box, const ShapeGeometry& geometry) {
    const auto take = [](double& value, const BaseAttribute<Dimension>& length) {
        if (length.isSet())
            value = length.get().getEMUNumber();
    };
    take(box.x, geometry.x);
    take(box.y, geometry.y);
    take(box.cx, geometry.cx);
    take(box.cy, geometry.cy);
    return box;
}

// Skeletons

GraphicFrameElements makeFrameSkeleton(SlideDocument& slide) {
    GraphicFrameElements made;
    made.frame = slide.createElement(xml::kGraphicFrame);
    made.nvGraphicFramePr = appendElement(made.frame, xml::kNvGraphicFramePr);
    made.cNvGraphicFramePr = appendElement(made.nvGraphicFramePr, xml::kCNvGraphicFramePr);
    made.graphicFrameLocks = appendElement(made.cNvGraphicFramePr, xml::kAGraphicFrameLocks);
    made.graphicFrameLocks->setAttribute(xml::kNoGrp, xml::kTrue);
    made.graphic = appendElement(made.frame, xml::kAGraphic);
    made.graphicData = appendElement(made.graphic, xml::kAGraphicData);
    made.graphicData->setAttribute(xml::kUri, xml::kTableUri);
    made.tbl = appendElement(made.graphicData, xml::kATbl);
    made.tblGrid = appendElement(made.tbl, xml::kATblGrid);
    return made;
}

PictureElements makePictureSkeleton(SlideDocument& slide, const std::wstring& relationshipId) {
    PictureElements made;
    made.pic = slide.createElement(xml::kPic);
    made.nvPicPr = appendElement(made.pic, xml::kNvPicPr);
    made.cNvPicPr = appendElement(made.nvPicPr, xml::kCNvPicPr);
    made.picLocks = appendElement(made.cNvPicPr, xml::kAPicLocks);
    made.picLocks->setAttribute(xml::kNoGrp, xml::kTrue);
    made.picLocks->setAttribute(xml::kNoChangeAspect, xml::kTrue);
    made.blipFill = appendElement(made.pic, xml::kBlipFill);
    made.blip = appendElement(made.blipFill, xml::kABlip);
    setAttribute(made.blip, xml::kREmbed, relationshipId);
    made.stretch = appendElement(made.blipFill, xml::kAStretch);
    appendElement(made.stretch, xml::kAFillRect);
    made.spPr = appendElement(made.pic, xml::kSpPr);
    return made;
}

ShapeElements makeTextBoxSkeleton(SlideDocument& slide) {
    ShapeElements made;
    made.sp = slide.createElement(xml::kSp);
    made.nvSpPr = appendElement(made.sp, xml::kNvSpPr);
    made.cNvSpPr = appendElement(made.nvSpPr, xml::kCNvSpPr);
    made.spPr = appendElement(made.sp, xml::kSpPr);
    made.txBody = appendElement(made.sp, xml::kTxBody);
    made.bodyPr = appendElement(made.txBody, xml::kABodyPr);
    made.lstStyle = appendElement(made.txBody, xml::kALstStyle);
    return made;
}

void makeXfrm(PictureElements& made, const Box& box) {
    made.xfrm = appendElement(made.spPr, xml::kAXfrm);
    made.off = appendElement(made.xfrm, xml::kAOff);
    made.ext = appendElement(made.xfrm, xml::kAExt);
    writeBox(made.off, made.ext, box);
}

void makeRectangle(PictureElements& made) {
    made.prstGeom = appendElement(made.spPr, xml::kAPrstGeom);
    made.prstGeom->setAttribute(xml::kPrst, xml::kRect);
}

void makeXfrm(SlideDocument& slide, const GraphicFrameElements& made, const Box& box) {
    DOMElement* xfrm = slide.createElement(xml::kXfrm);
    made.frame->insertBefore(xfrm, made.graphic);
    DOMElement* off = appendElement(xfrm, xml::kAOff);
    DOMElement* ext = appendElement(xfrm, xml::kAExt);
    writeBox(off, ext, box);
}

void makeGrid(const GraphicFrameElements& made, double cx, unsigned int columns) {
    for (unsigned int i = 0; i < columns; ++i)
        setAttribute(appendElement(made.tblGrid, xml::kAGridCol), xml::kW, toExtent(cx / columns));
}

// Identity

DOMElement* makeIdAndName(SlideDocument& slide, const BaseAttribute<std::wstring>& name) {
    DOMElement* properties = slide.createElement(xml::kCNvPr);
    setAttribute(properties, xml::kId, num2str(slide.takeShapeId()));
    setAttribute(properties, xml::kName, name.isSet() ? name.get() : uuid_gen());
    return properties;
}

DOMElement* giveIdentity(SlideDocument& slide, DOMElement* nonVisual,
                         const BaseAttribute<std::wstring>& name) {
    DOMElement* properties = makeIdAndName(slide, name);
    nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    appendElement(nonVisual, xml::kNvPr);
    return properties;
}

void takeIdentity(SlideDocument& slide, DOMElement* nonVisual, const DOMElement* former) {
    const DOMElement* source = findNonVisual(*former);
    DOMElement* properties = findChild(source, xml::kCNvPr);
    DOMElement* application = findChild(source, xml::kNvPr);
    if (!properties)
        properties = makeIdAndName(slide, BaseAttribute<std::wstring>());
    nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    nonVisual->appendChild(application ? application : slide.createElement(xml::kNvPr));
}

} // namespace

// Free shapes

GraphicFrameElements makeFreeTable(SlideDocument& slide, const BaseAttribute<std::wstring>& name,
                                   const ShapeGeometry& geometry, unsigned int columns) {
    const GraphicFrameElements made = makeFrameSkeleton(slide);
    giveIdentity(slide, made.nvGraphicFramePr, name);
    const Box box = overlay(kFreeTableBox, geometry);
    makeXfrm(slide, made, box);
    makeGrid(made, box.cx, columns);
    slide.appendShape(made.frame);
    return made;
}

PictureElements makeFreePicture(SlideDocument& slide, const std::wstring& relationshipId,
                                const BaseAttribute<std::wstring>& name, const ShapeGeometry& geometry) {
    PictureElements made = makePictureSkeleton(slide, relationshipId);
    giveIdentity(slide, made.nvPicPr, name);
    makeXfrm(made, overlay(kFreeShapeBox, geometry));
    makeRectangle(made);
    slide.appendShape(made.pic);
    return made;
}

ShapeElements makeFreeTextBox(SlideDocument& slide, const BaseAttribute<std::wstring>& name,
                              const ShapeGeometry& geometry) {
    ShapeElements made = makeTextBoxSkeleton(slide);
    made.cNvPr = giveIdentity(slide, made.nvSpPr, name);
    setTextBoxPlacement(made, geometry, true);
    appendElement(made.spPr, xml::kAPrstGeom)->setAttribute(xml::kPrst, xml::kRect);
    slide.appendShape(made.sp);
    return made;
}

// Shapes that take over from an element

Box readBox(const PlaceText& place) {
    return {str2double(place.x), str2double(place.y), str2double(place.cx), str2double(place.cy)};
}

Box readBox(const ShapeGeometry& geometry) {
    return overlay(kFreeShapeBox, geometry);
}

void writeBox(DOMElement* off, DOMElement* ext, const Box& box) {
    setAttribute(off, xml::kX, toCoordinate(box.x));
    setAttribute(off, xml::kY, toCoordinate(box.y));
    setAttribute(ext, xml::kCx, toExtent(box.cx));
    setAttribute(ext, xml::kCy, toExtent(box.cy));
}

GraphicFrameElements makeTableInPlace(SlideDocument& slide, DOMElement* former, const PlaceText* place,
                                      unsigned int columns) {
    const GraphicFrameElements made = makeFrameSkeleton(slide);
    takeIdentity(slide, made.nvGraphicFramePr, former);
    const Box box = place ? readBox(*place) : kFreeTableBox;
    makeXfrm(slide, made, box);
    makeGrid(made, box.cx, columns);
    return made;
}

PictureElements makePictureInPlace(SlideDocument& slide, const std::wstring& relationshipId,
                                   DOMElement* former, const std::optional<Box>& box) {
    PictureElements made = makePictureSkeleton(slide, relationshipId);
    takeIdentity(slide, made.nvPicPr, former);
    if (box)
        makeXfrm(made, *box);
    makeRectangle(made);
    return made;
}

// Existing shapes

ShapeElements readShapeElements(DOMElement* shape) {
    ShapeElements found;
    found.sp = shape;
    found.nvSpPr = findChild(shape, xml::kNvSpPr);
    found.spPr = findChild(shape, xml::kSpPr);
    found.xfrm = findChild(found.spPr, xml::kAXfrm);
    found.off = findChild(found.xfrm, xml::kAOff);
    found.ext = findChild(found.xfrm, xml::kAExt);
    found.txBody = findChild(shape, xml::kTxBody);
    return found;
}

GraphicFrameElements readGraphicFrame(DOMElement* frame) {
    GraphicFrameElements found;
    found.frame = frame;
    found.graphic = findChild(frame, xml::kAGraphic);
    found.graphicData = findChild(found.graphic, xml::kAGraphicData);
    found.tbl = findChild(found.graphicData, xml::kATbl);
    return found;
}

void setTextBoxPlacement(ShapeElements& elements, const ShapeGeometry& geometry, bool force) {
    if (!elements.spPr || (!force && !geometry.hasPlacement()))
        return;
    elements.xfrm = requireChild(elements.spPr, xml::kAXfrm);
    elements.off = requireChild(elements.xfrm, xml::kAOff);
    elements.ext = requireChild(elements.xfrm, xml::kAExt);
    writeBox(elements.off, elements.ext, overlay(kFreeShapeBox, geometry));
}

namespace {

void takeLength(BaseAttribute<Dimension>& length, const std::wstring& text) {
    if (!length.isSet() && !text.empty())
        length.set(Dimension(text + Dimension::dim2str(Dimension::emus)));
}

// Lengths are the slide's, wherever the shape stands.
ShapeGeometry toGroup(const ShapeGeometry& geometry, const GroupSpace& space) {
    ShapeGeometry inside = geometry;
    const auto convert = [&](BaseAttribute<Dimension>& length, double (GroupSpace::*to)(double) const) {
        if (length.isSet())
            length.set(Dimension(num2str(truncateToInt((space.*to)(length.get().getEMUNumber()))) +
                                 Dimension::dim2str(Dimension::emus)));
    };
    convert(inside.x, &GroupSpace::toX);
    convert(inside.y, &GroupSpace::toY);
    convert(inside.cx, &GroupSpace::toWidth);
    convert(inside.cy, &GroupSpace::toHeight);
    return inside;
}

} // namespace

void placeExistingTextShape(DOMElement* shape, const PlaceText* place, const ShapeGeometry& geometry) {
    if (!geometry.hasPlacement())
        return;
    ShapeElements elements = readShapeElements(shape);
    const GroupSpace space(*shape);
    ShapeGeometry merged = space.isSlide() ? geometry : toGroup(geometry, space);
    if (place) {
        takeLength(merged.x, place->x);
        takeLength(merged.y, place->y);
        takeLength(merged.cx, place->cx);
        takeLength(merged.cy, place->cy);
    }
    setTextBoxPlacement(elements, merged, false);
}

} // namespace vellox::ppt
