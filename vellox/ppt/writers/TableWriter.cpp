#include "vellox/ppt/writers/TableWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ShapeMakers.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

// What a column without a width gets when the others leave nothing of the table's width.
constexpr double kLeastColumnWidth = 208080.0;

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
        return reportNoRows();
    }
    DOMElement* frame = makeFrame();
    writeAltText(frame);
    DOMElement* tbl = readGraphicFrame(frame).tbl;
    if (table_.getStyleName().isSet() && !applyTableStyle(tbl))
        reportMissingStyle();
    arrange(findChild(tbl, xml::kATblPr));
    writeChildren(getCurrentSlide()->getContent(tbl), &context);
    updateGrid(tbl, context);
}

DOMElement* TableWriter::makeFrame() {
    SlideDocument& slide = *getCurrentSlide();
    const ShapeGeometry& geometry = table_.getGeometry();
    DOMElement* former = getSlideElement();
    if (!former)
        return makeFreeTable(slide, geometry.shapeName, geometry, table_.getNCols()).frame;
    DOMNode* parent = former->getParentNode();
    const PlaceText* place = getTemplateShape()->successorPlace.get();
    DOMElement* frame = makeTableInPlace(slide, former, place, table_.getNCols()).frame;
    if (parent)
        parent->replaceChild(frame, former);
    return frame;
}

bool TableWriter::applyTableStyle(DOMElement* tbl) const {
    const std::wstring* styleId = getModel().findTableStyleId(table_.getStyleName().get());
    if (!styleId)
        return false;
    DOMElement* properties = findChild(tbl, xml::kATblPr);
    if (!properties) {
        properties = createElement(xml::kATblPr);
        tbl->insertBefore(properties, tbl->getFirstChild());
    }
    requireChild(properties, xml::kATableStyleId)->setTextContent(opc::XercesString(*styleId));
    return true;
}

// A table of the template that nobody has touched has none either.
void TableWriter::reportNoRows() const {
    if (getShapeType() != NodeType::Table || table_.getNCols() > 0)
        getWriter().report(ppt_finding::emptyTable());
}

void TableWriter::reportMissingStyle() const {
    const std::wstring& style = table_.getStyleName().get();
    const NameHint hint =
        isHeard(table_) ? makeNameHint(style, getModel().listTableStyleNames()) : NameHint();
    getWriter().report(ppt_finding::invalidTableStyle(style, hint.getTail()));
    if (!wantsErrors())
        return;
    const ppt_warning::invalidTableStyle id(style);
    MessageDispatcher::getTheDispatcher().dispatch(
        ErrorMessage(id, *const_cast<TableImpl&>(table_).makeInterface()));
}

void TableWriter::updateGrid(DOMElement* tbl, const TableContext& context) const {
    const auto& widths = context.colWidths;
    double sum = 0;
    std::size_t open = 0;
    for (const std::optional<int>& width : widths) {
        sum += width.value_or(0);
        open += width ? 0 : 1;
    }
    DOMElement* grid = findChild(tbl, xml::kATblGrid);
    if (open == widths.size() || !grid)
        return;
    double total = 0;
    for (const DOMElement* column : getChildElements(grid))
        total += str2double(getAttribute(column, xml::kW));
    const double each =
        open != 0 && total > sum ? (total - sum) / static_cast<double>(open) : kLeastColumnWidth;
    removeChildElements(grid, xml::kAGridCol);
    for (const std::optional<int>& width : widths)
        setAttribute(appendElement(grid, xml::kAGridCol), xml::kW,
                     num2str(truncateToInt(width ? *width : each)));
}

} // namespace vellox::ppt
