/// @file
/// The size of an image, from its header alone.

#ifndef VELLOX_HOST_SERVICES_IMAGEPROBE_H
#define VELLOX_HOST_SERVICES_IMAGEPROBE_H

#include <istream>
#include <string>

namespace vellox::host {

/// Reads width and height in pixels. What the file holds decides, not what it is called. No pixel is
/// decoded, and a header that claims an absurd size is a header that can't be read.
/// @return false, with both numbers untouched, for a file that isn't a readable PNG, JPEG, GIF, BMP, TIFF
/// or PSD image of at least one pixel. Not readable are run-length encoded BMPs, PSDs that aren't RGB, and
/// images of more than about 2^30 pixels
bool readImageSize(const std::string& pathUtf8, double& width, double& height);
/// The same of an image in a stream, from its first byte.
bool readImageSize(std::istream& image, double& width, double& height);

} // namespace vellox::host

#endif
