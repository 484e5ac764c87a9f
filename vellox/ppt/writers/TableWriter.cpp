#include "vellox/ppt/writers/TableWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ShapeMakers.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TableEntryWriter.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <tuple>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// By the numbers of the parts.
constexpr const XMLCh* kPartNames[kTablePartCount] = {xml::kFirstRow, xml::kLastRow, xml::kFirstCol,
                                                      xml::kLastCol,  xml::kBandRow, xml::kBandCol};

TableParts readParts(const DOMElement* tbl) {
    const DOMElement* properties = findChild(tbl, xml::kATblPr);
    TableParts parts;
    for (std::size_t i = 0; i < kTablePartCount; ++i) {
        const std::wstring value = getAttribute(properties, kPartNames[i]);
        if (!value.empty())
            parts[i] = value == L"1" || value == L"true";
    }
    return parts;
}

bool isShown(const TableParts& parts, TablePart part) {
    return parts[static_cast<std::size_t>(part)].value_or(false);
}

} // namespace

TableWriter::TableWriter(const TableImpl& table, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(table, writer, parentNode),
      table_(table) {}

void TableWriter::write() {
    if (!getCurrentSlide())
        return;
    TableContext context(table_);
    if (table_.getChildren().empty()) {
        if (getShapeType() != NodeType::Picture)
            ensureParagraph(getSlideElement());
        writeTemplateCells(context);
        return reportNoRows();
    }
    readFormer();
    const GraphicFrameElements made = makeGraphicFrame();
    writeAltText(made.frame);
    writeProperties(made.tbl);
    if (getRules().measuresColumns())
        context.meter.emplace(context.colCount);
    if (getRules().alignsNumbers())
        context.numberColumns = findNumberColumns(table_);
    context.look = look_ ? &*look_ : nullptr;
    context.hasTotalRow = isShown(parts_, TablePart::TotalRow) && isShown(formerParts_, TablePart::TotalRow);
    PPTWriter::Frame frame = makeFrame();
    frame.table = &context;
    frame.markup = &getCurrentSlide()->getContent(made.tbl);
    writeChildren(frame);
    updateGrid(made, context);
}

// Before it goes.
void TableWriter::readFormer() {
    DOMElement* former = getShapeType() == NodeType::Table ? getSlideElement() : nullptr;
    if (!former || !getRules().keepsLook())
        return;
    formerTbl_ = readGraphicFrame(former).tbl;
    if (!formerTbl_)
        return;
    look_.emplace(*formerTbl_);
    formerParts_ = readParts(formerTbl_);
}

GraphicFrameElements TableWriter::makeGraphicFrame() {
    SlideDocument& slide = *getCurrentSlide();
    const ShapeGeometry& geometry = table_.getGeometry();
    DOMElement* former = getSlideElement();
    if (!former)
        return makeFreeTable(slide, table_.getWrittenName(), geometry, table_.getNCols());
    DOMNode* parent = former->getParentNode();
    const PlaceText* place = getTemplateShape()->successorPlace.get();
    const GraphicFrameElements made = makeTableInPlace(slide, former, place, table_.getNCols());
    if (parent)
        parent->replaceChild(made.frame, former);
    dropDescription(made.frame);
    return made;
}

// Properties

void TableWriter::writeProperties(DOMElement* tbl) {
    parts_ = getRules().showParts(table_.getParts(), formerTbl_ ? &formerParts_ : nullptr);
    const TableStyle style = chooseStyle();
    if (!style.isFound)
        reportMissingStyle(*getStyleName());
    DOMElement* properties = findChild(formerTbl_, xml::kATblPr);
    const bool isSaid =
        std::any_of(parts_.begin(), parts_.end(), [](const auto& part) { return part.has_value(); });
    if (!properties && !isSaid && style.id.empty())
        return;
    if (!properties)
        properties = createElement(xml::kATblPr);
    tbl->insertBefore(properties, tbl->getFirstChild());
    showParts(properties);
    if (!style.id.empty())
        writeStyle(properties, style.id);
    arrange(properties);
}

void TableWriter::showParts(DOMElement* properties) const {
    for (std::size_t i = 0; i < kTablePartCount; ++i)
        if (parts_[i])
            properties->setAttribute(kPartNames[i], *parts_[i] ? xml::kTrue : xml::kFalse);
}

// Null if the table has none.
const std::wstring* TableWriter::getStyleName() const {
    if (table_.getStyleName().isSet())
        return &table_.getStyleName().get();
    const BaseAttribute<std::wstring>& brought = table_.getBroughtStyleName();
    return brought.isSet() && getRules().bringsStyleName() ? &brought.get() : nullptr;
}

TableStyle TableWriter::chooseStyle() const {
    const PresentationModel& model = getModel();
    const ReadTemplate& source = model.getTemplate();
    TableStyleFacts facts;
    facts.name = getStyleName();
    facts.named = facts.name ? model.findTableStyleId(*facts.name) : nullptr;
    std::wstring former;
    if (formerTbl_) {
        const DOMElement* id = findDescendant(formerTbl_, {xml::kATblPr, xml::kATableStyleId});
        former = id ? opc::toWideString(id->getTextContent()) : std::wstring();
        facts.former = &former;
    }
    facts.standard = source.defaultTableStyleId.empty() ? nullptr : &source.defaultTableStyleId;
    facts.isStandardDefined = source.isDefaultTableStyleDefined;
    return getRules().chooseTableStyle(facts);
}

// A style of the table's own, which few programs write, would hide the one that is asked for.
void TableWriter::writeStyle(DOMElement* properties, const std::wstring& id) const {
    removeChildElements(properties, xml::kATableStyle);
    requireChild(properties, xml::kATableStyleId)->setTextContent(opc::XercesString(id));
    getWriter().useTableStyle(id);
}

void TableWriter::writeTemplateCells(TableContext& context) const {
    PPTWriter::Frame frame = getWriter().getFrame();
    frame.table = &context;
    const PPTWriter::FrameScope scope(getWriter(), frame);
    for (const auto& [place, entry] : table_.getTemplateCells()) {
        const auto* impl = implOf<TableEntryImpl>(*entry);
        std::tie(context.row, context.col) = place;
        DOMElement* cell =
            impl->isTouched() ? findCell(getSlideElement(), place.first, place.second) : nullptr;
        if (cell)
            TableEntryWriter(*impl, getWriter(), getParentNode()).writeOver(*impl, cell);
        else if (impl->isTouched())
            getWriter().report(ppt_finding::emptyTable());
    }
}

// A table of the template that nobody has touched has none either.
void TableWriter::reportNoRows() const {
    if (getShapeType() != NodeType::Table || table_.getNCols() > 0)
        getWriter().report(ppt_finding::emptyTable());
}

void TableWriter::reportMissingStyle(const std::wstring& name) const {
    const NameHint hint = isHeard(table_) ? makeNameHint(name, getModel().listTableStyleNames()) : NameHint();
    getWriter().report(ppt_finding::invalidTableStyle(name, hint.getTail()));
    if (!wantsErrors())
        return;
    const ppt_warning::invalidTableStyle id(name);
    MessageDispatcher::getTheDispatcher().dispatch(
        ErrorMessage(id, *const_cast<TableImpl&>(table_).makeInterface()));
}

// Columns

GridFacts TableWriter::describeGrid(const DOMElement* grid, const TableContext& context) const {
    GridFacts facts;
    for (const DOMElement* column : getChildElements(grid))
        facts.equalSum += str2double(getAttribute(column, xml::kW));
    const bool keepsWidths = look_ && look_->getColumnWidths().size() == context.colWidths.size();
    for (std::size_t i = 0; i < context.colWidths.size(); ++i) {
        ColumnFacts& column = facts.columns.emplace_back();
        column.width = context.colWidths[i];
        if (keepsWidths)
            column.former = look_->getColumnWidths()[i];
        if (context.meter) {
            column.longestLine = context.meter->get()[i].longestLine;
            column.longestWord = context.meter->get()[i].longestWord;
        }
    }
    return facts;
}

void TableWriter::updateGrid(const GraphicFrameElements& frame, const TableContext& context) const {
    DOMElement* ext = findDescendant(frame.frame, {xml::kXfrm, xml::kAExt});
    const auto isSet = [](const std::optional<int>& width) { return width.has_value(); };
    if (!context.meter && std::none_of(context.colWidths.begin(), context.colWidths.end(), isSet))
        return;
    GridFacts facts = describeGrid(frame.tblGrid, context);
    facts.total =
        look_ && look_->getWidth() > 0 ? look_->getWidth() : str2double(getAttribute(ext, xml::kCx));
    const std::vector<int> widths = getRules().shareWidth(facts);
    if (widths.empty())
        return;
    std::vector<DOMElement*> columns = getChildElements(frame.tblGrid);
    while (columns.size() < widths.size())
        columns.push_back(appendElement(frame.tblGrid, xml::kAGridCol));
    double sum = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        setAttribute(columns[i], xml::kW, num2str(widths[i]));
        sum += widths[i];
    }
    if (context.meter)
        setAttribute(ext, xml::kCx, num2str(truncateToInt(sum)));
}

} // namespace vellox::ppt
