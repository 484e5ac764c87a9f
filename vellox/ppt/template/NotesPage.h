/// @file
/// The page that a speaker has of a slide: p:notes (ECMA-376 Part 1, 19.3.1.26).

#ifndef VELLOX_PPT_TEMPLATE_NOTESPAGE_H
#define VELLOX_PPT_TEMPLATE_NOTESPAGE_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

/// What the speaker reads; empty without a page.
std::wstring readNotes(const TemplateNotes* notes);

/// A page with another text: a copy of the present one, or a plain one, with an image of the slide and a text, for null.
boost::shared_ptr<const TemplateNotes> changeNotes(const TemplateNotes* notes, const std::wstring& text);

/// The master that plain pages need, as a document: with a place for the image and one for the text.
/// @param width,height of the page, in EMU
OwnedDocument makeNotesMaster(const std::wstring& width, const std::wstring& height);

} // namespace vellox::ppt

#endif
