#include "vellox/ppt/writers/TableRowWriter.h"

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TableEntryWriter.h"
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
    out.append(R"(<a:tr h=")" + std::to_string(table.getRowHeight(row_)) + R"(">)");
    const std::size_t start = out.getLength();
    FormatsInForce above = getFormatsAbove();
    const auto writeNext = [&](const auto& writeEntry) {
        if (!above.isCurrent())
            above = getFormatsAbove();
        FormatsInForce formats = above;
        formats.layOver(table.getColumnFormats());
        formats.layOver(row_.getStyle());
        PPTWriter::Frame frame;
        frame.element = &row_;
        frame.formats = &formats;
        frame.table = &table;
        frame.markup = &out;
        const PPTWriter::FrameScope scope(getWriter(), frame);
        writeEntry();
        table.nextEntry();
    };
    const PPTNode::Children& entries = row_.getChildren();
    for (std::size_t i = 0; i < entries.size(); ++i) { // a listener that hears of a finding may change them
        const auto entry = entries[i];
        writeNext([&] { entry->acceptWriter(&getWriter(), getParentNode()); });
    }
    while (table.col < table.colCount && getRules().fillsRows())
        writeNext([&] {
            TableEntryWriter blank(row_, getWriter(), getParentNode());
            blank.writeBlank();
        });
    out.closeElement("a:tr", start);
    table.nextRow();
}

} // namespace vellox::ppt
