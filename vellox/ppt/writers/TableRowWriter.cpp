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
    opc::MarkupBuffer& out = getMarkup();
    out.append(R"(<a:tr h="0">)"); // as high as its text
    const std::size_t start = out.getLength();
    const FormatsInForce above = getFormatsAbove();
    for (const auto& entry : row_.getChildren()) {
        FormatsInForce formats = above;
        formats.layOver(table.getColumnFormats());
        formats.layOver(row_.getStyle());
        const PPTWriter::FrameScope scope(getWriter(), {&row_, &formats, &table, &out});
        entry->acceptWriter(&getWriter(), getParentNode());
        table.nextEntry();
    }
    out.closeElement("a:tr", start);
    table.nextRow();
}

} // namespace vellox::ppt
