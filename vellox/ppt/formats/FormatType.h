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
    Bullet = 14,
    SpaceBefore = 15,
    SpaceAfter = 16,
    LineSpacing = 17,
    LeftIndent = 18,
    FirstLineIndent = 19,
    RightToLeft = 20,
    Language = 21,
    CellBorders = 22,
    CellMargins = 23,
    ValueFormat = 24
};

/// One more than the number of the last.
inline constexpr unsigned int kFormatTypeCount = 25;

} // namespace vellox::ppt

#endif
