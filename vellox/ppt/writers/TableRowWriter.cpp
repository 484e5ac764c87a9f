#include "vellox/ppt/writers/TableRowWriter.h"

#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

TableRowWriter::TableRowWriter(const TableRowImpl& row, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(row, writer, parentNode),
      row_(row) {}

void TableRowWriter::write() {
    xercesc::DOMElement* element = createElement(xml::kATr);
    setAttribute(element, xml::kH, xml::kFalse); // as high as its text
    for (const auto& entry : row_.getChildren())
        entry->acceptWriter(&getWriter(), element);
    appendNode(getParentNode(), element);
    getWriter().nextRow();
}

} // namespace vellox::ppt
