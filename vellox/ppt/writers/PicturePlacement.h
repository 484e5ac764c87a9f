/// @file
/// How a picture lies on a slide: its box, what is cut off, and how it is turned.

#ifndef VELLOX_PPT_WRITERS_PICTUREPLACEMENT_H
#define VELLOX_PPT_WRITERS_PICTUREPLACEMENT_H

#include "vellox/ppt/formats/FitWords.h"
#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/writers/ShapeMakers.h"

namespace vellox::ppt {

/// Shares of an image that are cut off at its edges, as they are seen.
struct Crop {
    double left = 0, top = 0, right = 0, bottom = 0;

    bool isNone() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
};

struct PicturePlacement {
    Box box;
    Crop crop;
};

/// A picture of a size in a box, by any way but to contain it.
/// @param size in any unit; one that isn't positive counts as the box's
PicturePlacement fitInto(const Box& box, double width, double height, Fit fit, const FitPosition& position);
/// A box of a size, moved in another to where a position says.
Box moveInto(const Box& box, const Box& picture, const FitPosition& position);

/// Whether an image of an orientation lies on its side.
bool liesOnSide(unsigned int orientation);

/// Writes a placement to a picture that has a place, as it is to be seen.
/// @param orientation of the image, as EXIF counts
void writePlacement(const PictureElements& made, const PicturePlacement& placement, unsigned int orientation);

} // namespace vellox::ppt

#endif
