/// @file
/// What the check keeps of a part's document when the document itself is gone.

#ifndef VELLOX_CHECK_DOCUMENTFACTS_H
#define VELLOX_CHECK_DOCUMENTFACTS_H

#include <map>
#include <string>
#include <vector>

namespace vellox::check {

/// The relationships of a part as its document sees them: what each identifier leads to, which is the last
/// step of the relationship's type ("image").
using RelationshipKinds = std::map<std::wstring, std::wstring>;

/// An entry of one of the lists of slides, masters and layouts.
struct ListEntry {
    std::wstring id;
    bool hasId = false;
    std::wstring relationship;
};

struct DocumentFacts {
    std::wstring root; // "p:sld", whatever the prefix in the document
    bool isStrict = false;
    std::vector<ListEntry> slides;
    std::vector<ListEntry> masters;
    std::vector<ListEntry> layouts;
    std::vector<ListEntry> notesMasters;
    std::vector<ListEntry> handoutMasters;
    std::vector<std::wstring> sectionSlides;
    std::vector<std::wstring> authors;        // whom a list of authors defines
    std::vector<std::wstring> commentAuthors; // whom comments name
};

} // namespace vellox::check

#endif
