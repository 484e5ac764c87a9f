#include "vellox/ppt/messages/FindingList.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/MessageCatalog.h"
#include "vellox/ppt/messages/FindingKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

#include <locale>
#include <map>

namespace vellox::ppt {

namespace {

Finding makeFinding(const MsgID& id, std::wstring shape, unsigned int slide) {
    Finding finding;
    finding.code = id.id;
    finding.severity = getSeverity(id);
    finding.text = MessageCatalog::get_message(id, std::locale());
    finding.shape = std::move(shape);
    finding.slide = slide;
    return finding;
}

std::wstring getShapeName(const ReportPlace& place) {
    return place.shape ? place.shape->getName() : std::wstring();
}

} // namespace

Severity getSeverity(const MsgID& finding) {
    for (const FindingKind& kind : kFindingKinds)
        if (kind.code == finding.id)
            return kind.severity;
    return Severity::Error;
}

FindingList::Attempt::~Attempt() {
    if (isKept_)
        return;
    list_.entries_.erase(list_.entries_.begin() + static_cast<std::ptrdiff_t>(size_), list_.entries_.end());
    list_.count_ = former_;
}

bool FindingList::add(const MsgID& id, const ReportPlace& place) {
    std::size_t& count = count_[static_cast<std::size_t>(getSeverity(id))];
    if (count > kMaxFindings)
        return false;
    if (++count > kMaxFindings)
        entries_.push_back({ppt_finding::moreFindings(std::to_wstring(kMaxFindings)), {}, nullptr});
    else
        entries_.push_back({id, getShapeName(place), place.slide});
    return true;
}

bool FindingList::isOpen() const {
    return count_[static_cast<std::size_t>(Severity::Error)] <= kMaxFindings;
}

std::vector<Finding> FindingList::get(const PPTNode::Children& slides, std::size_t first) const {
    std::vector<Finding> findings;
    if (entries_.size() <= first)
        return findings;
    std::map<const PPTNodeImpl*, unsigned int> numbers;
    unsigned int number = 0;
    for (const boost::shared_ptr<PPTNode>& slide : slides)
        numbers[implOf<PPTNodeImpl>(*slide)] = ++number;
    for (std::size_t i = first; i < entries_.size(); ++i) {
        const Entry& entry = entries_[i];
        const auto found = numbers.find(entry.slide);
        findings.push_back(makeFinding(entry.id, entry.shape, found == numbers.end() ? 0 : found->second));
    }
    return findings;
}

void FindingList::forget(const PPTNodeImpl& slide) {
    for (Entry& entry : entries_)
        if (entry.slide == &slide)
            entry.slide = nullptr;
}

Finding FindingList::describe(const MsgID& id, const ReportPlace& place, const PPTNode::Children& slides) {
    unsigned int number = 0;
    for (std::size_t i = 0; i < slides.size() && number == 0; ++i)
        if (implOf<PPTNodeImpl>(*slides[i]) == place.slide)
            number = static_cast<unsigned int>(i + 1);
    return makeFinding(id, getShapeName(place), number);
}

} // namespace vellox::ppt
