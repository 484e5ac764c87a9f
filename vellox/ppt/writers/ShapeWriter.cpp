#include "vellox/ppt/writers/ShapeWriter.h"

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

ShapeWriter::ShapeWriter(const ShapeImpl& shape, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(shape, writer, parentNode),
      shape_(shape) {}

const TemplateShape* ShapeWriter::getTemplateShape() const {
    return shape_.getTemplateShape().get();
}

xercesc::DOMElement* ShapeWriter::getSlideElement() const {
    const TemplateShape* record = getTemplateShape();
    return record ? findSlideElement(record->id) : nullptr;
}

NodeType ShapeWriter::getShapeType() const {
    const TemplateShape* record = getTemplateShape();
    return record ? record->type : NodeType::None;
}

void ShapeWriter::dropDescription(xercesc::DOMElement* element) const {
    xercesc::DOMElement* properties = findChild(findNonVisual(*element), xml::kCNvPr);
    if (properties && !getRules().keepsDescription())
        properties->removeAttribute(xml::kDescr);
}

void ShapeWriter::writeAltText(xercesc::DOMElement* element) const {
    const BaseAttribute<std::wstring>& text = shape_.getAltText();
    xercesc::DOMElement* properties =
        text.isSet() && element ? findChild(findNonVisual(*element), xml::kCNvPr) : nullptr;
    if (properties)
        setAttribute(properties, xml::kDescr, text.get());
}

} // namespace vellox::ppt
