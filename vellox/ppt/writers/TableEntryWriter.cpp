#include "vellox/ppt/writers/TableEntryWriter.h"

#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TableEntryWriter::TableEntryWriter(const TableEntryImpl& entry, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(entry, writer, parentNode),
      table_(writer.getFrame().table),
      tcPr_(xml::kATcPr) {}

void TableEntryWriter::write() {
    applyFormats();
    opc::MarkupBuffer& out = getMarkup();
    out.append("<a:tc><a:txBody><a:bodyPr/>");
    if (writeChildren() == 0)
        out.append(kEmptyParagraph);
    out.append("</a:txBody>");
    arrange(tcPr_);
    tcPr_.writeTo(out);
    out.append("</a:tc>");
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
    if (table_)
        table_->setColumnWidth(widthEmu);
}

} // namespace vellox::ppt
