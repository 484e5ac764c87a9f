#include "vellox/ppt/writers/TableEntryWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TableEntryWriter::TableEntryWriter(const TableEntryImpl& entry, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(entry, writer, parentNode),
      entry_(entry),
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

void TableEntryWriter::writeOver(DOMElement* cell) {
    DOMElement* body = findChild(cell, xml::kATxBody);
    if (!body)
        return getWriter().report(ppt_finding::noTextBody());
    applyFormats();
    arrange(tcPr_);
    if (!tcPr_.isEmpty()) {
        DOMElement* properties = findChild(cell, xml::kATcPr);
        if (!properties) {
            properties = createElement(xml::kATcPr);
            cell->insertBefore(properties, body->getNextSibling());
        }
        tcPr_.applyTo(properties);
        arrange(properties);
    }
    const std::size_t dropped = entry_.getNewText() ? replaceBody(*body, *entry_.getNewText()) : 0;
    if (dropped > 0)
        getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
    if (!entry_.getStyle().getMap().empty())
        applyToTexts(body);
    if (!entry_.getChildren().empty())
        writeChildren(getCurrentSlide()->getContent(body), nullptr);
}

// The formats of the cell, on all that the template has in it.
void TableEntryWriter::applyToTexts(DOMElement* body) const {
    const PPTNodeImpl::Child paragraph = Paragraph().makeInterface();
    for (DOMElement* child : getChildElements(body)) {
        if (!hasName(*child, xml::kAP))
            continue;
        ParagraphWriter writer(*implOf<ParagraphImpl>(*paragraph), getWriter(), getParentNode());
        writer.setFormatsAround(getFormatsInForce());
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
    writer.setFormatsAround(getFormatsInForce());
    writer.applyTo(properties);
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
