/// @file
/// The text of a new slide, cut where writers come in.
///
///     <p:sld ..><p:cSld | name | ><p:spTree>.. | shape | .. | shape | | new shapes | </p:spTree></p:cSld></p:sld>
///
/// where a shape that waits for text is two pieces itself:  <p:sp>..<p:txBody>.. | paragraphs | </p:txBody></p:sp>

#ifndef VELLOX_PPT_TEMPLATE_SLIDEPIECES_H
#define VELLOX_PPT_TEMPLATE_SLIDEPIECES_H

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// What slides of one layout have in common, written once. A shape that nobody touches, or that gets nothing but
/// paragraphs, needs no nodes in any slide.
struct SlidePieces {
    /// An element with a mark that is in no other such.
    struct Shape {
        const xercesc::DOMElement* element = nullptr; ///< in the document that was cut
        bool takesText = false;                       ///< whether its text body has no paragraph yet
        std::string text;       ///< without marks; up to the paragraphs if it takes text
        std::string textBehind; ///< behind the paragraphs
    };

    std::string beforeName; ///< up to the name of the slide, an attribute
    std::vector<std::string>
        between; ///< from the name to the first shape, between shapes, and up to new ones
    std::vector<Shape> shapes;
    std::string behind; ///< all behind new shapes
    /// From marks to the shapes that have them or have an element within that has them.
    std::map<std::wstring, std::size_t> shapesByUid;
};

/// Cuts a document whose marked elements are in its shape tree. A document that can't be cut so, such as one
/// without a shape tree, has no pieces.
std::optional<SlidePieces> cutIntoPieces(const OwnedDocument& document);

} // namespace vellox::ppt

#endif
