/// @file
/// Lengths in groups: a group may show what it holds at another scale, and at another place.

#ifndef VELLOX_PPT_WRITERS_GROUPSPACE_H
#define VELLOX_PPT_WRITERS_GROUPSPACE_H

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// From the slide's own coordinates to those in which a shape's place is written, in EMU. ECMA-376 part 1, 20.1.7.5.
class GroupSpace {
public:
    /// That of an element of a slide, in any number of groups.
    explicit GroupSpace(const xercesc::DOMElement& shape);

    bool isSlide() const { return isSlide_; }
    double toX(double x) const { return x * across_.scale + across_.shift; }
    double toY(double y) const { return y * down_.scale + down_.shift; }
    double toWidth(double width) const { return width * across_.scale; }
    double toHeight(double height) const { return height * down_.scale; }

private:
    struct Axis {
        double scale = 1, shift = 0;
    };

    void enter(const xercesc::DOMElement& xfrm);

    bool isSlide_ = true; ///< whether it is in no group
    Axis across_, down_;
};

} // namespace vellox::ppt

#endif
