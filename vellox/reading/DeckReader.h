/// @file
/// What does a deck show?
///
///     for (const DeckSlide& slide : vellox::ppt::readDeck(L"report.pptx").slides)
///         for (const DeckShape& shape : slide.shapes)
///             for (const DeckParagraph& paragraph : shape.paragraphs)
///                 std::wcout << paragraph.text << L"\n";

#ifndef VELLOX_READING_DECKREADER_H
#define VELLOX_READING_DECKREADER_H

#include <cstdint>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/ppt/messages/Finding.h"

namespace vellox::ppt {

struct VELLOX_API DeckParagraph {
    unsigned int level = 0; ///< from 0
    std::wstring text;      ///< with "\n" for line breaks
};

/// One shape of a slide with what it shows. Those in groups stand among the others, in the order of the page.
struct VELLOX_API DeckShape {
    enum class Kind {
        Text,    ///< a text box, a placeholder or a drawn shape; it may be empty
        Table,   ///< its cells
        Picture, ///< a picture, or the poster of a film or sound
        Chart,   ///< the values that it shows: a row of categories, and one for each series
        Diagram, ///< the texts of its elements
        Other    ///< an embedded object, or what this library doesn't know
    };

    Kind kind = Kind::Text;
    std::wstring name;
    std::wstring placeholder; ///< its type, such as "title" or "body"; empty if it is none
    std::wstring altText;
    std::vector<DeckParagraph> paragraphs;       ///< of a text or a diagram
    std::vector<std::vector<std::wstring>> rows; ///< of a table or a chart
    std::wstring picture;                        ///< its part, "/ppt/media/image1.png", or the link to it
    std::string digest;                          ///< of a picture's bytes: SHA-1, 40 hexadecimal digits
    std::uint64_t bytes = 0;                     ///< of a picture
};

struct VELLOX_API DeckSlide {
    unsigned int number = 0; ///< from 1, in the order of the deck
    std::wstring part;       ///< "/ppt/slides/slide1.xml"
    std::wstring layout;     ///< the name of its layout
    bool isHidden = false;
    std::vector<DeckShape> shapes;
    std::vector<DeckParagraph> notes;
};

struct VELLOX_API DeckContents {
    std::vector<DeckSlide> slides;
    /// What couldn't be read, with the codes of checkPackage(). The slides lack what these parts hold.
    std::vector<Finding> findings;
};

/// Reads what the slides of a presentation, template or slide show hold: a file, or a folder with the parts
/// as files. Damaged parts are findings and no errors, and no package can do harm.
/// @throws cannotOpenFile if the package can't be opened, or is no presentation, with the reason and the path
VELLOX_API DeckContents readDeck(const std::wstring& path);

} // namespace vellox::ppt

#endif
