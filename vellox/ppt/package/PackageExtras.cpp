#include "vellox/ppt/package/PackageExtras.h"

#include "vellox/opc/Exception.h"
#include "vellox/ppt/package/PackageNames.h"

#include <algorithm>
#include <optional>

namespace vellox::ppt {

namespace {

struct Kind {
    Extra what;
    const wchar_t* relationshipType;
    bool isOfMainPart; ///< and not of the package
};

constexpr Kind kKinds[] = {
    {Extra::Macros, relationship::kVbaProject, true},
    {Extra::Signatures, relationship::kSignatureOrigin, false},
    {Extra::Thumbnail, relationship::kThumbnail, false},
};

const Kind& findKind(Extra what) {
    return *std::find_if(std::begin(kKinds), std::end(kKinds),
                         [&](const Kind& kind) { return kind.what == what; });
}

/// Collects what can be reached in a package, either by the relationships of an extra or by all others.
class Walk {
public:
    Walk(const opc::Package& package, const opc::Part& mainPart, const Kind& kind)
        : package_(package),
          mainPart_(mainPart),
          kind_(kind) {}

    std::set<opc::PartName> followExtra() {
        const opc::RelationshipSource& source =
            kind_.isOfMainPart ? static_cast<const opc::RelationshipSource&>(mainPart_) : package_;
        for (const opc::Relationship& row : source.getRelationships())
            if (row.getType() == kind_.relationshipType)
                reach(row);
        return followOpen(false);
    }

    std::set<opc::PartName> followOthers() {
        collect(package_, !kind_.isOfMainPart);
        return followOpen(kind_.isOfMainPart);
    }

private:
    std::set<opc::PartName> followOpen(bool isMainPartPassing) {
        while (!open_.empty()) {
            const opc::PartName name = open_.back();
            open_.pop_back();
            collect(package_.getPart(name), isMainPartPassing && name == mainPart_.getName());
        }
        return std::move(reached_);
    }

    // Whoever passes the extra over follows all but what leads to it.
    void collect(const opc::RelationshipSource& source, bool isPassing) {
        for (const opc::Relationship& row : source.getRelationships())
            if (!isPassing || row.getType() != kind_.relationshipType)
                reach(row);
    }

    void reach(const opc::Relationship& row) {
        const std::optional<opc::PartName> target = findTarget(row);
        if (target && reached_.insert(*target).second)
            open_.push_back(*target);
    }

    std::optional<opc::PartName> findTarget(const opc::Relationship& row) const {
        if (row.isExternal())
            return {};
        try {
            const opc::PartName name(row.getTargetURI().toString());
            return package_.hasPart(name) ? std::optional(name) : std::nullopt;
        } catch (const opc::Exception&) { // of a text that can't be the name of any part
            return {};
        }
    }

    const opc::Package& package_;
    const opc::Part& mainPart_;
    const Kind& kind_;
    std::set<opc::PartName> reached_;
    std::vector<opc::PartName> open_;
};

bool hasRelationship(const opc::RelationshipSource& source, const wchar_t* type) {
    const std::vector<opc::Relationship>& rows = source.getRelationships();
    return std::any_of(rows.begin(), rows.end(),
                       [&](const opc::Relationship& row) { return row.getType() == type; });
}

} // namespace

std::vector<PackageExtra> findExtra(const opc::Package& package, const opc::Part& mainPart, Extra what) {
    const Kind& kind = findKind(what);
    const bool isThere = kind.isOfMainPart ? hasRelationship(mainPart, kind.relationshipType)
                                           : hasRelationship(package, kind.relationshipType);
    if (!isThere)
        return {};
    PackageExtra extra;
    extra.what = what;
    extra.source = kind.isOfMainPart ? mainPart.getName().toString() : std::wstring();
    extra.relationshipType = kind.relationshipType;
    const std::set<opc::PartName> others = Walk(package, mainPart, kind).followOthers();
    for (const opc::PartName& part : Walk(package, mainPart, kind).followExtra())
        if (others.count(part) == 0)
            extra.parts.insert(part);
    return {extra};
}

void removeExtra(opc::Package& package, const PackageExtra& extra) {
    if (extra.source.empty())
        package.deleteRelationships(extra.relationshipType);
    else
        package.getPart(opc::PartName(extra.source)).deleteRelationships(extra.relationshipType);
    package.deleteParts(extra.parts);
}

} // namespace vellox::ppt
