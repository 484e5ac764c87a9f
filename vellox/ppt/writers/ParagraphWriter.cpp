#include "vellox/ppt/writers/ParagraphWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Dimension.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/formats/BulletForms.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/rules/Sequences.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/InheritedTexts.h"
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
    finishFormats();
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
    finishFormats();
    const BaseAttribute<unsigned int>& level = paragraph_.getLevel();
    if (level.isSet() && level.get() != 0)
        pPr_.setAttribute(xml::kLvl, num2str(getLevel()));
    if (look_)
        pPr_.layOver(look_->pPr);
    if (isAmongNumbers() && !pPr_.hasAttribute(xml::kAlgn))
        pPr_.setAttribute(xml::kAlgn, xml::kRight);
    if (!isArranged_)
        pPr_.sortChildren(findElementForm(xml::kAPPr)->children);
    arrange(pPr_);
}

// What formats ask for together.
void ParagraphWriter::finishFormats() {
    if (bullet_)
        putBullet();
    if (isRightToLeft_ && !pPr_.hasAttribute(xml::kAlgn))
        pPr_.setAttribute(xml::kAlgn, xml::kRight);
}

// In the font of the text: that of the template's bullets may have other signs in the place of letters.
void ParagraphWriter::putBullet() {
    isArranged_ = false;
    const bool isNone = !bullet_->numbering && bullet_->character.empty();
    if (isNone) {
        pPr_.putChild(xml::kABuNone);
        return;
    }
    pPr_.putChild(xml::kABuFontTx);
    if (bullet_->numbering) {
        PropertyElement& number = pPr_.putChild(xml::kABuAutoNum);
        number.setAttribute(xml::kType, bullet_->numbering);
        if (bullet_->start > 1)
            number.setAttribute(u"startAt", num2str(bullet_->start));
    } else {
        const opc::XercesString character(bullet_->character);
        if (const std::size_t dropped = character.getDropped())
            getWriter().report(ppt_finding::charactersDropped(std::to_wstring(dropped)));
        pPr_.putChild(xml::kABuChar).setAttribute(u"char", character);
    }
    if (!pPr_.hasAttribute(xml::kMarL) && !pPr_.hasAttribute(xml::kIndent))
        hangBullet();
}

// Without a hanging indent the text would begin right behind its bullet, and go on below it.
void ParagraphWriter::hangBullet() {
    constexpr double kHang = 342900;
    if (look_ && look_->pPr.hasAttribute(xml::kIndent))
        return;
    const auto* shape = dynamic_cast<const ShapeImpl*>(paragraph_.getParent());
    const InheritedText& text = getWriter().getInheritedTexts().find(
        getWriter().getCurrentLayout(), shape ? shape->getTemplateShape().get() : nullptr);
    const LevelText& level = text.levels[getLevel()];
    if (level.indent < 0)
        return;
    pPr_.setAttribute(xml::kMarL, num2str(truncateToInt(level.marginLeft + kHang)));
    pPr_.setAttribute(xml::kIndent, num2str(truncateToInt(-kHang)));
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
    writer.setAround(*this);
    writer.write();
}

void ParagraphWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToParagraph(*this);
}

const ElementWriter::FormatTypes& ParagraphWriter::inheritedFormatTypes() const {
    static const FormatTypes& types =
        *new const FormatTypes{FormatType::HAlign,          FormatType::Bullet,      FormatType::SpaceBefore,
                               FormatType::SpaceAfter,      FormatType::LineSpacing, FormatType::LeftIndent,
                               FormatType::FirstLineIndent, FormatType::RightToLeft};
    return types;
}

void ParagraphWriter::setBullet(const std::vector<BulletForm>& forms) {
    bullet_ = forms[std::min<std::size_t>(getLevel(), forms.size() - 1)];
}

void ParagraphWriter::setSpacing(const XMLCh* name, const Dimension& spacing) {
    constexpr double kGreatestShare = 13200000,
                     kGreatestPoints = 158400; // thousandths of a per cent, hundredths
    constexpr double kPerPercent = 1000, kPerLine = 100000, kPerPoint = 100;
    isArranged_ = false;
    PropertyElement& element = pPr_.putChild(name);
    const bool isShare = spacing.isShare();
    const double value = isShare
                             ? spacing.getNumericValue() * (spacing.isPercentValue() ? kPerPercent : kPerLine)
                             : spacing.getPointNumber() * kPerPoint;
    element.addChild(isShare ? u"a:spcPct" : u"a:spcPts")
        .setAttribute(xml::kVal, num2str(truncateToInt(
                                     limit(name, value, 0, isShare ? kGreatestShare : kGreatestPoints))));
}

void ParagraphWriter::setIndent(const XMLCh* name, const Dimension& indent) {
    constexpr double kGreatest = 51206400;
    const bool mayHang = std::u16string_view(name) == xml::kIndent;
    pPr_.setAttribute(name, num2str(truncateToInt(
                                limit(name, indent.getEMUNumber(), mayHang ? -kGreatest : 0, kGreatest))));
}

void ParagraphWriter::setRightToLeft(bool isRightToLeft) {
    isRightToLeft_ = isRightToLeft;
    pPr_.setAttribute(u"rtl", isRightToLeft ? xml::kTrue : xml::kFalse);
}

double ParagraphWriter::limit(const XMLCh* name, double value, double least, double greatest) const {
    const double limited = std::min(std::max(value, least), greatest);
    if (limited != value)
        getWriter().report(ppt_finding::valueLimited(opc::toWideString(name), num2str(truncateToInt(value)),
                                                     num2str(truncateToInt(limited))));
    return limited;
}

void ParagraphWriter::setPPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    pPr_.setAttribute(name, mapping.xmlValue);
}

} // namespace vellox::ppt
