/// @file
/// Which content type and root element go with which kind of part, and what a part of a kind needs.

#ifndef VELLOX_CHECK_PARTKINDS_H
#define VELLOX_CHECK_PARTKINDS_H

#include <string>

namespace vellox::check {

struct PartKind {
    const wchar_t* relationship; // the last step of the relationship type that leads there
    const wchar_t* contentType;
    const wchar_t* root; // as DocumentFacts spells it; null if the check doesn't know it
};

/// By the kind of relationship; null if the check doesn't know it.
const PartKind* findKindByRelationship(const std::wstring& relationship);
/// By the content type, in any case.
const PartKind* findKindByType(const std::wstring& contentType);

/// Whether two content types are the same; the case of letters doesn't count.
bool isSameType(const std::wstring& one, const std::wstring& other);

/// The main part's content types, each with the extension of the files that have it.
struct MainType {
    const wchar_t* contentType;
    const wchar_t* extension;
};

const MainType* findMainType(const std::wstring& contentType);
/// Whether files with this extension are presentations.
bool isMainExtension(const std::wstring& extension);

/// A relationship that parts of a kind have exactly once.
struct Need {
    const wchar_t* kind; // of the part, by its relationship
    const wchar_t* target;
    bool mayBeMissing; // some programs leave it out, and readers cope
};

extern const Need kNeeds[];
extern const std::size_t kNeedCount;

} // namespace vellox::check

#endif
