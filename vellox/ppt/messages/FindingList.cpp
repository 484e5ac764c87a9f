#include "vellox/ppt/messages/FindingList.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/MessageCatalog.h"
#include "vellox/ppt/messages/FindingKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

#include <locale>
#include <map>

namespace vellox::ppt {

namespace {

Finding makeFinding(const MsgID& id) {
    Finding finding;
    finding.code = id.id;
    for (const FindingKind& kind : kFindingKinds)
        if (kind.code == id.id)
            finding.severity = kind.severity;
    finding.text = MessageCatalog::get_message(id, std::locale());
    return finding;
}

} // namespace

FindingList::Attempt::~Attempt() {
    if (isKept_)
        return;
    list_.findings_.resize(size_);
    list_.slides_.resize(size_);
}

void FindingList::add(const MsgID& id, const ReportPlace& place) {
    if (findings_.size() > kMaxFindings)
        return;
    const bool isLast = findings_.size() == kMaxFindings;
    Finding finding = makeFinding(isLast ? ppt_finding::moreFindings(std::to_wstring(kMaxFindings)) : id);
    if (place.shape && !isLast)
        finding.shape = place.shape->getName();
    slides_.push_back(isLast ? nullptr : place.slide);
    findings_.push_back(std::move(finding));
}

const std::vector<Finding>& FindingList::get(const PPTNode::Children& slides) {
    if (findings_.empty())
        return findings_;
    std::map<const PPTNodeImpl*, unsigned int> numbers;
    unsigned int number = 0;
    for (const boost::shared_ptr<PPTNode>& slide : slides)
        numbers[implOf<PPTNodeImpl>(*slide)] = ++number;
    for (std::size_t i = 0; i < findings_.size(); ++i) {
        const auto found = numbers.find(slides_[i]);
        findings_[i].slide = found == numbers.end() ? 0 : found->second;
    }
    return findings_;
}

} // namespace vellox::ppt
