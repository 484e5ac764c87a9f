/// @file
/// The kinds of formats.

#ifndef VELLOX_PPT_FORMATS_FORMATTYPE_H
#define VELLOX_PPT_FORMATS_FORMATTYPE_H

namespace vellox::ppt {

/// The kind of a format, and its place when an element's own formats are applied: order and numbers are part
/// of the interface.
enum class FormatType : int {
    NoFormat = 0, ///< what no set holds in practice
    Bold = 1,
    BackgroundColor = 2,
    ColWidth = 3,
    HAlign = 4,
    Italic = 5,
    FontColor = 6,
    FontFamily = 7,
    FontSize = 8,
    Strike = 9,
    Subscript = 10,
    Superscript = 11,
    Underline = 12,
    VAlign = 13,
    CellBorders = 14,
    CellMargins = 15,
    ValueFormat = 16
};

/// One more than the number of the last.
inline constexpr unsigned int kFormatTypeCount = 17;

} // namespace vellox::ppt

#endif
