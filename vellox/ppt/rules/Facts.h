/// @file
/// What the rules are told and what they answer: plain values, whoever has read them and wherever from.

#ifndef VELLOX_PPT_RULES_FACTS_H
#define VELLOX_PPT_RULES_FACTS_H

#include <optional>
#include <string>
#include <vector>

#include "vellox/ppt/object/NodeType.h"

namespace vellox::ppt {

// A template is opened

struct PackageFacts {
    bool hasMainPart = false;
    std::wstring mainType; ///< content type of the main part
};

/// Why a package is no template.
enum class Refusal {
    None,         ///< it is one
    NoMainPart,   ///< nothing leads to a main part, or there is none where it leads
    OtherMainType ///< its main part is something else
};

// A layout or a slide is read

/// How the shapes of a layout are found.
enum class TreePath {
    FirstChildren, ///< down the first element of each level
    ByName         ///< p:cSld and p:spTree, wherever they stand among their neighbours
};

enum class ShapeElement { Other, Shape, Picture, Group, GraphicFrame, Connector };

/// One element of a shape tree, as the rules see it.
struct ShapeFacts {
    ShapeElement element = ShapeElement::Other;
    std::wstring id; ///< with the name, of its p:cNvPr
    std::wstring name;
    bool isPlaceholder = false;
    std::wstring placeholderType; ///< with the index, of its p:ph
    std::wstring placeholderIndex;
    bool hasTextBody = false;
    bool hasTable = false;
    bool isInGroup = false;
};

/// Where a shape stands, in the words of its a:xfrm or p:xfrm: not all of them need be numbers, and who puts
/// nothing there needn't know.
struct PlaceText {
    std::wstring x, y, cx, cy; ///< in EMU; empty where it says nothing
    bool isWhole = false;      ///< both a:off and a:ext are there
};

/// The places that a shape may get its own from. Null where somebody has none.
struct PlaceFacts {
    NodeType type = NodeType::None;
    const PlaceText* own = nullptr;
    const PlaceText* layouts = nullptr; ///< of the layout's shape of the same id
    const PlaceText* masters = nullptr; ///< of the master's shape of the same id
};

enum class PlaceSource { None, Own, Layout, Master };

/// What a place is for.
enum class PlaceUse {
    Successor, ///< for a picture or a table that comes in the shape's stead
    Text       ///< for the lengths that a caller leaves open on a text shape
};

// A slide comes from a layout

/// What else a layout has that a slide of it may get.
enum class Inherited {
    ShowMasterShapes, ///< the attribute showMasterSp
    Background,       ///< p:bg
    ColourMap,        ///< p:clrMapOvr
    CustomData        ///< p:custDataLst of the slide as a whole
};

/// What becomes of a layout's shape on a new slide.
enum class Fate {
    Drop, ///< it shows through the layout
    Keep, ///< it stands on the slide as well, as it is
    Empty ///< it stands there without place and text, to be filled
};

struct IdFacts {
    bool isNew = true;         ///< a slide of a layout, and none of the template
    unsigned int greatest = 0; ///< the greatest id among its layout's placeholders
};

// A tree is written

/// Position and size in EMU; fractions until they are written.
struct Box {
    double x, y, cx, cy;
};

struct PictureFacts {
    double pixelWidth, pixelHeight; ///< of the image
    std::optional<double> cx, cy;   ///< in EMU, as far as they are set
};

} // namespace vellox::ppt

#endif
