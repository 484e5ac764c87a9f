/// @file
/// How large the box of a shape is, for a host that draws a figure to fit.

#ifndef VELLOX_HOST_BINDING_ROOM_H
#define VELLOX_HOST_BINDING_ROOM_H

#include <string>

#include "vellox/Api.h"

namespace vellox::ppt {
class PPTObject;
}

namespace vellox::ppt::hostbind {

/// A size in inches; 0 where nobody knows it.
struct Room {
    double width = 0;
    double height = 0;
};

/// The size that a shape has, or that a picture in its stead gets from the layout.
/// @param owner a shape; or a slide or a presentation, whose first shape of a name is meant
VELLOX_API Room getRoom(const PPTObject& owner, const std::wstring& name);

/// Whether the first shape of a name on a slide is a picture, or a placeholder for nothing else.
VELLOX_API bool isForPictures(const PPTObject& slide, const std::wstring& name);

} // namespace vellox::ppt::hostbind

#endif
