#include "vellox/ppt/writers/TableEntryWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TableLook.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TableEntryWriter::TableEntryWriter(const ElementImpl& entry, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(entry, writer, parentNode),
      table_(writer.getFrame().table),
      look_(table_ ? table_->getCellLook() : nullptr),
      tcPr_(xml::kATcPr) {}

void TableEntryWriter::write() {
    PPTWriter::Frame frame = makeFrame();
    frame.texts = look_ ? &look_->text : nullptr;
    writeCell([&] {
        if (writeChildren(frame) == 0)
            writeEmpty();
    });
}

void TableEntryWriter::writeBlank() {
    writeCell([&] { writeEmpty(); });
}

void TableEntryWriter::writeEmpty() const {
    const ParagraphLook* former = look_ ? look_->text.find(0) : nullptr;
    if (!getRules().sizesEmptyCells())
        return writeEmptyParagraph(getMarkup(), former);
    ParagraphLook sized;
    if (former) {
        sized.pPr = former->pPr;
        sized.endParaRPr = former->makeEmptyEnd();
    }
    putFontSize(sized.endParaRPr);
    writeEmptyParagraph(getMarkup(), &sized);
}

template <class Content> void TableEntryWriter::writeCell(Content content) {
    applyFormats();
    opc::MarkupBuffer& out = getMarkup();
    out.append("<a:tc><a:txBody><a:bodyPr/>");
    content();
    out.append("</a:txBody>");
    if (look_)
        tcPr_.layOver(look_->tcPr);
    arrange(tcPr_);
    tcPr_.writeTo(out);
    out.append("</a:tc>");
}

void TableEntryWriter::writeOver(const TableEntryImpl& entry, DOMElement* cell) {
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
        arrangeAnyway(properties);
    }
    const std::size_t dropped = entry.getNewText() ? replaceBody(*body, *entry.getNewText()) : 0;
    if (dropped > 0)
        getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
    if (!entry.getStyle().getMap().empty())
        applyToTexts(body);
    if (entry.getChildren().empty())
        return;
    PPTWriter::Frame frame = makeFrame();
    frame.markup = &getCurrentSlide()->getContent(body);
    writeChildren(frame);
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
