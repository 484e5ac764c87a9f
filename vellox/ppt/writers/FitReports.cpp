#include "vellox/ppt/writers/FitReports.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NumberText.h"
#include "vellox/ppt/formats/CellFormatsImpl.h"
#include "vellox/ppt/formats/CharacterFormats.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/LetterWidths.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace vellox::ppt {

namespace {

constexpr double kEmuPerPoint = 12700;
constexpr double kDefaultSize = 18;                  // in points, as that of the other sizes here
constexpr double kLineHeight = 1.2;                  // of the size
constexpr double kMarginX = 91440, kMarginY = 45720; // in EMU, on either side
constexpr double kTolerance = 1.15;

struct Room {
    double cx, cy;
};

double findSize(const ElementImpl& element, double inherited) {
    const Formats::Map& formats = element.getStyle().getMap();
    const auto format = formats.empty() ? formats.end() : formats.find(FormatType::FontSize);
    const auto* size =
        format == formats.end() ? nullptr : dynamic_cast<const FontSize*>(format->second.get());
    const double points = size ? size->getDimension().getPointNumber() : 0;
    return points > 0 ? points : inherited;
}

struct Need {
    double lines = 0;
    double height = 0; // in EMU
};

// What a paragraph takes, where lines are so wide.
class ParagraphMeasure {
public:
    ParagraphMeasure(double size, double width) : width_(width), size_(size) {}

    void add(const std::wstring& text, double size) {
        size_ = std::max(size_, size);
        for (const wchar_t c : text) {
            if (c == L'\n')
                endLine();
            else
                line_ += size * kEmuPerPoint * getLetterWidth(c);
        }
    }
    Need finish() {
        endLine();
        return {lines_, lines_ * size_ * kEmuPerPoint * kLineHeight};
    }

private:
    void endLine() {
        lines_ += std::max(1.0, std::ceil(line_ / width_));
        line_ = 0;
    }

    double width_, size_;
    double line_ = 0, lines_ = 0;
};

// Fractions are hardly shown with all digits, but in forms that aren't known here.
std::wstring guessShown(const TextImpl& text) {
    constexpr std::size_t kLongestNumber = 8;
    const auto* number = std::get_if<double>(&text.getGiven());
    return number ? toShortest(*number).substr(0, kLongestNumber) : text.getTextContent();
}

double measureLine(const ParagraphImpl& paragraph, double size) {
    double width = 0;
    for (const auto& child : paragraph.getChildren())
        if (const TextImpl* text = implAs<TextImpl>(*child)) {
            const double own = findSize(*text, size);
            for (const wchar_t c : guessShown(*text))
                width += own * kEmuPerPoint * getLetterWidth(c);
        }
    return width;
}

Need measureParagraph(const ParagraphImpl& paragraph, double size, double width) {
    ParagraphMeasure measure(size, width);
    for (const auto& child : paragraph.getChildren())
        if (const TextImpl* text = implAs<TextImpl>(*child))
            measure.add(guessShown(*text), findSize(*text, size));
    return measure.finish();
}

// The longest paragraph of an entry, if no line were broken.
double measureLongest(const PPTNodeImpl& entry, double size) {
    double longest = 0;
    for (const auto& child : entry.getChildren())
        if (const ParagraphImpl* paragraph = implAs<ParagraphImpl>(*child)) {
            const double own = findSize(*paragraph, size);
            longest = std::max(longest, measureLine(*paragraph, own > 0 ? own : kDefaultSize));
        }
    return longest;
}

// @param sizes of the template, by level; null where it has none
// @param size in force; 0 if nobody has set one
Need measureParagraphs(const PPTNodeImpl& box, const TextSizes* sizes, double size, double width) {
    Need whole;
    for (const auto& child : box.getChildren()) {
        const ParagraphImpl* paragraph = implAs<ParagraphImpl>(*child);
        if (!paragraph)
            continue;
        const unsigned int level = paragraph->getLevel().isSet() ? paragraph->getLevel().get() : 1;
        const double given = sizes && level >= 1 && level <= sizes->size() ? (*sizes)[level - 1] / 100.0 : 0;
        const double own = findSize(*paragraph, size > 0 ? size : given);
        const Need need = measureParagraph(*paragraph, own > 0 ? own : kDefaultSize, width);
        whole.lines += need.lines;
        whole.height += need.height;
    }
    return whole;
}

// Formats of slide and shape, as those of what stands between.
double findSizeAbove(const ElementImpl& shape) {
    const PPTNodeImpl* parent = shape.getParent();
    const ElementImpl* above = parent ? parent->asElement() : nullptr;
    return findSize(shape, above ? findSizeAbove(*above) : 0);
}

const PlaceText* findPlace(const ShapeImpl& shape) {
    const auto& record = shape.getTemplateShape();
    if (!record)
        return nullptr;
    return record->textPlace ? record->textPlace.get() : record->successorPlace.get();
}

double findLength(const BaseAttribute<Dimension>& own, const PlaceText* place,
                  std::wstring PlaceText::*inherited) {
    if (own.isSet())
        return own.get().getEMUNumber();
    return place ? str2double(place->*inherited) : 0;
}

std::wstring toPercent(double part) {
    constexpr double kStep = 10;
    return std::to_wstring(static_cast<long>(std::min(std::round(part * 100 / kStep) * kStep, 1e6)));
}

} // namespace

void reportFit(const ShapeImpl& textBox) {
    if (textBox.getChildren().empty())
        return;
    const PlaceText* place = findPlace(textBox);
    const double cx = findLength(textBox.getGeometry().cx, place, &PlaceText::cx) - 2 * kMarginX;
    const double cy = findLength(textBox.getGeometry().cy, place, &PlaceText::cy) - 2 * kMarginY;
    if (cx <= 0 || cy <= 0)
        return;
    const auto& record = textBox.getTemplateShape();
    const Need need =
        measureParagraphs(textBox, record ? &record->textSizes : nullptr, findSizeAbove(textBox), cx);
    // A single line that is too high for its box isn't too long: the template wants it so.
    if (need.lines > 1 && need.height > cy * kTolerance)
        report(ppt_finding::textTooLong(toPercent(need.height / cy)), textBox);
}

TableRoom findTableRoom(const ShapeImpl& shape, double slideHeight) {
    const PlaceText* place = findPlace(shape);
    TableRoom room;
    room.width = findLength(shape.getGeometry().cx, place, &PlaceText::cx);
    room.height = findLength(shape.getGeometry().cy, place, &PlaceText::cy);
    if (room.height <= 0)
        room.height = std::max(0.0, slideHeight - findLength(shape.getGeometry().y, place, &PlaceText::y));
    return room;
}

namespace {

// Above and below the text, of what has margins set or stands in what has.
double findMargins(const ElementImpl& element, double inherited) {
    const auto format = element.getStyle().getFormat(FormatType::CellMargins);
    if (!format)
        return inherited;
    const auto& margins = *implOf<CellMarginsImpl>(*format);
    const auto& top = margins.getMargin(CellMargins::Top);
    const auto& bottom = margins.getMargin(CellMargins::Bottom);
    return (top ? *top : inherited / 2) + (bottom ? *bottom : inherited / 2);
}

// The room for texts in each column. Where columns share the width by their texts, each has its part of it.
std::vector<double> estimateColumns(const TableImpl& table, double size, double width, bool sharesWidth) {
    std::vector<double> columns(table.getNCols(), kMarginX);
    for (const auto& child : table.getChildren()) {
        const auto* row = implAs<TableRowImpl>(*child);
        for (std::size_t i = 0; sharesWidth && row && i < row->getChildren().size() && i < columns.size();
             ++i)
            if (const auto* entry = implAs<TableEntryImpl>(*row->getChildren()[i]))
                columns[i] =
                    std::max(columns[i], measureLongest(*entry, findSize(*entry, findSize(*row, size))));
    }
    const double margins = kMarginX * static_cast<double>(columns.size());
    const double room = std::max(width - 2 * margins, margins);
    const double sum = std::accumulate(columns.begin(), columns.end(), 0.0);
    for (double& column : columns)
        column *= room / sum;
    return columns;
}

double measureRow(const TableRowImpl& row, double size, double margins, const std::vector<double>& columns) {
    const double own = findSize(row, size), around = findMargins(row, margins);
    double highest = (own > 0 ? own : kDefaultSize) * kEmuPerPoint * kLineHeight + around;
    const PPTNode::Children& cells = row.getChildren();
    for (std::size_t i = 0; i < cells.size() && i < columns.size(); ++i)
        if (const auto* entry = implAs<TableEntryImpl>(*cells[i]))
            highest = std::max(highest,
                               measureParagraphs(*entry, nullptr, findSize(*entry, own), columns[i]).height +
                                   findMargins(*entry, around));
    return highest;
}

} // namespace

std::vector<double> estimateRowHeights(const TableImpl& table, double width, bool sharesWidth) {
    const double size = findSizeAbove(table), margins = findMargins(table, 2 * kMarginY);
    const std::vector<double> columns = estimateColumns(table, size, width, sharesWidth);
    const double least = table.getRowHeight().isSet() ? table.getRowHeight().get().getEMUNumber() : 0;
    std::vector<double> heights;
    for (const auto& child : table.getChildren()) {
        const auto* row = implAs<TableRowImpl>(*child);
        const double told = row && row->getHeight().isSet() ? row->getHeight().get().getEMUNumber() : least;
        heights.push_back(std::max(told, row ? measureRow(*row, size, margins, columns) : 0));
    }
    return heights;
}

void reportFit(const TableImpl& table, double slideHeight, bool sharesWidth) {
    const TableRoom room = findTableRoom(table, slideHeight);
    if (room.height <= 0 || table.getNCols() == 0 || room.width / table.getNCols() <= 2 * kMarginX)
        return;
    const std::vector<double> heights = estimateRowHeights(table, room.width, sharesWidth);
    const double height = std::accumulate(heights.begin(), heights.end(), 0.0);
    if (height > room.height * kTolerance)
        report(ppt_finding::tableTooLong(toPercent(height / room.height)), table);
}

} // namespace vellox::ppt
