#include "vellox/ppt/writers/BaseTextBoxWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ShapeMakers.h"
#include "vellox/ppt/writers/TextFit.h"
#include "vellox/ppt/writers/TextLook.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

BaseTextBoxWriter::BaseTextBoxWriter(const BaseTextBoxImpl& textBox, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(textBox, writer, parentNode),
      textBox_(textBox),
      spPr_(xml::kSpPr),
      bodyPr_(xml::kABodyPr) {}

namespace {

constexpr unsigned int kWhole = 100000; // thousandths of a per cent

double findLength(const BaseAttribute<Dimension>& own, const PlaceText* place,
                  std::wstring PlaceText::*inherited) {
    return own.isSet() ? own.get().getEMUNumber() : place ? str2double(place->*inherited) : 0;
}

} // namespace

DOMElement* BaseTextBoxWriter::findOrMakeShape() {
    const ShapeGeometry& geometry = textBox_.getGeometry();
    DOMElement* shape = getSlideElement();
    if (!shape)
        return makeFreeTextBox(*getCurrentSlide(), textBox_.getWrittenName(), geometry).sp;
    placeExistingTextShape(shape, getTemplateShape()->textPlace.get(), geometry);
    shape->removeAttribute(xml::kDataUid);
    return shape;
}

void BaseTextBoxWriter::write() {
    SlideDocument* slide = getCurrentSlide();
    if (!slide)
        return;
    const bool mayBeText = staysInPlace();
    DOMElement* shape = mayBeText ? nullptr : findOrMakeShape();
    applyFormats();
    putAutofit();
    arrange(bodyPr_);
    if (mayBeText && spPr_.isEmpty() && bodyPr_.isEmpty())
        return writeParagraphs(slide->getText(getTemplateShape()->id), nullptr, false);
    if (!shape)
        shape = findOrMakeShape();
    writeAltText(shape);
    resize(shape);
    DOMElement* txBody = findChild(shape, xml::kTxBody);
    writeSpPr(shape);
    arrange(findChild(shape, xml::kSpPr));
    if (!txBody && !textBox_.getChildren().empty() && getRules().givesTextBodies())
        txBody = makeTextBody(shape);
    if (!txBody)
        return reportLostText();
    TextLook former;
    if (textBox_.isContentReplaced()) {
        if (getRules().keepsLook())
            former = TextLook(txBody);
        removeChildElements(txBody, xml::kAP);
    }
    writeBodyPr(txBody);
    writeParagraphs(slide->getContent(txBody), &former, findChild(txBody, xml::kAP));
}

// A shape that gets nothing but paragraphs needs no nodes.
bool BaseTextBoxWriter::staysInPlace() const {
    const TemplateShape* record = getTemplateShape();
    return record && !textBox_.getGeometry().hasPlacement() && !textBox_.getAltText().isSet() &&
           getCurrentSlide()->takesText(record->id);
}

void BaseTextBoxWriter::writeParagraphs(opc::MarkupBuffer& out, const TextLook* former,
                                        bool hasParagraphs) const {
    PPTWriter::Frame frame = makeFrame();
    frame.markup = &out;
    frame.texts = former;
    if (writeChildren(frame) == 0 && !hasParagraphs)
        writeEmptyParagraph(out, former ? former->find(0) : nullptr);
}

void BaseTextBoxWriter::reportLostText() const {
    if (!textBox_.getChildren().empty() || !bodyPr_.isEmpty())
        getWriter().report(ppt_finding::noTextBody());
}

void BaseTextBoxWriter::putAutofit() {
    const BaseAttribute<std::wstring>& wish = textBox_.getAutofit();
    if (!wish.isSet())
        return;
    const bool isNone = wish.get() == autofit::kNone;
    PropertyElement& autofit = bodyPr_.putChild(isNone                           ? xml::kANoAutofit
                                                : wish.get() == autofit::kShrink ? xml::kANormAutofit
                                                                                 : xml::kASpAutoFit);
    if (!isNone && getRules().measuresTexts())
        measure(autofit);
}

// What a slide of the template has in a shape beside the paragraphs that are known here has no measure.
void BaseTextBoxWriter::measure(PropertyElement& autofit) {
    const TemplateShape* record = getTemplateShape();
    const TemplateLayout* layout = getWriter().getCurrentLayout();
    const bool isNew = !record || textBox_.isContentReplaced() || getWriter().isOnNewSlide();
    const PlaceText* place = !record             ? nullptr
                             : record->textPlace ? record->textPlace.get()
                                                 : record->successorPlace.get();
    const double cx = findLength(textBox_.getGeometry().cx, place, &PlaceText::cx);
    const double cy = findLength(textBox_.getGeometry().cy, place, &PlaceText::cy);
    if (!isNew || textBox_.getChildren().empty() || cx <= 0)
        return;
    const TextFit fit(textBox_, getWriter().getInheritedTexts().find(layout, record), getWriter().getFonts());
    for (const std::wstring& font : fit.getMissingFonts())
        getWriter().report(ppt_finding::fontNotInstalled(font));
    if (textBox_.getAutofit().get() == autofit::kResize) {
        fittingHeight_ = fit.findHeight(cx, {kWhole, 0});
        return;
    }
    if (cy <= 0)
        return;
    const Shrinking shrinking = fit.findShrinking(cx, cy);
    const double need = fit.findHeight(cx, shrinking) / cy;
    if (need > 1)
        getWriter().report(ppt_finding::textTooLong(num2str(truncateToInt(need * 100))));
    if (shrinking.fontScale < kWhole)
        autofit.setAttribute(u"fontScale", num2str(shrinking.fontScale));
    if (shrinking.spacingReduction > 0)
        autofit.setAttribute(u"lnSpcReduction", num2str(shrinking.spacingReduction));
}

void BaseTextBoxWriter::resize(DOMElement* shape) const {
    if (fittingHeight_ <= 0)
        return;
    const TemplateShape* record = getTemplateShape();
    ShapeGeometry geometry = textBox_.getGeometry();
    geometry.cy.set(Dimension(num2str(truncateToInt(fittingHeight_)) + Dimension::dim2str(Dimension::emus)));
    placeExistingTextShape(shape, record ? record->textPlace.get() : nullptr, geometry);
}

// Shapes that are drawn needn't have one.
DOMElement* BaseTextBoxWriter::makeTextBody(DOMElement* shape) const {
    DOMElement* txBody = appendElement(shape, xml::kTxBody);
    appendElement(txBody, xml::kABodyPr);
    arrange(shape);
    return txBody;
}

void BaseTextBoxWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToTextBox(*this);
}

const ElementWriter::FormatTypes& BaseTextBoxWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{FormatType::BackgroundColor};
    return types;
}

void BaseTextBoxWriter::setBodyPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    bodyPr_.setAttribute(name, mapping.xmlValue);
}

void BaseTextBoxWriter::setBodyPrAttribute(const XMLCh* name, const std::wstring& text) {
    bodyPr_.setAttribute(name, text);
}

void BaseTextBoxWriter::setBodyPrFlag(const XMLCh* name, bool value) {
    bodyPr_.setAttribute(name, value ? xml::kTrue : xml::kFalse);
}

PropertyElement& BaseTextBoxWriter::addSpPrChild(const XMLCh* name) {
    return spPr_.putChild(name);
}

// A shape has one fill: what a template's shape has instead, such as a:noFill, gives way.
void BaseTextBoxWriter::writeSpPr(DOMElement* shape) const {
    if (spPr_.isEmpty())
        return;
    DOMElement* properties = findChild(shape, xml::kSpPr);
    if (!properties)
        return getWriter().report(ppt_finding::noShapeProperties());
    for (const XMLCh* other :
         {xml::kANoFill, xml::kAGradFill, xml::kABlipFill, xml::kAPattFill, xml::kAGrpFill})
        removeChildElements(properties, other);
    spPr_.applyTo(properties);
}

void BaseTextBoxWriter::writeBodyPr(DOMElement* txBody) const {
    if (bodyPr_.isEmpty())
        return;
    if (DOMElement* properties = findChild(txBody, xml::kABodyPr))
        bodyPr_.applyTo(properties);
    else
        bodyPr_.appendTo(txBody);
    arrange(txBody);
    arrange(findChild(txBody, xml::kABodyPr));
}

} // namespace vellox::ppt
