/// @file
/// What a package says about its parts, as it says it: nothing is corrected or left out.

#ifndef VELLOX_CHECK_PACKAGEINDEX_H
#define VELLOX_CHECK_PACKAGEINDEX_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <vector>

#include "vellox/check/DocumentFacts.h"
#include "vellox/opc/PhysicalPackage.h"

namespace vellox::check {

/// The form under which names of parts compare; empty for the package itself.
using PartKey = std::string;

struct RelationshipRow {
    std::wstring id;
    std::wstring kind; // the last step of its type: "slideLayout"
    std::wstring target;
    bool isExternal = false;
    PartKey part = {}; // that the target resolves to; empty if it is external, or no name of a part
};

/// The relationships of one source, in their order, and by their identifiers: the first of several that have
/// the same one.
struct RelationshipList {
    std::vector<RelationshipRow> rows;
    std::map<std::wstring, std::size_t> byId;

    /// @return false if the identifier is taken
    bool add(RelationshipRow row) {
        const bool isNew = byId.emplace(row.id, rows.size()).second;
        rows.push_back(std::move(row));
        return isNew;
    }
};

struct PartRecord {
    std::wstring name; // "/ppt/presentation.xml"
    std::wstring type; // its content type; empty if it has none
    boost::shared_ptr<opc::PhysicalPart> physical = {};
    unsigned slide = 0;       // its number, if it is a listed slide
    DocumentFacts facts = {}; // if it is XML that can be read
};

class PackageIndex {
public:
    /// Parts by name, with the content-type stream and relationship parts left out.
    std::map<PartKey, PartRecord> parts;
    /// By what they start from.
    std::map<PartKey, RelationshipList> relationships;
    PartKey mainPart; // empty if there is none

    const PartRecord* find(const PartKey& key) const;
    PartRecord* find(const PartKey& key);
    /// The name for a text; "the package" for the empty key.
    std::wstring getName(const PartKey& key) const;
    const RelationshipList& getRelationships(const PartKey& source) const;
    const RelationshipRow* findRelationship(const PartKey& source, const std::wstring& id) const;
    /// The parts that relationships of one kind lead to.
    std::vector<PartKey> getTargets(const PartKey& source, const wchar_t* kind) const;
    RelationshipKinds getKinds(const PartKey& source) const;
};

} // namespace vellox::check

#endif
