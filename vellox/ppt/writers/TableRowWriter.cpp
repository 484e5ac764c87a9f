#include "vellox/ppt/writers/TableRowWriter.h"

#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

TableRowWriter::TableRowWriter(const TableRowImpl& row, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(row, writer, parentNode),
      row_(row) {}

void TableRowWriter::write() {
    TableContext none; // for a row that has got into something else, by way of the handle that stood there
    TableContext* around = getWriter().getFrame().table;
    TableContext& table = around ? *around : none;
    xercesc::DOMElement* element = createElement(xml::kATr);
    setAttribute(element, xml::kH, xml::kFalse); // as high as its text
    const FormatsInForce above = getFormatsAbove();
    for (const auto& entry : row_.getChildren()) {
        FormatsInForce formats = above;
        formats.layOver(table.getColumnFormats());
        formats.layOver(row_.getStyle());
        const PPTWriter::FrameScope scope(getWriter(), {&row_, &formats, &table});
        entry->acceptWriter(&getWriter(), element);
        table.nextEntry();
    }
    appendNode(getParentNode(), element);
    table.nextRow();
}

} // namespace vellox::ppt
