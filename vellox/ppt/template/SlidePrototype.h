/// @file
/// How a slide comes from a layout. Its document isn't generated: it is the layout's, stripped until only
/// empty placeholders are left, which inherit place and looks from the layout. With the classic rules:
///
///     p:sldLayout                        p:sld               (attributes but "preserve" and "type")
///       p:cSld name="..."                  p:cSld
///         p:spTree                           p:spTree
///           p:sp  placeholder, text            p:sp  placeholder: no a:xfrm, no list styles, no text
///           p:sp  date, footer, number         p:sp  as it is
///           p:pic, p:grpSp, p:sp ...           -     shown through the layout
///       p:clrMapOvr, p:timing ...          -

#ifndef VELLOX_PPT_TEMPLATE_SLIDEPROTOTYPE_H
#define VELLOX_PPT_TEMPLATE_SLIDEPROTOTYPE_H

#include <optional>
#include <string>
#include <vector>

#include "vellox/ppt/template/SlidePieces.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class Rules;

/// What a layout has for a date, a footer or a slide number, as far as a slide's own is made of it: place and looks
/// are inherited.
struct LayoutField {
    std::wstring type, index, size, orientation; ///< of p:ph
    std::wstring name;                           ///< of p:cNvPr
    std::wstring fieldType;                      ///< of a:fld; empty if programs don't bring it up to date
    std::wstring text;
    bool isKept = false; ///< whether a new slide has it anyway
};

/// A new slide of a layout, of which every slide that is written is a copy.
struct SlidePrototype {
    OwnedDocument document;                    ///< placeholders bear the data-uid of the layout's records
    unsigned int lastId = 0;                   ///< as findLastId() has it
    unsigned int lastShapeId = 0;              ///< the last id that was given out in it; 0 if none was
    bool isWhole = true;                       ///< whether all that a slide has of its layout could be had
    std::vector<LayoutField> fields;           ///< the first of each type
    std::optional<SlidePieces> pieces;         ///< of the document; none if it can't be cut
    std::vector<std::wstring> relationshipIds; ///< the layout's relationships that it needs, sorted
};

/// The prototype of a layout, made when first asked for: placeholders without a name get a random one then. The
/// layout's document has done its duty with that and goes.
const SlidePrototype& requirePrototype(TemplateLayout& layout, const Rules& rules);

} // namespace vellox::ppt

#endif
