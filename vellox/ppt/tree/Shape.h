/// @file
/// Shapes: what has a place and a size on a slide.

#ifndef VELLOX_PPT_TREE_SHAPE_H
#define VELLOX_PPT_TREE_SHAPE_H

#include <string>

#include "vellox/Api.h"
#include "vellox/foundation/Dimension.h"
#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class ShapeImpl;

/// The base of text boxes, pictures, tables and groups. A handle: copies share one shape.
///
/// Places and sizes are lengths as text, such as L"2.5cm" (see Dimension; a bare number is in pixels). One
/// that isn't set is the template's; a free shape that sets none stands at the top left corner of the slide.
class VELLOX_API Shape : public Element {
public:
    Shape();
    explicit Shape(const std::wstring& name);

    /// Sets the name that the shape is found by and that it bears in the file.
    void setName(const std::wstring& name);

    /// @{ The left edge and the top edge, from the slide's.
    /// @throws invalidDimensionSign, invalidDimensionUnits
    const BaseAttribute<Dimension>& getX() const;
    void setX(const std::wstring& length);
    void unsetX();
    const BaseAttribute<Dimension>& getY() const;
    void setY(const std::wstring& length);
    void unsetY();
    /// @}
    /// @{ The size. A negative one is written as 0.
    /// @throws invalidDimensionSign, invalidDimensionUnits
    const BaseAttribute<Dimension>& getWidth() const;
    void setWidth(const std::wstring& length);
    void unsetWidth();
    const BaseAttribute<Dimension>& getHeight() const;
    void setHeight(const std::wstring& length);
    void unsetHeight();
    /// @}

    /// @{ What the shape shows, in words, for people who can't see it. One that isn't set is the template's; an
    /// empty one says that the shape shows nothing of interest.
    const BaseAttribute<std::wstring>& getAltText() const;
    void setAltText(const std::wstring& text);
    void unsetAltText();
    /// @}

    /// Gives the shape other content. What a shape takes is told at its class; a bare shape, a group and a
    /// picture take none.
    /// @throws invalidReplaceArg for what the shape doesn't take
    void replace(const HvContentPtr& content);

    /// The node as a Shape, or an empty pointer.
    static boost::shared_ptr<Shape> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit Shape(ShapeImpl* impl);
    ShapeImpl* pimpl();
    const ShapeImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
