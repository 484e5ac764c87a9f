#include "vellox/ppt/writers/TextFit.h"

#include "vellox/foundation/FontMetrics.h"
#include "vellox/ppt/formats/CharacterFormats.h"
#include "vellox/ppt/formats/ParagraphFormats.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/FormatsInForce.h"

#include <algorithm>

namespace vellox::ppt {

namespace {

constexpr double kEmuPerPoint = 12700;
constexpr double kWhole = 100000; // thousandths of a per cent

constexpr Shrinking kSteps[] = {{100000, 0},    {92500, 10000}, {92500, 20000}, {85000, 20000},
                                {77500, 20000}, {70000, 20000}, {62500, 20000}, {55000, 20000},
                                {47500, 20000}, {40000, 20000}, {32500, 20000}, {25000, 20000}};

template <class F> const F* find(const FormatsInForce& formats, FormatType type) {
    return static_cast<const F*>(formats.find(type));
}

void takeSpacing(Spacing& into, const FormatsInForce& formats, FormatType type) {
    const auto* format = find<BaseDimension>(formats, type);
    if (!format)
        return;
    const Dimension& length = format->getDimension();
    if (length.isPercentValue())
        into = {length.getNumericValue() / 100, true};
    else if (length.isProportionalValue())
        into = {length.getNumericValue(), true};
    else
        into = {length.getPointNumber(), false};
}

void takeLength(double& into, const FormatsInForce& formats, FormatType type) {
    if (const auto* format = find<BaseDimension>(formats, type))
        into = format->getDimension().getEMUNumber();
}

// A line may end behind it.
bool endsWord(wchar_t letter) {
    constexpr wchar_t kFirstWide = L'\x2E80';
    return letter == L' ' || letter == L'\t' || letter == L'-' || letter >= kFirstWide;
}

} // namespace

// Counts the lines of a paragraph, letter by letter. What is longer than a line is broken anywhere, as programs do.
class TextFit::Breaker {
public:
    Breaker(double first, double others) : room_(first), others_(others) {}

    void add(const Piece& piece, double scale) {
        const double size = piece.points * scale * kEmuPerPoint;
        for (const wchar_t letter : piece.text)
            if (letter == L'\n')
                endLine();
            else
                add(letter, piece.font->getAdvance(letter) * size);
    }
    unsigned int getLines() const { return lines_; }

private:
    void add(wchar_t letter, double advance) {
        word_ += advance;
        const bool isBlank = letter == L' ';
        if (!isBlank && line_ + word_ > room_) { // blanks may hang over
            if (line_ > 0)
                wrap();
            if (word_ > room_) {
                wrap();
                word_ = advance;
            }
        }
        if (endsWord(letter)) {
            line_ += word_;
            word_ = 0;
        }
    }
    void wrap() {
        ++lines_;
        line_ = 0;
        room_ = others_;
    }
    void endLine() {
        wrap();
        word_ = 0;
    }

    double room_, others_;
    double line_ = 0, word_ = 0;
    unsigned int lines_ = 1;
};

TextFit::TextFit(const PPTNodeImpl& box, const InheritedText& text, FontBook& fonts) : text_(text) {
    for (const auto& child : box.getChildren())
        if (const auto* paragraph = implAs<ParagraphImpl>(*child)) {
            const BaseAttribute<unsigned int>& level = paragraph->getLevel();
            const std::size_t place = level.isSet() && level.get() > 0 ? level.get() - 1 : 0;
            take(*paragraph, text.levels[std::min(place, text.levels.size() - 1)], fonts);
        }
}

void TextFit::take(const ParagraphImpl& paragraph, const LevelText& level, FontBook& fonts) {
    Lines lines{{}, level.marginLeft, level.indent, 0, level.line, level.before, level.after};
    const FormatsInForce formats = FormatsInForce::at(&paragraph, nullptr);
    takeSpacing(lines.line, formats, FormatType::LineSpacing);
    takeSpacing(lines.before, formats, FormatType::SpaceBefore);
    takeSpacing(lines.after, formats, FormatType::SpaceAfter);
    takeLength(lines.marginLeft, formats, FormatType::LeftIndent);
    takeLength(lines.indent, formats, FormatType::FirstLineIndent);
    for (const auto& child : paragraph.getChildren())
        if (const auto* run = implAs<TextImpl>(*child)) {
            const Piece& piece = lines.pieces.emplace_back(makePiece(*run, level, fonts));
            lines.lineHeight = std::max(lines.lineHeight, piece.font->getLineHeight() * piece.points);
        }
    if (lines.pieces.empty())
        lines.lineHeight = FontMetrics::kUsualLineHeight * level.points;
    paragraphs_.push_back(std::move(lines));
}

TextFit::Piece TextFit::makePiece(const TextImpl& text, const LevelText& level, FontBook& fonts) {
    const FormatsInForce formats = FormatsInForce::at(&text, nullptr);
    const auto* size = find<FontSize>(formats, FormatType::FontSize);
    const auto* family = find<FontFamily>(formats, FormatType::FontFamily);
    const auto* bold = find<Bold>(formats, FormatType::Bold);
    const auto* italic = find<Italic>(formats, FormatType::Italic);
    const double points = size ? size->getDimension().getPointNumber() : 0;
    const std::wstring& name = family && !family->getFont().empty() ? family->getFont() : level.font;
    FontMetrics& font = fonts.find(name, bold ? bold->getValue() : level.isBold,
                                   italic ? italic->getValue() : level.isItalic);
    if (!font.isOwn())
        missing_.insert(name);
    return {text.getTextContent(), &font, points > 0 ? points : level.points};
}

double TextFit::findHeight(double cx, const Shrinking& shrinking) const {
    const double scale = shrinking.fontScale / kWhole, spacing = 1 - shrinking.spacingReduction / kWhole;
    const double room = cx - text_.insetLeft - text_.insetRight;
    double points = 0;
    for (const Lines& paragraph : paragraphs_) {
        const double others = std::max(1.0, room - paragraph.marginLeft);
        Breaker breaker(std::max(1.0, others - std::max(0.0, paragraph.indent)), others);
        for (const Piece& piece : paragraph.pieces)
            breaker.add(piece, scale);
        const double line = paragraph.lineHeight * scale;
        const auto measure = [&](const Spacing& given) {
            return spacing * given.amount * (given.isShare ? line : scale);
        };
        points +=
            breaker.getLines() * (paragraph.line.isShare ? measure(paragraph.line) : paragraph.line.amount);
        if (&paragraph != &paragraphs_.front())
            points += measure(paragraph.before);
        if (&paragraph != &paragraphs_.back())
            points += measure(paragraph.after);
    }
    return points * kEmuPerPoint + text_.insetTop + text_.insetBottom;
}

Shrinking TextFit::findShrinking(double cx, double cy) const {
    for (const Shrinking& step : kSteps)
        if (findHeight(cx, step) <= cy)
            return step;
    return *std::rbegin(kSteps);
}

} // namespace vellox::ppt
