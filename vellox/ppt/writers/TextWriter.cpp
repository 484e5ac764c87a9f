#include "vellox/ppt/writers/TextWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TextLook.h"
#include "vellox/ppt/writers/ValueTexts.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TextWriter::TextWriter(const TextImpl& text, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(text, writer, parentNode),
      text_(text),
      rPr_(xml::kARPr) {}

void TextWriter::write() {
    prepare();
    const TextLines lines = showText(text_, getWriter());
    for (const std::wstring& line : lines) {
        if (&line != &lines.front())
            writeBreak();
        if (!line.empty() || lines.size() == 1)
            writeRun(line);
    }
}

void TextWriter::writeLine(const std::wstring& line) {
    prepare();
    writeRun(line);
}

void TextWriter::applyTo(DOMElement* properties) {
    prepare();
    rPr_.applyTo(properties);
    arrangeAnyway(properties);
}

void TextWriter::prepare() {
    applyFormats();
    if (const ParagraphLook* look = getWriter().getFrame().runs)
        rPr_.layOver(look->rPr);
    arrange(rPr_);
}

void TextWriter::measure(const std::wstring& line) const {
    TableContext* table = getWriter().getFrame().table;
    if (table && table->meter && !table->isWide)
        table->meter->add(table->col, line, findFontPoints().value_or(ColumnMeter::kUsualPoints));
}

void TextWriter::writeRun(const std::wstring& line) {
    measure(line);
    const opc::XercesString text(line);
    if (const std::size_t dropped = text.getDropped())
        getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
    opc::MarkupBuffer& out = getMarkup();
    out.append("<a:r>");
    rPr_.writeTo(out);
    // Ends with a tag of its own even if it is empty, as a text does that has a node.
    out.append("<a:t>");
    out.appendText(text);
    out.append("</a:t></a:r>");
}

void TextWriter::writeBreak() {
    TableContext* table = getWriter().getFrame().table;
    if (table && table->meter)
        table->meter->endLine();
    opc::MarkupBuffer& out = getMarkup();
    const std::size_t start = out.openElement("a:br");
    rPr_.writeTo(out);
    out.closeElement("a:br", start);
}

void TextWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToText(*this);
}

const ElementWriter::FormatTypes& TextWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{
        FormatType::Bold,      FormatType::Italic,  FormatType::FontColor, FormatType::FontFamily,
        FormatType::FontSize,  FormatType::Strike,  FormatType::Subscript, FormatType::Superscript,
        FormatType::Underline, FormatType::Language};
    return types;
}

void TextWriter::setRPrAttribute(const XMLCh* name, const XMLCh* value) {
    rPr_.setAttribute(name, value);
}

void TextWriter::setRPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    setRPrAttribute(name, mapping.xmlValue);
}

void TextWriter::setRPrFlag(const XMLCh* name, bool value) {
    setRPrAttribute(name, value ? xml::kTrue : xml::kFalse);
}

PropertyElement& TextWriter::addRPrChild(const XMLCh* name) {
    return rPr_.addChild(name);
}

} // namespace vellox::ppt
