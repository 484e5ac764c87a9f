#include "vellox/ppt/writers/TableEntryWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/CellFormatsImpl.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/MergedCells.h"
#include "vellox/ppt/tree/NodeText.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TableLook.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <array>

namespace vellox::ppt {

using namespace xercesc;

TableEntryWriter::TableEntryWriter(const ElementImpl& entry, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(entry, writer, parentNode),
      table_(writer.getFrame().table),
      look_(table_ ? table_->getCellLook() : nullptr),
      tcPr_(xml::kATcPr) {}

void TableEntryWriter::write() {
    const std::optional<CellRange> merged = table_ ? table_->findMerged() : std::nullopt;
    if (merged && (table_->row != merged->row || table_->col != merged->column))
        return writeCovered(*merged);
    PPTWriter::Frame frame = makeFrame();
    frame.texts = look_ ? &look_->text : nullptr;
    findValues();
    writeCell([&] {
        if (writeChildren(frame) > 0)
            return;
        if (table_ && table_->values.missing)
            writeMissing(frame);
        else
            writeEmpty();
    });
}

void TableEntryWriter::writeBlank() {
    writeCell([&] { writeEmpty(); });
}

void TableEntryWriter::writeEmpty() const {
    const ParagraphLook* former = look_ ? look_->text.find(0) : nullptr;
    if (!getRules().sizesEmptyCells())
        return writeEmptyParagraph(getMarkup(), former);
    ParagraphLook sized;
    if (former) {
        sized.pPr = former->pPr;
        sized.endParaRPr = former->makeEmptyEnd();
    }
    putFontSize(sized.endParaRPr);
    writeEmptyParagraph(getMarkup(), &sized);
}

// Of an entry without paragraphs.
void TableEntryWriter::writeMissing(const PPTWriter::Frame& frame) const {
    const PPTNodeImpl::Child paragraph = Paragraph(*table_->values.missing).makeInterface();
    const PPTWriter::FrameScope scope(getWriter(), frame);
    ParagraphWriter writer(*implOf<ParagraphImpl>(*paragraph), getWriter(), getParentNode());
    writer.setAround(*this);
    writer.write();
}

// What a merged cell covers looks as that does, for readers that draw the lines of each cell.
void TableEntryWriter::writeCovered(const CellRange& merged) const {
    if (!readParagraphs(getElement()).empty())
        getWriter().report(
            ppt_finding::coveredCell(std::to_wstring(table_->row + 1), std::to_wstring(table_->col + 1)));
    const boost::shared_ptr<TableRow> row = table_->table->row(merged.row);
    const PPTNode::Children shown = row ? row->getChildren() : PPTNode::Children();
    const bool isThere = merged.column < shown.size(); // rows may have lost entries since
    const auto* entry = isThere ? implAs<TableEntryImpl>(*shown[merged.column]) : nullptr;
    TableEntryWriter(entry ? static_cast<const ElementImpl&>(*entry) : getElement(), getWriter(),
                     getParentNode())
        .writeBlank();
}

void TableEntryWriter::writeSpans(const CellRange& merged) const {
    opc::MarkupBuffer& out = getMarkup();
    const auto write = [&](const char* name, unsigned int value) {
        out.append(std::string(name) + std::to_string(value) + "\"");
    };
    const unsigned int columns = merged.lastColumn - merged.column + 1,
                       rows = merged.lastRow - merged.row + 1;
    const bool isFirstColumn = table_->col == merged.column, isFirstRow = table_->row == merged.row;
    if (isFirstColumn && columns > 1)
        write(" gridSpan=\"", columns);
    if (!isFirstColumn)
        write(" hMerge=\"", 1);
    if (isFirstRow && rows > 1)
        write(" rowSpan=\"", rows);
    if (!isFirstRow)
        write(" vMerge=\"", 1);
}

template <class Content> void TableEntryWriter::writeCell(Content content) {
    applyLines();
    applyMargins();
    opc::MarkupBuffer& out = getMarkup();
    out.append("<a:tc");
    const std::optional<CellRange> merged = table_ ? table_->findMerged() : std::nullopt;
    if (merged)
        writeSpans(*merged);
    if (table_)
        table_->isWide = merged && merged->lastColumn > merged->column;
    applyFormats();
    out.append("><a:txBody><a:bodyPr/>");
    content();
    out.append("</a:txBody>");
    if (look_)
        tcPr_.layOver(look_->tcPr);
    arrange(tcPr_);
    tcPr_.writeTo(out);
    out.append("</a:tc>");
}

void TableEntryWriter::writeOver(const TableEntryImpl& entry, DOMElement* cell) {
    DOMElement* body = findChild(cell, xml::kATxBody);
    if (!body)
        return getWriter().report(ppt_finding::noTextBody());
    findValues();
    applyLines();
    applyMargins();
    applyFormats();
    arrange(tcPr_);
    if (!tcPr_.isEmpty()) {
        DOMElement* properties = findChild(cell, xml::kATcPr);
        if (!properties) {
            properties = createElement(xml::kATcPr);
            cell->insertBefore(properties, body->getNextSibling());
        }
        tcPr_.applyTo(properties);
        arrangeAnyway(properties);
    }
    const std::size_t dropped = entry.getNewText() ? replaceBody(*body, showNew(*entry.getNewText())) : 0;
    if (dropped > 0)
        getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
    if (!entry.getStyle().getMap().empty())
        applyToTexts(body);
    if (entry.getChildren().empty())
        return;
    PPTWriter::Frame frame = makeFrame();
    frame.markup = &getCurrentSlide()->getContent(body);
    writeChildren(frame);
}

// What a cell of the template got is a value as others are.
std::wstring TableEntryWriter::showNew(const std::wstring& text) const {
    if (!table_ || table_->values.isEmpty())
        return text;
    if (text.empty() && table_->values.missing)
        return *table_->values.missing;
    return table_->values.show(text, getWriter().getNumberMarks()).value_or(text);
}

// The formats of the cell, on all that the template has in it.
void TableEntryWriter::applyToTexts(DOMElement* body) const {
    const PPTNodeImpl::Child paragraph = Paragraph().makeInterface();
    for (DOMElement* child : getChildElements(body)) {
        if (!hasName(*child, xml::kAP))
            continue;
        ParagraphWriter writer(*implOf<ParagraphImpl>(*paragraph), getWriter(), getParentNode());
        writer.setAround(*this);
        writer.applyTo(child);
        for (DOMElement* run : getChildElements(child)) {
            if (hasName(*run, xml::kAEndParaRPr))
                applyToText(run);
            else if (findChild(run, xml::kAT))
                applyToText(requireFirstChild(run, xml::kARPr));
        }
    }
}

void TableEntryWriter::applyToText(DOMElement* properties) const {
    const PPTNodeImpl::Child run = Text().makeInterface();
    TextWriter writer(*implOf<TextImpl>(*run), getWriter(), getParentNode());
    writer.setAround(*this);
    writer.applyTo(properties);
}

// Those of a kind that are around the cell, the nearest first, with the kind of node that has each.
template <class F, class Take> void TableEntryWriter::visitFormats(FormatType type, Take take) const {
    const auto visit = [&](const Formats& formats, NodeType owner) {
        if (const boost::shared_ptr<Format> format = formats.getFormat(type))
            take(*implOf<F>(*format), owner);
    };
    for (const PPTNodeImpl* node = &getElement(); node && node->asElement(); node = node->getParent()) {
        visit(node->asElement()->getStyle(), node->getNodeType());
        if (table_ && node->getNodeType() == NodeType::TableRow)
            visit(table_->getColumnFormats(), NodeType::ColSpec);
    }
}

// What columns and tables say is for what stands below their headers.
void TableEntryWriter::findValues() const {
    if (!table_)
        return;
    ValueLook& look = table_->values;
    look = ValueLook();
    const DeckValues* deck = getWriter().getDeckValues();
    const bool isTemplates = !getElement().getParent() && table_->table;
    if (findFormat(FormatType::ValueFormat))
        visitFormats<ValueFormatImpl>(FormatType::ValueFormat, [&](const auto& format, NodeType owner) {
            if (!table_->isInHeader() || owner == NodeType::TableEntry || owner == NodeType::TableRow)
                look.complete(format);
        });
    if (isTemplates && !table_->isInHeader())
        if (const auto format = table_->table->getStyle().getFormat(FormatType::ValueFormat))
            look.complete(*implOf<ValueFormatImpl>(*format));
    if (deck && deck->format && !table_->isInHeader())
        look.complete(*implOf<ValueFormatImpl>(*deck->format));
}

namespace {

constexpr std::size_t kSideCount = 4; // numbered as the facets are
constexpr const XMLCh* kLineNames[kSideCount] = {xml::kALnL, xml::kALnR, xml::kALnT, xml::kALnB};
constexpr const XMLCh* kMarginNames[kSideCount] = {xml::kMarL, xml::kMarR, xml::kMarT, xml::kMarB};

/// For each side of a cell whether it is inside of what has the lines.
class Insides {
public:
    Insides(const TableContext& table, const CellRange& cell)
        : inRow_{cell.column > 0, cell.lastColumn + 1 < table.colCount, false, false},
          inColumn_{false, false, cell.row > 0, cell.lastRow + 1 < table.rowCount} {}

    unsigned int facetOf(std::size_t side, NodeType owner) const {
        const bool isRow = owner == NodeType::TableRow, isColumn = owner == NodeType::ColSpec;
        if (!isColumn && owner != NodeType::TableEntry && inRow_[side])
            return CellBorders::InsideV;
        if (!isRow && owner != NodeType::TableEntry && inColumn_[side])
            return CellBorders::InsideH;
        return static_cast<unsigned int>(side);
    }

private:
    std::array<bool, kSideCount> inRow_, inColumn_;
};

void writeLine(PropertyElement& element, const BorderLine& line) {
    element.setAttribute(xml::kW, std::to_wstring(line.widthEmu));
    if (!line.isThere) {
        element.addChild(xml::kANoFill);
        return;
    }
    element.setAttribute(xml::kCap, xml::kFlat);
    element.setAttribute(xml::kCmpd, line.compound);
    element.setAttribute(xml::kAlgn, xml::kCentered);
    element.addChild(xml::kASolidFill).addChild(xml::kASrgbClr).setAttribute(xml::kVal, line.color);
    element.addChild(xml::kAPrstDash).setAttribute(xml::kVal, line.dash);
}

} // namespace

// The formats of lines around a merged cell, for each side the nearest first. At its far sides it borders on the rest of
// the table in its last row and column.
template <class Take> void TableEntryWriter::visitMerged(const CellRange& cell, Take take) const {
    const auto visit = [&](std::size_t side, const Formats& formats, NodeType owner) {
        if (const boost::shared_ptr<Format> format = formats.getFormat(FormatType::CellBorders))
            take(side, *implOf<CellBordersImpl>(*format), owner);
    };
    for (std::size_t side = 0; side < kSideCount; ++side) {
        const bool isRight = kLineNames[side] == xml::kALnR, isBottom = kLineNames[side] == xml::kALnB;
        if (getElement().getNodeType() == NodeType::TableEntry)
            visit(side, getElement().getStyle(), NodeType::TableEntry);
        if (const auto row = table_->table->row(isBottom ? cell.lastRow : cell.row))
            visit(side, row->getStyle(), NodeType::TableRow);
        visit(side, table_->getColumnFormats(isRight ? cell.lastColumn : cell.column), NodeType::ColSpec);
        visit(side, table_->table->getStyle(), NodeType::Table);
    }
}

// Ahead of the fill, as the format has them.
void TableEntryWriter::applyLines() {
    const std::optional<CellRange> merged = table_ ? table_->findMerged() : std::nullopt;
    if (!merged && !findFormat(FormatType::CellBorders))
        return;
    TableContext none;
    const TableContext& table = table_ ? *table_ : none;
    const Insides insides(table, merged.value_or(CellRange{table.row, table.col, table.row, table.col}));
    std::array<const BorderLine*, kSideCount> lines{};
    const auto take = [&](std::size_t side, const CellBordersImpl& borders, NodeType owner) {
        const auto& line = borders.getLine(insides.facetOf(side, owner));
        if (!lines[side] && line)
            lines[side] = &*line;
    };
    if (merged)
        visitMerged(*merged, take);
    else
        visitFormats<CellBordersImpl>(FormatType::CellBorders, [&](const auto& borders, NodeType owner) {
            for (std::size_t side = 0; side < kSideCount; ++side)
                take(side, borders, owner);
        });
    for (std::size_t side = 0; side < kSideCount; ++side)
        if (lines[side])
            writeLine(addTcPrChild(kLineNames[side]), *lines[side]);
}

void TableEntryWriter::applyMargins() {
    if (!findFormat(FormatType::CellMargins))
        return;
    visitFormats<CellMarginsImpl>(FormatType::CellMargins, [&](const auto& margins, NodeType) {
        for (std::size_t side = 0; side < kSideCount; ++side) {
            const auto& margin = margins.getMargin(static_cast<unsigned int>(side));
            if (margin && !tcPr_.hasAttribute(kMarginNames[side]))
                tcPr_.setAttribute(kMarginNames[side], std::to_wstring(*margin));
        }
    });
}

void TableEntryWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToTableEntry(*this);
}

const ElementWriter::FormatTypes& TableEntryWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{FormatType::BackgroundColor, FormatType::VAlign};
    return types;
}

void TableEntryWriter::setTcPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    tcPr_.setAttribute(name, mapping.xmlValue);
}

void TableEntryWriter::setTcPrFlag(const XMLCh* name, bool value) {
    tcPr_.setAttribute(name, value ? xml::kTrue : xml::kFalse);
}

PropertyElement& TableEntryWriter::addTcPrChild(const XMLCh* name) {
    return tcPr_.addChild(name);
}

void TableEntryWriter::setColumnWidth(int widthEmu) {
    if (table_ && !table_->isWide)
        table_->setColumnWidth(widthEmu);
}

} // namespace vellox::ppt
