#include "vellox/ppt/writers/TextWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

TextWriter::TextWriter(const TextImpl& text, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(text, writer, parentNode),
      text_(text),
      rPr_(xml::kARPr) {}

void TextWriter::write() {
    prepare();
    const TextLines lines = getRules().textOf({text_.getTextContent(), text_.getGiven()});
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

void TextWriter::prepare() {
    applyFormats();
    arrange(rPr_);
}

void TextWriter::writeRun(const std::wstring& line) {
    DOMElement* run = createElement(xml::kAR);
    if (!rPr_.isEmpty())
        rPr_.appendTo(run);
    if (const std::size_t dropped = appendText(appendElement(run, xml::kAT), line))
        getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
    appendNode(getParentNode(), run);
}

void TextWriter::writeBreak() {
    DOMElement* lineBreak = createElement(xml::kABr);
    if (!rPr_.isEmpty())
        rPr_.appendTo(lineBreak);
    appendNode(getParentNode(), lineBreak);
}

void TextWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToText(*this);
}

const ElementWriter::FormatTypes& TextWriter::inheritedFormatTypes() const {
    static const FormatTypes& types =
        *new const FormatTypes{FormatType::Bold,       FormatType::Italic,      FormatType::FontColor,
                               FormatType::FontFamily, FormatType::FontSize,    FormatType::Strike,
                               FormatType::Subscript,  FormatType::Superscript, FormatType::Underline};
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
