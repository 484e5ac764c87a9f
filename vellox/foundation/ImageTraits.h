/// @file
/// What image files say of themselves beside their size.

#ifndef VELLOX_FOUNDATION_IMAGETRAITS_H
#define VELLOX_FOUNDATION_IMAGETRAITS_H

#include <istream>
#include <string>
#include <string_view>

namespace vellox {

struct ImageTraits {
    double perInchX = 0, perInchY = 0; ///< pixels per inch; both 0 if it doesn't say, or nothing sensible
    /// How the camera was held, as EXIF counts: 1 is upright, 6 wants a quarter turn clockwise.
    unsigned int orientation = 1;
};

/// Reads headers of PNG, JPEG, BMP and TIFF, and the EXIF of a JPEG. A damaged one says nothing.
ImageTraits readImageTraits(std::istream& image);

/// The usual extension, in lower case, for the kind of image that begins in this way; empty for none that is known.
std::wstring findImageExtension(std::string_view beginning);

} // namespace vellox

#endif
