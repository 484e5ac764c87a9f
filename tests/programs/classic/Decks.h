/// @file
/// What is made of the templates.

#ifndef VELLOX_TESTS_PROGRAMS_CLASSIC_DECKS_H
#define VELLOX_TESTS_PROGRAMS_CLASSIC_DECKS_H

#include <string>
#include <vector>

#include "vellox/ppt/engine/Presentation.h"

namespace vellox::test {

/// The paths of files with images, among them some that are none.
struct Images {
    explicit Images(const std::wstring& folder);
    const std::wstring& next();

    std::vector<std::wstring> paths;

private:
    std::size_t next_ = 0;
};

using FillDeck = void (*)(ppt::Presentation& deck, Images& images);

struct DeckKind {
    const wchar_t* name;
    FillDeck fill;
};

/// What can be done with any template.
extern const std::vector<DeckKind> kAnyDecks;
/// What is done with the default template: one thing each, thoroughly.
extern const std::vector<DeckKind> kDefaultDecks;

} // namespace vellox::test

#endif
