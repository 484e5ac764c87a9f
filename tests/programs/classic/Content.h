/// @file
/// What goes onto the slides.

#ifndef VELLOX_TESTS_PROGRAMS_CLASSIC_CONTENT_H
#define VELLOX_TESTS_PROGRAMS_CLASSIC_CONTENT_H

#include <vellox/vellox.h>

#include "tests/programs/classic/Decks.h"

namespace vellox::test {

/// Runs of several formats, a number and a link.
ppt::Paragraph makeRuns();
/// Texts, numbers, truth values, paragraphs, gaps and lists within lists.
HvContentPtr makeList();
/// Cells "1,1" and so on.
ppt::Table makeTable(unsigned rows, unsigned columns);
void setSlideFormats(ppt::Slide& slide);
/// A text box, a picture and a table with places that are set in part; which part follows from the number.
void addFreeShapes(ppt::Slide& slide, unsigned number, Images& images);

} // namespace vellox::test

#endif
