/// @file
/// The text of a body: p:txBody of a shape, a:txBody of a table's cell.

#ifndef VELLOX_PPT_XML_BODYTEXT_H
#define VELLOX_PPT_XML_BODYTEXT_H

#include <string>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// The text of one paragraph; its line breaks are "\n".
std::wstring readParagraph(const xercesc::DOMElement& paragraph);

/// The text of a body, or of nothing for null. "\n" ends paragraphs and lines alike.
std::wstring readBody(const xercesc::DOMElement* body);

/// Gives a body another text, a paragraph for each line. All look as the first paragraph and the first run of the body
/// do.
/// @return how many characters XML can't hold, and were left out
std::size_t replaceBody(xercesc::DOMElement& body, const std::wstring& text);

/// A cell of the table in a p:graphicFrame, both from 0; null if there is none.
xercesc::DOMElement* findCell(const xercesc::DOMElement* frame, unsigned int row, unsigned int column);

} // namespace vellox::ppt

#endif
