#include "vellox/ppt/writers/ParagraphWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"
#include "vellox/ppt/writers/TextLook.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/writers/ValueTexts.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// The format knows no more levels; lists may be nested deeper.
constexpr unsigned int kDeepestLevel = 9;

} // namespace

ParagraphWriter::ParagraphWriter(const ParagraphImpl& paragraph, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(paragraph, writer, parentNode),
      paragraph_(paragraph),
      pPr_(xml::kAPPr),
      look_(writer.getFrame().texts ? writer.getFrame().texts->find(getLevel()) : nullptr) {}

// From 0, as the format counts them.
unsigned int ParagraphWriter::getLevel() const {
    const BaseAttribute<unsigned int>& level = paragraph_.getLevel();
    return level.isSet() && level.get() != 0 ? std::min(level.get(), kDeepestLevel) - 1 : 0;
}

void ParagraphWriter::write() {
    preparePPr();
    if (const TextImpl* text = isWholeContent() ? findOnlyText(paragraph_) : nullptr) {
        const TextLines lines = showText(*text, getWriter());
        if (lines.size() > 1)
            return writeLines(*text, lines);
    }
    opc::MarkupBuffer& out = getMarkup();
    const std::size_t start = out.openElement("a:p");
    pPr_.writeTo(out);
    const std::size_t content = out.getLength();
    writeChildren(makeRunFrame());
    if (paragraph_.getChildren().empty())
        writeValue();
    writeEnd(out.getLength() > content);
    out.closeElement("a:p", start);
    getWriter().countParagraph();
}

void ParagraphWriter::applyTo(DOMElement* paragraph) {
    applyFormats();
    arrange(pPr_);
    if (pPr_.isEmpty())
        return;
    DOMElement* properties = requireFirstChild(paragraph, xml::kAPPr);
    pPr_.applyTo(properties);
    arrangeAnyway(properties);
}

PPTWriter::Frame ParagraphWriter::makeRunFrame() const {
    PPTWriter::Frame frame = makeFrame();
    frame.runs = look_;
    return frame;
}

// What is behind all runs: how high the line is if there is none, and how what is typed there would look.
// Programs take no notice of a run without text.
void ParagraphWriter::writeEnd(bool hasRuns) const {
    TableContext* table = getWriter().getFrame().table;
    if (table && table->meter)
        table->meter->endLine();
    if (table && getRules().sizesEmptyCells()) {
        const TextImpl* text = hasRuns ? findOnlyText(paragraph_) : nullptr;
        if (!hasRuns || (text && text->getTextContent().empty())) {
            PropertyElement end = look_ ? look_->makeEmptyEnd() : PropertyElement(xml::kAEndParaRPr);
            putFontSize(end);
            return end.writeTo(getMarkup());
        }
    }
    if (look_)
        look_->endParaRPr.writeTo(getMarkup());
}

void ParagraphWriter::preparePPr() {
    applyFormats();
    const BaseAttribute<unsigned int>& level = paragraph_.getLevel();
    if (level.isSet() && level.get() != 0)
        pPr_.setAttribute(xml::kLvl, num2str(getLevel()));
    if (look_)
        pPr_.layOver(look_->pPr);
    if (isAmongNumbers() && !pPr_.hasAttribute(xml::kAlgn))
        pPr_.setAttribute(xml::kAlgn, xml::kRight);
    arrange(pPr_);
}

// Of a text box or a cell with nothing but this paragraph.
bool ParagraphWriter::isWholeContent() const {
    const PPTNodeImpl* parent = paragraph_.getParent();
    return getRules().splitsContents() && parent && parent->getChildren().size() == 1;
}

bool ParagraphWriter::isAmongNumbers() const {
    const TableContext* table = getWriter().getFrame().table;
    return table && getRules().alignsNumbers() && table->isAmongNumbers(paragraph_);
}

void ParagraphWriter::writeLines(const TextImpl& text, const std::vector<std::wstring>& lines) const {
    opc::MarkupBuffer& out = getMarkup();
    for (const std::wstring& line : lines) {
        const std::size_t start = out.openElement("a:p");
        pPr_.writeTo(out);
        writeLine(text, line);
        writeEnd(true);
        out.closeElement("a:p", start);
        getWriter().countParagraph();
    }
}

void ParagraphWriter::writeLine(const TextImpl& text, const std::wstring& line) const {
    const PPTWriter::FrameScope scope(getWriter(), makeRunFrame());
    TextWriter(text, getWriter(), getParentNode()).writeLine(line);
}

// There is no run for it in the tree.
void ParagraphWriter::writeValue() const {
    const TableContext* table = getWriter().getFrame().table;
    const std::optional<bool>& truth = paragraph_.getTruthValue();
    if (truth && (getRules().showsTruth() || (table && table->values.findTruth(*truth))))
        return writeRun((new TextImpl(TextImpl::Given(*truth)))->makeInterface());
    const PPTNodeImpl* parent = paragraph_.getParent();
    if (!truth && table && table->values.missing && parent && parent->getChildren().size() == 1)
        writeRun(Text(*table->values.missing).makeInterface());
}

void ParagraphWriter::writeRun(const boost::shared_ptr<PPTNode>& run) const {
    const PPTWriter::FrameScope scope(getWriter(), makeRunFrame());
    TextWriter writer(*implOf<TextImpl>(*run), getWriter(), getParentNode());
    writer.setFormatsAround(getFormatsInForce());
    writer.write();
}

void ParagraphWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToParagraph(*this);
}

const ElementWriter::FormatTypes& ParagraphWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{FormatType::HAlign};
    return types;
}

void ParagraphWriter::setPPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    pPr_.setAttribute(name, mapping.xmlValue);
}

} // namespace vellox::ppt
