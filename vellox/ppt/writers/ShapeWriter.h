/// @file
/// How a shape finds its record and its element in the slide's document.

#ifndef VELLOX_PPT_WRITERS_SHAPEWRITER_H
#define VELLOX_PPT_WRITERS_SHAPEWRITER_H

#include "vellox/ppt/object/NodeType.h"
#include "vellox/ppt/writers/ElementWriter.h"

namespace vellox::ppt {

class ShapeImpl;
struct TemplateShape;

class ShapeWriter : public ElementWriter {
public:
    ShapeWriter(const ShapeImpl& shape, PPTWriter& writer, xercesc::DOMNode* parentNode);

    const ShapeImpl& getShape() const { return shape_; }
    /// Null for a shape that a caller made.
    const TemplateShape* getTemplateShape() const;
    /// Null for a shape that a caller made.
    xercesc::DOMElement* getSlideElement() const;
    /// What the slide's element is; None for a shape that a caller made.
    NodeType getShapeType() const;

protected:
    /// Takes off what described the shape that this one came in the stead of, as far as the rules want it.
    void dropDescription(xercesc::DOMElement* element) const;
    /// Writes the alternative text of the shape, if it has one of its own, to its element.
    void writeAltText(xercesc::DOMElement* element) const;

private:
    const ShapeImpl& shape_;
};

} // namespace vellox::ppt

#endif
