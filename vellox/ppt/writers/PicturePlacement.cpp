#include "vellox/ppt/writers/PicturePlacement.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <cmath>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// What makes an image upright: it is mirrored first, then turned clockwise.
struct Turn {
    unsigned int quarters;
    bool isFlippedSideways, isFlippedUpsideDown;
};

constexpr Turn kTurns[] = {{0, false, false}, {0, true, false},  {2, false, false}, {0, false, true},
                           {3, true, false},  {1, false, false}, {1, true, false},  {3, false, false}};

const Turn& findTurn(unsigned int orientation) {
    constexpr unsigned int kLast = std::size(kTurns);
    return kTurns[orientation >= 1 && orientation <= kLast ? orientation - 1 : 0];
}

// A place that is turned is given as it lies before, about the same centre.
Box turnBack(const Box& seen) {
    return {seen.x + (seen.cx - seen.cy) / 2, seen.y + (seen.cy - seen.cx) / 2, seen.cy, seen.cx};
}

// From edges as they are seen to those of the image.
Crop turnBack(Crop crop, const Turn& turn) {
    for (unsigned int i = 0; i < turn.quarters; ++i)
        crop = {crop.top, crop.right, crop.bottom, crop.left};
    if (turn.isFlippedSideways)
        std::swap(crop.left, crop.right);
    if (turn.isFlippedUpsideDown)
        std::swap(crop.top, crop.bottom);
    return crop;
}

void writeCrop(const PictureElements& made, const Crop& crop) {
    constexpr double kWhole = 100000; // thousandths of a per cent
    DOMElement* srcRect = made.blipFill->getOwnerDocument()->createElement(xml::kASrcRect);
    made.blipFill->insertBefore(srcRect, made.stretch);
    const auto write = [&](const XMLCh* name, double share) {
        if (const long cut = std::lround(share * kWhole))
            setAttribute(srcRect, name, std::to_wstring(cut));
    };
    write(xml::kL, crop.left);
    write(xml::kT, crop.top);
    write(xml::kRight, crop.right);
    write(xml::kB, crop.bottom);
}

} // namespace

Box moveInto(const Box& box, const Box& picture, const FitPosition& position) {
    return {box.x + (box.cx - picture.cx) * position.x, box.y + (box.cy - picture.cy) * position.y,
            picture.cx, picture.cy};
}

PicturePlacement fitInto(const Box& box, double width, double height, Fit fit, const FitPosition& position) {
    const bool hasSize = width > 0 && height > 0 && box.cx > 0 && box.cy > 0;
    if (fit == Fit::Stretch || !hasSize)
        return {box, {}};
    const double across = box.cx / width, down = box.cy / height;
    if (fit != Fit::Cover) {
        const double scale = std::min(across, down);
        return {moveInto(box, {0, 0, width * scale, height * scale}, position), {}};
    }
    const double scale = std::max(across, down);
    const double cutX = 1 - across / scale, cutY = 1 - down / scale;
    return {box, {cutX * position.x, cutY * position.y, cutX * (1 - position.x), cutY * (1 - position.y)}};
}

bool liesOnSide(unsigned int orientation) {
    return findTurn(orientation).quarters % 2 == 1;
}

void writePlacement(const PictureElements& made, const PicturePlacement& placement,
                    unsigned int orientation) {
    constexpr long kQuarter = 5400000; // sixty thousandths of a degree
    const Turn& turn = findTurn(orientation);
    if (turn.quarters > 0)
        setAttribute(made.xfrm, xml::kRot, std::to_wstring(turn.quarters * kQuarter));
    if (turn.isFlippedSideways)
        made.xfrm->setAttribute(xml::kFlipH, xml::kTrue);
    if (turn.isFlippedUpsideDown)
        made.xfrm->setAttribute(xml::kFlipV, xml::kTrue);
    writeBox(made.off, made.ext, turn.quarters % 2 == 1 ? turnBack(placement.box) : placement.box);
    if (!placement.crop.isNone())
        writeCrop(made, turnBack(placement.crop, turn));
}

} // namespace vellox::ppt
