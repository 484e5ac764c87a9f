#include "vellox/ppt/engine/ShapeMakers.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

/// Position and size in EMU; fractions until they are written.
struct Box {
    double x, y, cx, cy;
};

constexpr Box kFreeTableBox{0, 0, 3234567, 3234567};
constexpr Box kFreeShapeBox{0, 0, 1234567, 1234567};
constexpr double kEmuPerPixel = 9525;

DOMElement* createElement(TemplateSlide& slide, const XMLCh* name) {
    return slide.document->createElement(name);
}

std::wstring toCoordinate(double emu) {
    return num2str(truncateToInt(emu));
}

std::wstring toExtent(double emu) {
    return num2str(std::max(0, truncateToInt(emu)));
}

void writeBox(DOMElement* off, DOMElement* ext, const Box& box) {
    setAttribute(off, xml::kX, toCoordinate(box.x));
    setAttribute(off, xml::kY, toCoordinate(box.y));
    setAttribute(ext, xml::kCx, toExtent(box.cx));
    setAttribute(ext, xml::kCy, toExtent(box.cy));
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

GraphicFrameElements makeFrameSkeleton(TemplateSlide& slide) {
    GraphicFrameElements made;
    made.frame = createElement(slide, xml::kGraphicFrame);
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

PictureElements makePictureSkeleton(TemplateSlide& slide, const std::wstring& relationshipId) {
    PictureElements made;
    made.pic = createElement(slide, xml::kPic);
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

ShapeElements makeTextBoxSkeleton(TemplateSlide& slide) {
    ShapeElements made;
    made.sp = createElement(slide, xml::kSp);
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

void makeXfrm(TemplateSlide& slide, const GraphicFrameElements& made, const Box& box) {
    DOMElement* xfrm = createElement(slide, xml::kXfrm);
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

DOMElement* makeIdAndName(TemplateSlide& slide, const BaseAttribute<std::wstring>& name) {
    DOMElement* properties = createElement(slide, xml::kCNvPr);
    setAttribute(properties, xml::kId, num2str(++slide.nextShapeId));
    setAttribute(properties, xml::kName, name.isSet() ? name.get() : uuid_gen());
    return properties;
}

DOMElement* giveIdentity(TemplateSlide& slide, DOMElement* nonVisual,
                         const BaseAttribute<std::wstring>& name) {
    DOMElement* properties = makeIdAndName(slide, name);
    nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    appendElement(nonVisual, xml::kNvPr);
    return properties;
}

void takeIdentity(TemplateSlide& slide, DOMElement* nonVisual, const DOMElement* former,
                  const XMLCh* formerNonVisual) {
    const DOMElement* source = findChild(former, formerNonVisual);
    DOMElement* properties = findChild(source, xml::kCNvPr);
    DOMElement* application = findChild(source, xml::kNvPr);
    if (!properties)
        properties = makeIdAndName(slide, BaseAttribute<std::wstring>());
    nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    nonVisual->appendChild(application ? application : createElement(slide, xml::kNvPr));
}

void appendToShapeTree(TemplateSlide& slide, DOMElement* shape) {
    DOMElement* tree = findDescendant(slide.document->getDocumentElement(), {xml::kCSld, xml::kSpTree});
    if (tree)
        tree->appendChild(shape);
}

// Positions

struct Place {
    DOMElement* off = nullptr;
    DOMElement* ext = nullptr;

    explicit operator bool() const { return off && ext; }
};

Place readPlace(const DOMElement* xfrm) {
    return {findChild(xfrm, xml::kAOff), findChild(xfrm, xml::kAExt)};
}

Place readShapePlace(const DOMElement* shape) {
    return readPlace(findDescendant(shape, {xml::kSpPr, xml::kAXfrm}));
}

Box readBox(const Place& place) {
    return {str2double(getAttribute(place.off, xml::kX)), str2double(getAttribute(place.off, xml::kY)),
            str2double(getAttribute(place.ext, xml::kCx)), str2double(getAttribute(place.ext, xml::kCy))};
}

// The shape of the slide master that has the same id, which is what a layout's shape without a place of its
// own inherits from.
Place readMasterPlace(const TemplateSlide& slide, const DOMElement* shape, const XMLCh* nonVisual) {
    if (!slide.layout || !slide.layout->master)
        return {};
    const std::wstring id = getAttribute(findDescendant(shape, {nonVisual, xml::kCNvPr}), xml::kId);
    const ElementMap& shapes = slide.layout->master->shapeElementsById;
    const auto found = shapes.find(id);
    return found == shapes.end() ? Place() : readShapePlace(found->second);
}

Place findPlace(const TemplateSlide& slide, const DOMElement* source, const DOMElement* shape,
                const XMLCh* nonVisual) {
    const Place own = readShapePlace(source);
    return own ? own : readMasterPlace(slide, shape, nonVisual);
}

// The picture at its own size, or at the size that is set, shrunk into the box where it is larger, and moved
// to its centre.
Box fitIntoBox(const Box& box, PixelSize image, const ShapeGeometry& geometry) {
    double cx = image.width * kEmuPerPixel;
    double cy = image.height * kEmuPerPixel;
    if (geometry.cx.isSet()) {
        cx = geometry.cx.get().getEMUNumber();
        if (!geometry.cy.isSet())
            cy = cx * image.height / image.width;
    }
    if (geometry.cy.isSet()) {
        cy = geometry.cy.get().getEMUNumber();
        if (!geometry.cx.isSet())
            cx = cy * image.width / image.height;
    }
    if (cy > box.cy) {
        if (cy > 1)
            cx = (box.cy / cy) * cx;
        cy = box.cy;
    }
    if (cx > box.cx) {
        if (cx > 1)
            cy = cy * (box.cx / cx);
        cx = box.cx;
    }
    const double x = box.cx > cx ? box.x + (box.cx - cx) * 0.5 : box.x;
    const double y = box.cy > cy ? box.y + (box.cy - cy) * 0.5 : box.y;
    return {x, y, cx, cy};
}

PictureElements makeFittedPicture(TemplateSlide& slide, const std::wstring& relationshipId,
                                  DOMElement* former, const XMLCh* nonVisual, const Place& place,
                                  PixelSize image, const ShapeGeometry& geometry) {
    PictureElements made = makePictureSkeleton(slide, relationshipId);
    takeIdentity(slide, made.nvPicPr, former, nonVisual);
    if (place)
        makeXfrm(made, fitIntoBox(readBox(place), image, geometry));
    makeRectangle(made);
    return made;
}

GraphicFrameElements makeTableInPlace(TemplateSlide& slide, DOMElement* former, const XMLCh* nonVisual,
                                      const Place& place, unsigned int columns) {
    const GraphicFrameElements made = makeFrameSkeleton(slide);
    takeIdentity(slide, made.nvGraphicFramePr, former, nonVisual);
    const Box box = place ? readBox(place) : kFreeTableBox;
    makeXfrm(slide, made, box);
    makeGrid(made, box.cx, columns);
    return made;
}

} // namespace

// Free shapes

GraphicFrameElements makeFreeTable(TemplateSlide& slide, const BaseAttribute<std::wstring>& name,
                                   const ShapeGeometry& geometry, unsigned int columns) {
    const GraphicFrameElements made = makeFrameSkeleton(slide);
    giveIdentity(slide, made.nvGraphicFramePr, name);
    const Box box = overlay(kFreeTableBox, geometry);
    makeXfrm(slide, made, box);
    makeGrid(made, box.cx, columns);
    appendToShapeTree(slide, made.frame);
    return made;
}

PictureElements makeFreePicture(TemplateSlide& slide, const std::wstring& relationshipId,
                                const BaseAttribute<std::wstring>& name, const ShapeGeometry& geometry) {
    PictureElements made = makePictureSkeleton(slide, relationshipId);
    giveIdentity(slide, made.nvPicPr, name);
    makeXfrm(made, overlay(kFreeShapeBox, geometry));
    makeRectangle(made);
    appendToShapeTree(slide, made.pic);
    return made;
}

ShapeElements makeFreeTextBox(TemplateSlide& slide, const BaseAttribute<std::wstring>& name,
                              const ShapeGeometry& geometry) {
    ShapeElements made = makeTextBoxSkeleton(slide);
    made.cNvPr = giveIdentity(slide, made.nvSpPr, name);
    setTextBoxPlacement(made, slide, geometry, true);
    appendElement(made.spPr, xml::kAPrstGeom)->setAttribute(xml::kPrst, xml::kRect);
    appendToShapeTree(slide, made.sp);
    return made;
}

// Shapes that take over from an element

GraphicFrameElements makeTableForPlaceholder(TemplateSlide& slide, DOMElement* placeholder,
                                             DOMElement* layoutShape, unsigned int columns) {
    const Place place = findPlace(slide, layoutShape, placeholder, xml::kNvSpPr);
    return makeTableInPlace(slide, placeholder, xml::kNvSpPr, place, columns);
}

GraphicFrameElements makeTableForTable(TemplateSlide& slide, DOMElement* frame, DOMElement* layoutShape,
                                       unsigned int columns) {
    Place place = readPlace(findChild(frame, xml::kXfrm));
    if (!place)
        place = findPlace(slide, layoutShape, frame, xml::kNvGraphicFramePr);
    return makeTableInPlace(slide, frame, xml::kNvGraphicFramePr, place, columns);
}

PictureElements makePictureForPlaceholder(TemplateSlide& slide, const std::wstring& relationshipId,
                                          DOMElement* placeholder, DOMElement* layoutShape, PixelSize image,
                                          const ShapeGeometry& geometry) {
    const Place place = findPlace(slide, layoutShape, placeholder, xml::kNvSpPr);
    return makeFittedPicture(slide, relationshipId, placeholder, xml::kNvSpPr, place, image, geometry);
}

PictureElements makePictureForPicture(TemplateSlide& slide, const std::wstring& relationshipId,
                                      DOMElement* picture, PixelSize image, const ShapeGeometry& geometry) {
    const Place place = findPlace(slide, picture, picture, xml::kNvPicPr);
    return makeFittedPicture(slide, relationshipId, picture, xml::kNvPicPr, place, image, geometry);
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

void setTextBoxPlacement(ShapeElements& elements, TemplateSlide&, const ShapeGeometry& geometry, bool force) {
    if (!elements.spPr || (!force && !geometry.hasPlacement()))
        return;
    elements.xfrm = requireChild(elements.spPr, xml::kAXfrm);
    elements.off = requireChild(elements.xfrm, xml::kAOff);
    elements.ext = requireChild(elements.xfrm, xml::kAExt);
    writeBox(elements.off, elements.ext, overlay(kFreeShapeBox, geometry));
}

namespace {

void takeLength(BaseAttribute<Dimension>& length, const DOMElement* element, const XMLCh* attribute) {
    const std::wstring text = getAttribute(element, attribute);
    if (!length.isSet() && !text.empty())
        length.set(Dimension(text + Dimension::dim2str(Dimension::emus)));
}

} // namespace

void placeExistingTextShape(DOMElement* shape, TemplateSlide& slide, DOMElement* layoutShape,
                            const ShapeGeometry& geometry) {
    if (!geometry.hasPlacement())
        return;
    ShapeElements elements = readShapeElements(shape);
    ShapeGeometry merged = geometry;
    const Place place = readShapePlace(layoutShape);
    takeLength(merged.x, place.off, xml::kX);
    takeLength(merged.y, place.off, xml::kY);
    takeLength(merged.cx, place.ext, xml::kCx);
    takeLength(merged.cy, place.ext, xml::kCy);
    setTextBoxPlacement(elements, slide, merged, false);
}

} // namespace vellox::ppt
