#include "vellox/ppt/writers/BaseTextBoxWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/ShapeMakers.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

BaseTextBoxWriter::BaseTextBoxWriter(const BaseTextBoxImpl& textBox, PPTWriter& writer, DOMNode* parentNode)
    : ShapeWriter(textBox, writer, parentNode),
      textBox_(textBox) {}

DOMElement* BaseTextBoxWriter::findOrMakeShape() {
    const ShapeGeometry& geometry = textBox_.getGeometry();
    DOMElement* shape = getSlideElement();
    if (!shape)
        return makeFreeTextBox(*getCurrentSlide(), geometry.shapeName, geometry).sp;
    placeExistingTextShape(shape, *getCurrentSlide(), getLayoutElement(), geometry);
    shape->removeAttribute(xml::kDataUid);
    return shape;
}

void BaseTextBoxWriter::write() {
    if (!getCurrentSlide())
        return;
    DOMElement* shape = findOrMakeShape();
    DOMElement* txBody = findChild(shape, xml::kTxBody);
    spPr_ = findChild(shape, xml::kSpPr);
    bodyPr_ = findChild(txBody, xml::kABodyPr);
    applyFormats(textBox_, inheritedFormatTypes());
    if (spPr_ && !spPr_->getParentNode())
        getWriter().report(ppt_finding::noShapeProperties());
    if (!txBody)
        return reportLostText();
    if (textBox_.isContentReplaced())
        removeChildElements(txBody, xml::kAP);
    if (bodyPr_ && !findChild(txBody, xml::kABodyPr))
        txBody->appendChild(bodyPr_);
    for (const auto& child : textBox_.getChildren())
        child->acceptWriter(&getWriter(), txBody);
    ensureParagraph(shape);
}

void BaseTextBoxWriter::reportLostText() const {
    if (!textBox_.getChildren().empty() || bodyPr_)
        getWriter().report(ppt_finding::noTextBody());
}

void BaseTextBoxWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToTextBox(*this);
}

const ElementWriter::FormatTypes& BaseTextBoxWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{FormatType::BackgroundColor};
    return types;
}

DOMElement* BaseTextBoxWriter::getBodyPr() {
    if (!bodyPr_)
        bodyPr_ = createElement(xml::kABodyPr);
    return bodyPr_;
}

void BaseTextBoxWriter::setBodyPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    getBodyPr()->setAttribute(name, mapping.xmlValue);
}

void BaseTextBoxWriter::setBodyPrAttribute(const XMLCh* name, const std::wstring& text) {
    setAttribute(getBodyPr(), name, text);
}

void BaseTextBoxWriter::setBodyPrFlag(const XMLCh* name, bool value) {
    getBodyPr()->setAttribute(name, value ? xml::kTrue : xml::kFalse);
}

DOMElement* BaseTextBoxWriter::getSpPr() {
    if (!spPr_)
        spPr_ = createElement(xml::kASpPr);
    return spPr_;
}

// A shape has one fill: what a template's shape has instead, such as a:noFill, gives way.
DOMElement* BaseTextBoxWriter::addSpPrChild(const XMLCh* name) {
    for (const XMLCh* other :
         {xml::kANoFill, xml::kAGradFill, xml::kABlipFill, xml::kAPattFill, xml::kAGrpFill})
        removeChildElements(getSpPr(), other);
    DOMElement* child = createElement(name);
    DOMElement* former = findChild(getSpPr(), name);
    if (former)
        getSpPr()->replaceChild(child, former);
    else
        getSpPr()->appendChild(child);
    return child;
}

} // namespace vellox::ppt
