/// @file
/// How texts of the template look, for those that come in their stead.

#ifndef VELLOX_PPT_WRITERS_TEXTLOOK_H
#define VELLOX_PPT_WRITERS_TEXTLOOK_H

#include <vector>

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/ppt/xml/PropertyElement.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

struct ParagraphLook {
    unsigned int level = 0; ///< from 0
    PropertyElement pPr{xml::kAPPr};
    PropertyElement rPr{xml::kARPr}; ///< of its first run
    PropertyElement endParaRPr{xml::kAEndParaRPr};

    /// The end of a paragraph without text, which is as high as the run was if nothing else is said.
    PropertyElement makeEmptyEnd() const;
};

/// The looks of the paragraphs of a text body, by their levels. The names in it are those of the document, which has to
/// stay.
class TextLook {
public:
    /// Of no text: nothing is found.
    TextLook() = default;
    /// @param txBody may be null
    explicit TextLook(const xercesc::DOMElement* txBody);

    /// That of the first paragraph of a level, one with a run if there is any; where the level has none, that of the
    /// first paragraph without what makes its level.
    /// @return null if there are no paragraphs
    const ParagraphLook* find(unsigned int level) const;

private:
    std::vector<ParagraphLook> levels_; // one for each level, in the order in which they come
    ParagraphLook other_;
};

/// A paragraph without text, as readers demand one in every text body.
/// @param look may be null
void writeEmptyParagraph(opc::MarkupBuffer& out, const ParagraphLook* look);

} // namespace vellox::ppt

#endif
