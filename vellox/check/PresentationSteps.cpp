#include "vellox/check/PackageSteps.h"
#include "vellox/opc/XercesString.h"

#include <map>
#include <set>

namespace vellox::check {

namespace {

constexpr std::uint64_t kMinSlideId = 256, kMinMasterId = std::uint64_t(1) << 31;
constexpr std::uint64_t kMaxMasterId = UINT32_MAX;
constexpr std::uint64_t kNoId = UINT64_MAX;

std::uint64_t readId(const std::wstring& text) {
    constexpr std::size_t kMaxDigits = 18;
    if (text.empty() || text.size() > kMaxDigits || text.find_first_not_of(L"0123456789") != text.npos)
        return kNoId;
    return std::stoull(text);
}

class PresentationCheck {
public:
    PresentationCheck(const PackageIndex& index, Report& report)
        : index_(index),
          report_(report),
          main_(*index.find(index.mainPart)),
          place_{main_.name, 0} {}

    void run() {
        checkSlides();
        checkMasters();
        checkSpecialMasters(main_.facts.notesMasters, L"notesMaster");
        checkSpecialMasters(main_.facts.handoutMasters, L"handoutMaster");
        checkSections();
    }

private:
    /// The part that an entry of a list leads to if it is of this kind; else null.
    const RelationshipRow* follow(const PartKey& holder, const ListEntry& entry, const wchar_t* kind) const {
        const RelationshipRow* row = index_.findRelationship(holder, entry.relationship);
        return row && !row->isExternal && row->kind == kind ? row : nullptr;
    }

    void checkSlides() {
        std::set<PartKey> listed;
        for (const ListEntry& entry : main_.facts.slides) {
            const std::uint64_t id = readId(entry.id);
            if (id < kMinSlideId || id >= kMinMasterId)
                report_.add(Code::slideId, place_,
                            L"the slide id " + quote(entry.id) + L" isn't from 256 to 2147483647");
            else if (!slideIds_.insert(id).second)
                report_.add(Code::duplicateSlideId, place_, L"two slides have the id " + entry.id);
            const RelationshipRow* row = follow(index_.mainPart, entry, L"slide");
            if (!row)
                report_.add(Code::slideList, place_,
                            L"the entry " + quote(entry.relationship) +
                                L" of the slide list leads to no slide");
            else if (!listed.insert(row->part).second)
                report_.add(Code::slideList, place_,
                            L"the slide list has " + index_.getName(row->part) + L" twice");
        }
        for (const PartKey& slide : index_.getTargets(index_.mainPart, L"slide"))
            if (listed.count(slide) == 0)
                report_.add(Code::unlistedSlide, place_, index_.getName(slide) + L" isn't in the slide list");
    }

    void checkMasters() {
        std::set<PartKey> listed;
        for (const ListEntry& entry : main_.facts.masters) {
            const RelationshipRow* row = follow(index_.mainPart, entry, L"slideMaster");
            if (!row) {
                report_.add(Code::masterList, place_,
                            L"the entry " + quote(entry.relationship) +
                                L" of the master list leads to no master");
                continue;
            }
            checkMasterId(entry, place_, row->part);
            if (!listed.insert(row->part).second)
                report_.add(Code::masterList, place_,
                            L"the master list has " + index_.getName(row->part) + L" twice");
            else
                checkLayouts(row->part);
        }
        if (main_.facts.masters.empty())
            report_.add(Code::masterList, place_, L"the presentation has no master");
    }

    // Masters and layouts share one range of numbers.
    void checkMasterId(const ListEntry& entry, const Place& place, const PartKey& part) {
        if (!entry.hasId)
            return;
        const std::uint64_t id = readId(entry.id);
        if (id < kMinMasterId || id > kMaxMasterId)
            return report_.add(Code::masterId, place,
                               L"the id " + quote(entry.id) + L" of " + index_.getName(part) +
                                   L" isn't from 2147483648 to 4294967295");
        const auto owner = masterIds_.emplace(id, part);
        if (!owner.second)
            report_.add(Code::duplicateMasterId, place,
                        index_.getName(part) + L" has the id " + entry.id + L", and so has " +
                            index_.getName(owner.first->second));
    }

    void checkLayouts(const PartKey& master) {
        const PartRecord* part = index_.find(master);
        if (!part)
            return;
        const Place place{part->name, 0};
        std::set<PartKey> listed;
        for (const ListEntry& entry : part->facts.layouts) {
            const RelationshipRow* row = follow(master, entry, L"slideLayout");
            if (!row) {
                report_.add(Code::layoutList, place,
                            L"the entry " + quote(entry.relationship) +
                                L" of the layout list leads to no layout");
                continue;
            }
            checkMasterId(entry, place, row->part);
            if (!listed.insert(row->part).second)
                report_.add(Code::layoutList, place,
                            L"the layout list has " + index_.getName(row->part) + L" twice");
        }
        for (const PartKey& layout : index_.getTargets(master, L"slideLayout"))
            if (listed.count(layout) == 0 && !part->facts.root.empty())
                report_.add(Code::unlistedLayout, place,
                            index_.getName(layout) + L" isn't in the layout list");
    }

    void checkSpecialMasters(const std::vector<ListEntry>& entries, const wchar_t* kind) {
        for (const ListEntry& entry : entries)
            if (!follow(index_.mainPart, entry, kind))
                report_.add(Code::masterList, place_,
                            L"the entry " + quote(entry.relationship) + L" leads to no part of the kind " +
                                kind);
    }

    void checkSections() {
        std::map<std::uint64_t, unsigned> uses;
        for (const std::wstring& text : main_.facts.sectionSlides) {
            const std::uint64_t id = readId(text);
            ++uses[id];
            if (slideIds_.count(id) == 0)
                report_.add(Code::sectionSlide, place_,
                            L"a section names the slide id " + quote(text) + L", which no slide has");
        }
        if (uses.empty())
            return;
        for (const std::uint64_t id : slideIds_)
            if (uses[id] != 1)
                report_.add(Code::sectionMembership, place_,
                            L"the slide with the id " + std::to_wstring(id) + L" is in " +
                                std::to_wstring(uses[id]) + L" sections");
    }

    const PackageIndex& index_;
    Report& report_;
    const PartRecord& main_;
    Place place_;
    std::set<std::uint64_t> slideIds_;
    std::map<std::uint64_t, PartKey> masterIds_;
};

} // namespace

void numberSlides(PackageIndex& index) {
    const PartRecord* main = index.find(index.mainPart);
    unsigned number = 0;
    if (!main)
        return;
    for (const ListEntry& entry : main->facts.slides) {
        ++number;
        const RelationshipRow* row = index.findRelationship(index.mainPart, entry.relationship);
        PartRecord* slide = row ? index.find(row->part) : nullptr;
        if (slide && slide->slide == 0)
            slide->slide = number;
    }
}

void checkPresentation(const PackageIndex& index, Report& report) {
    const PartRecord* main = index.find(index.mainPart);
    // A main part that is something else, or can't be read, is reported already.
    if (main && main->facts.root == L"p:presentation")
        PresentationCheck(index, report).run();
}

} // namespace vellox::check
