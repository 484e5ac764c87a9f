#include "vellox/ppt/writers/TableEntryWriter.h"

#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TableEntryWriter::TableEntryWriter(const TableEntryImpl& entry, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(entry, writer, parentNode),
      entry_(entry),
      tcPr_(xml::kATcPr) {}

void TableEntryWriter::write() {
    applyFormats(entry_, inheritedFormatTypes());
    DOMElement* cell = createElement(xml::kATc);
    DOMElement* body = appendElement(cell, xml::kATxBody);
    appendElement(body, xml::kABodyPr);
    for (const auto& child : entry_.getChildren())
        child->acceptWriter(&getWriter(), body);
    ensureParagraph(cell);
    if (!tcPr_.isEmpty())
        tcPr_.appendTo(cell);
    getParentNode()->appendChild(cell);
    getWriter().nextEntry();
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

} // namespace vellox::ppt
