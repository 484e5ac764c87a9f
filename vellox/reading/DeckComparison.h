/// @file
/// What sets two decks apart?

#ifndef VELLOX_READING_DECKCOMPARISON_H
#define VELLOX_READING_DECKCOMPARISON_H

#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/reading/DeckReader.h"

namespace vellox::ppt {

/// One line of what sets two decks apart.
struct VELLOX_API DeckDifference {
    enum class Kind {
        SlideRemoved,
        SlideAdded,
        SlideMoved, ///< it stands elsewhere, and shows the same
        LayoutChanged,
        VisibilityChanged, ///< "hidden" or "shown"
        ShapeRemoved,
        ShapeAdded,
        TextChanged,    ///< of one paragraph; empty where there was or is none
        CellChanged,    ///< of a table or chart; the place is "row 2, column 3"
        SizeChanged,    ///< of a table or chart; "3 x 4": rows and columns
        PictureChanged, ///< "12345 bytes, 3f2a9c01d2"
        AltTextChanged,
        KindChanged, ///< a picture where there was a text
        NotesChanged ///< as TextChanged
    };

    Kind kind = Kind::TextChanged;
    unsigned int formerSlide = 0;  ///< its number in the former deck; 0 if it isn't there
    unsigned int presentSlide = 0; ///< its number in the present deck; 0 if it isn't there
    std::wstring shape;            ///< its name, or empty
    std::wstring place;            ///< within the shape, or empty
    std::wstring former;           ///< what was there
    std::wstring present;          ///< what is there now
};

/// "slideRemoved", "textChanged" and so on.
VELLOX_API const char* toString(DeckDifference::Kind kind);

/// Compares what two decks show: their slides, and on those texts, tables, charts and pictures by their
/// bytes. What isn't shown, or only says how, doesn't count: names of parts, ids, formats, places. Slides
/// that show the same are paired first, then those between them one after the other; shapes go by their
/// names.
/// @return in the order of the present deck, with removed slides where they stood; none if the decks show the
/// same
VELLOX_API std::vector<DeckDifference> compareDecks(const DeckContents& former, const DeckContents& present);

} // namespace vellox::ppt

#endif
