/// @file
/// What the library knows of a template: plain records, held by shared handles. A record owns the DOM
/// document of its part, and the documents of slides are the ones that are written out. Records and
/// documents are tied together by the attribute data-uid, which never reaches a file:
///
///     node (tree) --> TemplateShape.id == "17"  <-->  <p:sp data-uid="17"> (document)

#ifndef VELLOX_PPT_TEMPLATE_TEMPLATERECORDS_H
#define VELLOX_PPT_TEMPLATE_TEMPLATERECORDS_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <vector>

#include "vellox/foundation/Dimension.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/NodeType.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

struct TemplateLayout;
struct TemplateMaster;
struct TemplateShape;

using ElementMap = std::map<std::wstring, xercesc::DOMElement*>;
using TemplateShapes = std::vector<boost::shared_ptr<TemplateShape>>;

/// A width or a height. That of a picture may be its file's, which counts as set like any other, and yet nobody
/// has asked for it.
class Extent : public BaseAttribute<Dimension> {
public:
    void set(const Dimension& value) override { set(value, false); }
    void unset() override {
        BaseAttribute::unset();
        isFromFile_ = false;
    }
    void setFromFile(const Dimension& value) { set(value, true); }
    /// The same length, set by somebody from now on.
    void adopt() { isFromFile_ = false; }
    bool isFromFile() const { return isFromFile_; }

private:
    void set(const Dimension& value, bool isFromFile) {
        BaseAttribute::set(value);
        isFromFile_ = isFromFile;
    }

    bool isFromFile_ = false;
};

/// Name, place and size as far as somebody has set them; a length that isn't set is inherited.
struct ShapeGeometry {
    BaseAttribute<std::wstring> shapeName;
    BaseAttribute<Dimension> x, y;
    Extent cx, cy;

    bool hasPlacement() const { return x.isSet() || y.isSet() || cx.isSet() || cy.isSet(); }
};

/// One shape element of a layout or a slide. Its geometry holds the name only: positions are read from the
/// documents when they are needed.
struct TemplateShape : ShapeGeometry {
    std::wstring id;                ///< the value of data-uid; counted for the process
    NodeType type = NodeType::None; ///< what the element is
    std::wstring xmlId;             ///< id of p:cNvPr
    std::wstring placeholderType;   ///< type of p:ph, for picture, table and title placeholders
    std::wstring layoutShapeUid;    ///< id of the layout's record with the same xmlId; slides only
    boost::shared_ptr<TemplateShapes> children; ///< of a group
};

struct TemplateTheme {
    std::wstring partName;
    std::wstring name;
};

struct TemplateTableStyle {
    std::wstring styleId;
    std::wstring styleName;
};

struct TemplateMaster {
    std::wstring id;             ///< of p:sldMasterId
    std::wstring relationshipId; ///< of p:sldMasterId
    std::wstring partName;
    boost::shared_ptr<TemplateTheme> theme; ///< may be empty
    std::wstring name;                      ///< the theme's; empty without one
    OwnedDocument document;
    ElementMap shapeElementsById; ///< from the id of a p:cNvPr to the shape that it is in
    boost::shared_ptr<std::vector<boost::shared_ptr<TemplateLayout>>> layouts; ///< in relationship order
    std::map<std::wstring, boost::shared_ptr<TemplateLayout>> layoutsByName;   ///< the first of each name
    std::vector<std::wstring> layoutNames;                                     ///< with repeats
};

struct TemplateLayout {
    std::wstring partName;
    std::wstring type;
    std::wstring masterPartName;
    std::wstring name;
    OwnedDocument document; ///< with data-uid attributes
    ElementMap elementsByUid;
    std::map<std::wstring, std::wstring> shapeUidsById; ///< from the id of a p:cNvPr to the record's id
    boost::shared_ptr<TemplateShapes> shapes;           ///< placeholders only
    boost::shared_ptr<TemplateMaster> master;           ///< cleared when the model ends
    unsigned int maxShapeId = 1;                        ///< greatest id of a p:cNvPr among the shapes
    OwnedDocument slidePrototype;      ///< a new slide of this layout, made with the first; copied for each
    unsigned int lastSlideShapeId = 0; ///< the last id that was given out in the prototype; 0 if none was
    bool isCopiedInPart = false;       ///< not all of it could be had in the prototype
    std::vector<std::wstring> slideRelationshipIds; ///< the layout's relationships that the prototype needs
};

struct TemplateSlide {
    std::wstring id;             ///< of p:sldId; empty in a new slide
    std::wstring relationshipId; ///< empty until the slide list is written
    std::wstring name;
    std::wstring partName; ///< empty until a new slide gets its part
    boost::shared_ptr<TemplateLayout> layout;
    OwnedDocument document; ///< the slide's XML, which becomes the part
    ElementMap elementsByUid;
    boost::shared_ptr<TemplateShapes> shapes; ///< of a new slide: those of its layout, shared
    unsigned int nextShapeId = 0;             ///< the last id of a p:cNvPr that was given out
};

/// Enters every element of a document that bears a data-uid.
ElementMap mapElementsByUid(xercesc::DOMDocument* document);

} // namespace vellox::ppt

#endif
