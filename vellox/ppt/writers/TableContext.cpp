#include "vellox/ppt/writers/TableContext.h"

#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/TableLook.h"

#include <algorithm>

namespace vellox::ppt {

namespace {

bool isNumber(const ParagraphImpl& paragraph) {
    const TextImpl* text = findOnlyText(paragraph);
    return text && text->isNumContent() && !std::holds_alternative<bool>(text->getGiven());
}

enum class CellKind { Empty, Number, Other };

CellKind kindOf(const PPTNode& entry) {
    const auto& paragraphs = implOf<PPTNodeImpl>(entry)->getChildren();
    if (paragraphs.empty())
        return CellKind::Empty;
    const auto* paragraph = paragraphs.size() == 1 ? implAs<ParagraphImpl>(*paragraphs.front()) : nullptr;
    if (!paragraph)
        return CellKind::Other;
    const TextImpl* text = findOnlyText(*paragraph);
    const bool isEmpty = text ? text->getTextContent().empty() || isMissing(text->getTextContent())
                              : paragraph->getChildren().empty() && !paragraph->getTruthValue();
    if (isEmpty)
        return CellKind::Empty;
    return isNumber(*paragraph) ? CellKind::Number : CellKind::Other;
}

// The first row is a header to the eye, whatever is said of it.
unsigned int countShownHeader(const TableImpl& table) {
    return std::max(1u, table.countHeaderRows());
}

} // namespace

const TextImpl* findOnlyText(const ParagraphImpl& paragraph) {
    const auto& children = paragraph.getChildren();
    const auto* text = children.size() == 1 ? implAs<TextImpl>(*children.front()) : nullptr;
    return text && text->getNodeType() == NodeType::Text ? text : nullptr;
}

std::vector<bool> findNumberColumns(const TableImpl& table) {
    std::vector<bool> hasNumber(table.getNCols()), hasOther(table.getNCols());
    for (std::size_t r = countShownHeader(table); r < table.getChildren().size(); ++r) {
        const auto& entries = implOf<PPTNodeImpl>(*table.getChildren()[r])->getChildren();
        for (std::size_t c = 0; c < std::min(entries.size(), hasNumber.size()); ++c) {
            const CellKind kind = kindOf(*entries[c]);
            hasNumber[c] = hasNumber[c] || kind == CellKind::Number;
            hasOther[c] = hasOther[c] || kind == CellKind::Other;
        }
    }
    for (std::size_t c = 0; c < hasNumber.size(); ++c)
        hasNumber[c] = hasNumber[c] && !hasOther[c];
    return hasNumber;
}

TableContext::TableContext(const TableImpl& written)
    : rowCount(static_cast<unsigned int>(written.getChildren().size())),
      colCount(written.getNCols()),
      colWidths(written.getNCols()),
      table(&written),
      headerRows(written.countHeaderRows()),
      rowHeight(written.getRowHeight().isSet() ? written.getRowHeight().get().getEMUNumber() : 0),
      merged(written.getMerged().isEmpty() ? nullptr : &written.getMerged()) {
    for (const auto& spec : written.getColSpecs()) {
        const std::size_t column = colFormats.size();
        colFormats.push_back(spec ? spec->getStyle() : Formats());
        const boost::shared_ptr<ColWidth> width = spec ? spec->getWidth() : boost::shared_ptr<ColWidth>();
        if (width && column < colWidths.size())
            colWidths[column] = std::max(0, width->getDimension().getEMUNumber());
    }
}

void TableContext::nextRow() {
    ++row;
    col = 0;
}

const Formats& TableContext::getColumnFormats(unsigned int column) const {
    static const Formats& none = *new const Formats;
    return column < colCount && column < colFormats.size() ? colFormats[column] : none;
}

void TableContext::setColumnWidth(int widthEmu) {
    if (col >= colWidths.size())
        return;
    std::optional<int>& width = colWidths[col];
    width = std::max(width.value_or(0), widthEmu);
}

const CellLook* TableContext::getCellLook() const {
    return look ? look->find(row, col, rowCount, hasTotalRow) : nullptr;
}

int TableContext::getRowHeight(const TableRowImpl& written) const {
    if (written.getHeight().isSet())
        return written.getHeight().get().getEMUNumber();
    return rowHeight == 0 && look ? look->getRowHeight(row, rowCount, hasTotalRow) : rowHeight;
}

std::optional<CellRange> TableContext::findMerged() const {
    const CellRange* found = merged ? merged->find(row, col) : nullptr;
    if (!found)
        return {};
    CellRange range = *found;
    range.lastRow = std::min(range.lastRow, rowCount - 1);
    range.lastColumn = std::min(range.lastColumn, colCount - 1);
    return range.isOneCell() ? std::optional<CellRange>() : range;
}

// Of an entry without paragraphs, it is one with the text for that.
bool TableContext::isLeftOut(const ParagraphImpl& paragraph) const {
    const TextImpl* text = findOnlyText(paragraph);
    if (!text)
        return paragraph.getChildren().empty();
    return isMissing(text->getTextContent()) || text->getTextContent() == *values.missing;
}

bool TableContext::isAmongNumbers(const ParagraphImpl& paragraph) const {
    if (rowCount == 0) // the template's cells are where they are
        return false;
    const bool isOverNumbers = col < numberColumns.size() && numberColumns[col] && !isWide;
    if (row == 0 || isInHeader())
        return isOverNumbers;
    return isNumber(paragraph) || (values.missing && isOverNumbers && isLeftOut(paragraph));
}

} // namespace vellox::ppt
