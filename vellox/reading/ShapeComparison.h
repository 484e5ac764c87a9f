/// @file
/// What sets the shapes of two slides apart. Internal.

#ifndef VELLOX_READING_SHAPECOMPARISON_H
#define VELLOX_READING_SHAPECOMPARISON_H

#include <string>
#include <vector>

#include "vellox/reading/DeckComparison.h"

namespace vellox::reading {

/// Compares two slides that belong together.
class SlideComparison {
public:
    SlideComparison(const ppt::DeckSlide& former, const ppt::DeckSlide& present,
                    std::vector<ppt::DeckDifference>& differences)
        : former_(former),
          present_(present),
          differences_(differences) {}

    void run();

private:
    using Kind = ppt::DeckDifference::Kind;
    using Paragraphs = std::vector<ppt::DeckParagraph>;

    void add(Kind kind, const std::wstring& shape, const std::wstring& former, const std::wstring& present,
             const std::wstring& place = {});
    void compareShapes();
    void compare(const ppt::DeckShape& former, const ppt::DeckShape& present);
    void compareParagraphs(Kind kind, const std::wstring& shape, const Paragraphs& former,
                           const Paragraphs& present);
    void compareRows(const ppt::DeckShape& former, const ppt::DeckShape& present);

    const ppt::DeckSlide& former_;
    const ppt::DeckSlide& present_;
    std::vector<ppt::DeckDifference>& differences_;
};

/// All that a slide shows, as one text: two slides that show the same have the same.
std::wstring summarize(const ppt::DeckSlide& slide);
/// The first words of a slide, for people to know it by.
std::wstring describe(const ppt::DeckSlide& slide);
/// What a shape shows, in short.
std::wstring describe(const ppt::DeckShape& shape);

} // namespace vellox::reading

#endif
