#include "vellox/check/PackageIndex.h"

namespace vellox::check {

const PartRecord* PackageIndex::find(const PartKey& key) const {
    const auto found = parts.find(key);
    return found == parts.end() ? nullptr : &found->second;
}

PartRecord* PackageIndex::find(const PartKey& key) {
    const auto found = parts.find(key);
    return found == parts.end() ? nullptr : &found->second;
}

std::wstring PackageIndex::getName(const PartKey& key) const {
    const PartRecord* part = find(key);
    return part ? part->name : key.empty() ? L"the package" : std::wstring(key.begin(), key.end());
}

const RelationshipList& PackageIndex::getRelationships(const PartKey& source) const {
    static const RelationshipList kNone;
    const auto found = relationships.find(source);
    return found == relationships.end() ? kNone : found->second;
}

const RelationshipRow* PackageIndex::findRelationship(const PartKey& source, const std::wstring& id) const {
    const RelationshipList& list = getRelationships(source);
    const auto found = list.byId.find(id);
    return found == list.byId.end() ? nullptr : &list.rows[found->second];
}

std::vector<PartKey> PackageIndex::getTargets(const PartKey& source, const wchar_t* kind) const {
    std::vector<PartKey> keys;
    for (const RelationshipRow& row : getRelationships(source).rows)
        if (!row.isExternal && row.kind == kind)
            keys.push_back(row.part);
    return keys;
}

RelationshipKinds PackageIndex::getKinds(const PartKey& source) const {
    RelationshipKinds kinds;
    for (const RelationshipRow& row : getRelationships(source).rows)
        kinds.emplace(row.id, row.kind);
    return kinds;
}

} // namespace vellox::check
