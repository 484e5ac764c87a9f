/// @file
/// What an SVG image says, as far as it can be had without drawing it.

#ifndef VELLOX_FOUNDATION_SVGTEXT_H
#define VELLOX_FOUNDATION_SVGTEXT_H

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vellox {

/// Why an SVG can't be drawn; in UTF-8.
class SvgFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

constexpr std::size_t kGreatestSvg = 32 << 20; ///< of its text, in bytes

/// An SVG without its document type, which readers of presentations refuse. The entities that it defines are put in.
/// @return the same text if it has none
/// @throws SvgFault for a document type that doesn't end, for entities that grow without measure, and for texts that
/// aren't UTF-8
std::string takeOffDoctype(const std::string& svg);

struct SvgSize {
    double width, height; ///< in pixels, of which 96 are an inch
};

/// The size that an SVG without document type gives itself: its width and height, one of the two in the proportions of
/// its view box, or that.
/// @return nothing if it says nothing, or nothing sensible
std::optional<SvgSize> readSvgSize(std::string_view svg);

} // namespace vellox

#endif
