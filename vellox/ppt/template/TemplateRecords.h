/// @file
/// What the library knows of a template: plain records, held by shared handles, which stay as they were read.
/// Records and documents are tied together by the attribute data-uid, which never reaches a file:
///
///     node (tree) --> TemplateShape.id == "17"  <-->  <p:sp data-uid="17"> (document)

#ifndef VELLOX_PPT_TEMPLATE_TEMPLATERECORDS_H
#define VELLOX_PPT_TEMPLATE_TEMPLATERECORDS_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>
#include <map>
#include <string>
#include <vector>

#include "vellox/foundation/Dimension.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/NodeType.h"
#include "vellox/ppt/package/PackageExtras.h"
#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/template/TextSizes.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

class SlideSource;
struct SlidePrototype;
struct TemplateLayout;
struct TemplateMaster;
struct TemplateShape;

using Place = boost::shared_ptr<const PlaceText>;
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

/// Place and size as far as somebody has set them; a length that isn't set is inherited.
struct ShapeGeometry {
    BaseAttribute<Dimension> x, y;
    Extent cx, cy;

    bool hasPlacement() const { return x.isSet() || y.isSet() || cx.isSet() || cy.isSet(); }
};

/// One shape element of a layout or a slide. Its places are texts until somebody stands there.
struct TemplateShape {
    BaseAttribute<std::wstring> shapeName;
    std::wstring id;                ///< the value of data-uid; counted for the process
    NodeType type = NodeType::None; ///< what the element is
    std::wstring xmlId;             ///< id of p:cNvPr
    std::wstring placeholderType;   ///< type of p:ph, for picture, table and title placeholders
    bool isPlaceholder = false;
    std::wstring phType;   ///< with the index, of any placeholder's p:ph; "obj" where it says none
    std::wstring phIndex;  ///< "0" where it says none
    Place place;           ///< the element's own, in a layout; empty if it gives none
    Place successorPlace;  ///< for a picture or a table in its stead; empty if there is none
    Place textPlace;       ///< for the lengths that a text shape leaves open; empty if there is none
    TextSizes textSizes{}; ///< of its text, in a layout
    boost::shared_ptr<TemplateShapes> children; ///< of a group
    bool givesWayInGroup = false;               ///< whether a picture may take its place in a group
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
    boost::shared_ptr<TemplateTheme> theme;   ///< may be empty
    std::wstring name;                        ///< as the rules make it of the theme's; empty without one
    std::map<std::wstring, Place> placesById; ///< from the id of a p:cNvPr to the place of the shape it is in
    std::map<std::wstring, Place> placesByType; ///< from the type of a placeholder to its place, see Kin.h
    TextSizes titleSizes{}, bodySizes{};        ///< of the texts in placeholders
    unsigned int maxShapeId = 0;                ///< greatest id of a p:cNvPr
    boost::shared_ptr<std::vector<boost::shared_ptr<TemplateLayout>>> layouts; ///< as the rules order them
    std::map<std::wstring, boost::shared_ptr<TemplateLayout>>
        layoutsByName;                     ///< the first of each name, and "#1"
    std::vector<std::wstring> layoutNames; ///< with repeats
};

struct TemplateLayout {
    std::wstring partName;
    std::wstring type;
    std::wstring masterPartName;
    std::wstring name;
    OwnedDocument document;       ///< with data-uid attributes; gone once the prototype stands
    std::vector<Fate> fates;      ///< of the shape tree's elements, in their order
    std::vector<bool> keptPlaces; ///< likewise: whether a placeholder that is emptied keeps its place
    std::map<std::wstring, boost::shared_ptr<TemplateShape>> shapesById;    ///< by the id of their p:cNvPr
    std::map<std::wstring, boost::shared_ptr<TemplateShape>> shapesByIndex; ///< with the types, of their p:ph
    std::map<std::wstring, boost::shared_ptr<TemplateShape>> shapesByType;
    boost::shared_ptr<TemplateShapes> shapes;          ///< placeholders only
    boost::weak_ptr<TemplateMaster> master;            ///< who holds the layout
    unsigned int maxShapeId = 1;                       ///< greatest id of a p:cNvPr among the shapes
    boost::shared_ptr<const SlidePrototype> prototype; ///< made with the first slide, see SlidePrototype.h
};

/// The speaker's page of a slide, as it was read or has been changed since.
struct TemplateNotes {
    OwnedDocument document;
    bool isChanged = false;
};

/// One slide of a deck: a new one, which comes from its layout, one of the template, or a copy of either.
struct TemplateSlide {
    std::wstring id;             ///< of p:sldId; empty in a new slide
    std::wstring relationshipId; ///< empty until the slide list is written
    std::wstring name;
    std::wstring partName;   ///< empty until all slides are written
    std::wstring originName; ///< of a copy of one of the template's: the part of that one
    bool isHidden = false;
    boost::shared_ptr<TemplateLayout> layout;
    /// With data-uid attributes, as read or with what was filled in since; empty in a new slide and its copies.
    boost::shared_ptr<const SlideSource> source;
    boost::shared_ptr<const TemplateNotes> notes; ///< empty until somebody asks for it, or if there is none
    bool areNotesRead = false;
    boost::shared_ptr<TemplateShapes> shapes; ///< of a new slide: those of its layout, shared
};

/// A template as it was read. Nothing that is made of it changes it, but that prototypes come to stand.
struct ReadTemplate {
    std::wstring presentationPartName;
    OwnedDocument presentationDocument;
    std::wstring slideHeight;                               ///< in EMU
    std::vector<boost::shared_ptr<TemplateMaster>> masters; ///< in the order of the presentation part
    std::vector<std::wstring> masterNames;                  ///< one for each, with repeats
    std::map<std::wstring, boost::shared_ptr<TemplateMaster>> mastersByPartName;
    std::vector<boost::shared_ptr<TemplateMaster>> searchOrder; ///< of masters, for layouts by name
    std::map<std::wstring, boost::shared_ptr<TemplateMaster>> mastersByName; ///< the first of each name
    std::map<std::wstring, boost::shared_ptr<TemplateLayout>> layoutsByPartName;
    std::vector<boost::shared_ptr<const TemplateSlide>> slides; ///< in the order of the presentation part
    std::vector<boost::shared_ptr<TemplateTableStyle>> tableStyles;
    std::vector<PackageExtra> extras; ///< those that the rules may leave out
    std::wstring tableStylesPartName; ///< empty if there is none
    OwnedDocument tableStylesDocument;
    std::wstring defaultTableStyleId; ///< of new tables; empty if the template doesn't say
    bool isDefaultTableStyleDefined = false;
};

} // namespace vellox::ppt

#endif
