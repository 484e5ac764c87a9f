/// @file
/// SVG images, drawn by librsvg.

#ifndef VELLOX_FOUNDATION_SVGDRAWING_H
#define VELLOX_FOUNDATION_SVGDRAWING_H

#include <string>

namespace vellox {

constexpr unsigned int kGreatestDrawing = 3000; ///< the longest side, in pixels

/// Whether librsvg is there. It is loaded with the first question, and stays.
bool canDrawSvg();

/// What the drawing of an SVG may take, beyond which it is given up.
struct DrawingLimits {
    unsigned int seconds = 10; ///< of the processor
    unsigned long long memory = 1ULL << 30;
};

/// Draws an SVG without document type as a PNG. It reaches no file and no net: what it refers to is left out, but for what
/// it holds itself.
///
/// The drawing is made by a child of the process: librsvg has no measure for filters and references that never end, and
/// what befalls it there is no more than a drawing that can't be had.
/// @param width of the PNG, as height, in pixels; at the limit beyond it
/// @throws SvgFault
std::string drawSvg(const std::string& svg, unsigned int width, unsigned int height,
                    const DrawingLimits& limits = DrawingLimits());

} // namespace vellox

#endif
