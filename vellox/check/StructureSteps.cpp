#include "vellox/check/PackageSteps.h"
#include "vellox/check/PartKinds.h"

#include <algorithm>
#include <map>
#include <set>

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

    bool isTarget(const PartKey& source, const wchar_t* kind, const PartKey& target) const {
        const std::vector<PartKey> targets = index_.getTargets(source, kind);
        return std::find(targets.begin(), targets.end(), target) != targets.end();
    }

    // A layout and its master name each other.
    void checkLayouts() {
        std::set<PartKey> used;
        for (const PartKey& slide : findParts(L"slide"))
            for (const PartKey& layout : index_.getTargets(slide, L"slideLayout"))
                used.insert(layout);
        std::map<PartKey, std::set<PartKey>> layoutsOf;
        for (const PartKey& master : findParts(L"slideMaster"))
            for (const PartKey& layout : index_.getTargets(master, L"slideLayout"))
                layoutsOf[master].insert(layout);
        for (const PartKey& layout : findParts(L"slideLayout"))
            for (const PartKey& master : index_.getTargets(layout, L"slideMaster"))
                if (layoutsOf[master].count(layout) == 0)
                    report_.add(used.count(layout) > 0 ? Code::structure : Code::unlistedLayout,
                                makePlace(*index_.find(layout)),
                                L"its master " + index_.getName(master) + L" doesn't know it");
        for (const auto& master : layoutsOf)
            for (const PartKey& layout : master.second)
                if (index_.find(layout) && !index_.getTargets(layout, L"slideMaster").empty() &&
                    !isTarget(layout, L"slideMaster", master.first))
                    report_.add(Code::structure, makePlace(*index_.find(layout)),
                                index_.getName(master.first) +
                                    L" lists it, and it belongs to another master");
    }

    void checkNotes() {
        std::map<PartKey, unsigned> owners;
        for (const PartKey& slide : findParts(L"slide")) {
            const std::vector<PartKey> notes = index_.getTargets(slide, L"notesSlide");
            if (notes.size() > 1)
                report_.add(Code::structure, makePlace(*index_.find(slide)),
                            L"it has more than one page of notes");
            for (const PartKey& page : notes)
                if (++owners[page] == 2 && index_.find(page))
                    report_.add(Code::sharedPart, makePlace(*index_.find(page)),
                                L"two slides share this page of notes");
        }
        for (const PartKey& page : findParts(L"notesSlide"))
            for (const PartKey& slide : index_.getTargets(page, L"slide"))
                if (!isTarget(slide, L"notesSlide", page))
                    report_.add(Code::notesBacklink, makePlace(*index_.find(page)),
                                L"its slide " + index_.getName(slide) + L" doesn't know these notes");
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
