#include "vellox/ppt/writers/ShapeWriter.h"

#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/tree/ShapeImpl.h"

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

} // namespace vellox::ppt
