#include "vellox/check/PackageSteps.h"
#include "vellox/check/PartKinds.h"

#include <map>
#include <set>
#include <utility>

namespace vellox::check {

namespace {

class StructureCheck {
public:
    StructureCheck(const PackageIndex& index, Report& report) : index_(index), report_(report) {}

    void run() {
        for (const auto& entry : index_.parts) {
            const PartKind* kind = findKindByType(entry.second.type);
            if (kind)
                checkNeeds(entry.first, entry.second, kind->relationship);
        }
        checkLayouts();
        checkNotes();
        checkThemes();
        checkComments();
        checkProperties();
    }

private:
    static Place makePlace(const PartRecord& part) { return {part.name, part.slide}; }

    void checkNeeds(const PartKey& key, const PartRecord& part, const std::wstring& kind) {
        for (std::size_t i = 0; i < kNeedCount; ++i) {
            const Need& need = kNeeds[i];
            if (kind != need.kind)
                continue;
            const std::size_t found = index_.getTargets(key, need.target).size();
            if (found != 1)
                report_.add(found == 0 && need.mayBeMissing ? Code::notesBacklink : Code::structure,
                            makePlace(part),
                            L"it has " + std::to_wstring(found) + L" relationships of the kind " +
                                need.target + L", and needs one");
        }
    }

    std::vector<PartKey> findParts(const wchar_t* kind) const {
        std::vector<PartKey> keys;
        for (const auto& entry : index_.parts) {
            const PartKind* found = findKindByType(entry.second.type);
            if (found && found->relationship == std::wstring(kind))
                keys.push_back(entry.first);
        }
        return keys;
    }

    using Pairs = std::set<std::pair<PartKey, PartKey>>;

    /// Which parts of a kind lead to which of another.
    Pairs findPairs(const wchar_t* kind, const wchar_t* target) const {
        Pairs pairs;
        for (const PartKey& source : findParts(kind))
            for (const PartKey& key : index_.getTargets(source, target))
                pairs.emplace(source, key);
        return pairs;
    }

    // A layout and its master name each other.
    void checkLayouts() {
        std::set<PartKey> used;
        for (const auto& pair : findPairs(L"slide", L"slideLayout"))
            used.insert(pair.second);
        const Pairs layouts = findPairs(L"slideMaster", L"slideLayout");
        const Pairs masters = findPairs(L"slideLayout", L"slideMaster");
        std::set<PartKey> withMaster;
        for (const auto& pair : masters) {
            withMaster.insert(pair.first);
            if (layouts.count({pair.second, pair.first}) == 0)
                report_.add(used.count(pair.first) > 0 ? Code::structure : Code::unlistedLayout,
                            makePlace(*index_.find(pair.first)),
                            L"its master " + index_.getName(pair.second) + L" doesn't know it");
        }
        for (const auto& pair : layouts)
            if (withMaster.count(pair.second) > 0 && masters.count({pair.second, pair.first}) == 0)
                report_.add(Code::structure, makePlace(*index_.find(pair.second)),
                            index_.getName(pair.first) + L" lists it, and it belongs to another master");
    }

    void checkNotes() {
        const Pairs notes = findPairs(L"slide", L"notesSlide");
        std::map<PartKey, unsigned> pages, owners;
        for (const auto& pair : notes) {
            if (++pages[pair.first] == 2)
                report_.add(Code::structure, makePlace(*index_.find(pair.first)),
                            L"it has more than one page of notes");
            if (++owners[pair.second] == 2 && index_.find(pair.second))
                report_.add(Code::sharedPart, makePlace(*index_.find(pair.second)),
                            L"two slides share this page of notes");
        }
        for (const auto& pair : findPairs(L"notesSlide", L"slide"))
            if (notes.count({pair.second, pair.first}) == 0)
                report_.add(Code::notesBacklink, makePlace(*index_.find(pair.first)),
                            L"its slide " + index_.getName(pair.second) + L" doesn't know these notes");
    }

    void checkThemes() {
        std::map<PartKey, unsigned> owners;
        for (const wchar_t* kind : {L"slideMaster", L"notesMaster", L"handoutMaster"})
            for (const PartKey& master : findParts(kind))
                for (const PartKey& theme : index_.getTargets(master, L"theme"))
                    if (++owners[theme] == 2 && index_.find(theme))
                        report_.add(Code::sharedPart, makePlace(*index_.find(theme)),
                                    L"two masters share this theme");
    }

    void checkComments() {
        std::set<std::wstring> authors;
        for (const auto& entry : index_.parts)
            authors.insert(entry.second.facts.authors.begin(), entry.second.facts.authors.end());
        for (const auto& entry : index_.parts)
            for (const std::wstring& author : entry.second.facts.commentAuthors)
                if (authors.count(author) == 0)
                    report_.add(Code::commentAuthor, makePlace(entry.second),
                                L"a comment is by the author " + quote(author) +
                                    L", whom no list of authors has");
    }

    void checkProperties() {
        for (const wchar_t* kind : {L"core-properties", L"extended-properties"}) {
            const std::size_t found = index_.getTargets({}, kind).size();
            if (found == 0)
                report_.add(Code::missingProperties, {},
                            L"the package has no part for " + std::wstring(kind));
            else if (found > 1)
                report_.add(Code::structure, {},
                            L"the package has more than one part for " + std::wstring(kind));
        }
    }

    const PackageIndex& index_;
    Report& report_;
};

} // namespace

void checkStructure(const PackageIndex& index, Report& report) {
    StructureCheck(index, report).run();
}

} // namespace vellox::check
