/// @file
/// How much room texts take, in the fonts that they are to be seen in.

#ifndef VELLOX_PPT_WRITERS_TEXTFIT_H
#define VELLOX_PPT_WRITERS_TEXTFIT_H

#include <set>
#include <string>
#include <vector>

#include "vellox/ppt/writers/InheritedTexts.h"

namespace vellox {
class FontBook;
class FontMetrics;
} // namespace vellox

namespace vellox::ppt {

class ParagraphImpl;
class PPTNodeImpl;
class TextImpl;

/// How much smaller a text is shown, as a:normAutofit has it: in thousandths of a per cent.
struct Shrinking {
    unsigned int fontScale, spacingReduction;
};

/// The paragraphs of one text box, broken into lines as programs do. Programs differ by a little, and so does this.
class TextFit {
public:
    /// @param box whose paragraphs count
    /// @param text what they inherit, which has to stay
    TextFit(const PPTNodeImpl& box, const InheritedText& text, FontBook& fonts);

    /// The least that lets the text find room in a box, of the steps that programs take; the last of them if none does.
    Shrinking findShrinking(double cx, double cy) const;
    /// How high a box of a width has to be, in EMU.
    double findHeight(double cx, const Shrinking& shrinking) const;
    /// The fonts that aren't installed.
    const std::set<std::wstring>& getMissingFonts() const { return missing_; }

private:
    struct Piece {
        std::wstring text;
        FontMetrics* font;
        double points;
    };
    struct Lines {
        std::vector<Piece> pieces;
        double marginLeft, indent;
        double lineHeight; // of the font, in points
        Spacing line, before, after;
    };
    class Breaker;

    void take(const ParagraphImpl& paragraph, const LevelText& level, FontBook& fonts);
    Piece makePiece(const TextImpl& text, const LevelText& level, FontBook& fonts);

    const InheritedText& text_;
    std::vector<Lines> paragraphs_;
    std::set<std::wstring> missing_;
};

} // namespace vellox::ppt

#endif
