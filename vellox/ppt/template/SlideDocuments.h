/// @file
/// How a slide comes from a layout. Its document isn't generated: it is the layout's, stripped until only
/// empty placeholders are left, which inherit place and looks from the layout.
///
///     p:sldLayout                        p:sld               (attributes but "preserve" and "type")
///       p:cSld name="..."                  p:cSld
///         p:spTree                           p:spTree
///           p:sp  placeholder, text            p:sp  placeholder: no a:xfrm, no list styles, no text
///           p:sp  date, footer, number         p:sp  as it is
///           p:pic, p:grpSp, p:sp ...           -     shown through the layout
///       p:clrMapOvr, p:timing ...          -

#ifndef VELLOX_PPT_TEMPLATE_SLIDEDOCUMENTS_H
#define VELLOX_PPT_TEMPLATE_SLIDEDOCUMENTS_H

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

/// The document of a new slide of a layout, its placeholders bearing the data-uid of the layout's records. The
/// first for a layout is made from the layout's document, all others are copies of that.
OwnedDocument makeSlideDocument(TemplateLayout& layout);

/// An independent copy.
OwnedDocument copyDocument(const OwnedDocument& document);

/// Declares the prefixes that the library writes, a, p and r, where a root element doesn't do so itself. What
/// comes from a template may declare them further down, or none that it has no use for.
void declarePrefixes(xercesc::DOMElement* root);

} // namespace vellox::ppt

#endif
