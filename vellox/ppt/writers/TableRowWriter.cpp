#include "vellox/ppt/writers/TableRowWriter.h"

#include "vellox/ppt/engine/XmlNames.h"
#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"

namespace vellox::ppt {

namespace {

void appendEmptyCell(xercesc::DOMElement* row) {
    xercesc::DOMElement* cell = appendElement(row, xml::kATc);
    appendElement(appendElement(cell, xml::kATxBody), xml::kABodyPr);
    ensureParagraph(cell);
}

} // namespace

TableRowWriter::TableRowWriter(const TableRowImpl& row, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(row, writer, parentNode),
      row_(row) {}

void TableRowWriter::write() {
    xercesc::DOMElement* element = createElement(xml::kATr);
    setAttribute(element, xml::kH, xml::kFalse); // as high as its text
    for (const auto& entry : row_.getChildren())
        entry->acceptWriter(&getWriter(), element);
    // Readers refuse a row with fewer cells than the grid has columns.
    for (std::size_t i = row_.getChildren().size(); i < getWriter().getTableContext().colWidths.size(); ++i)
        appendEmptyCell(element);
    appendNode(getParentNode(), element);
    getWriter().nextRow();
}

} // namespace vellox::ppt
