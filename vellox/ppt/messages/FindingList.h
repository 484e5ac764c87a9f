/// @file
/// What a presentation has heard about itself. Internal: users get the findings.

#ifndef VELLOX_PPT_MESSAGES_FINDINGLIST_H
#define VELLOX_PPT_MESSAGES_FINDINGLIST_H

#include <array>
#include <cstddef>
#include <vector>

#include "vellox/foundation/MsgID.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/Finding.h"
#include "vellox/ppt/object/PPTNode.h"

namespace vellox::ppt {

/// What a finding of a kind is worth.
Severity getSeverity(const MsgID& finding);

/// Findings in the order in which they were reported, up to a limit for each severity: a program may well use a wrong
/// name a million times, and errors aren't to be lost among hints. They are put into words when somebody reads them.
class FindingList {
public:
    static constexpr std::size_t kMaxFindings = 1000;

    /// What is reported while one of these lives is forgotten with it, unless it is kept: what was tried may be tried
    /// again.
    class Attempt {
    public:
        explicit Attempt(FindingList& list)
            : list_(list),
              former_(list.count_),
              size_(list.entries_.size()) {}
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;
        ~Attempt();
        void keep() { isKept_ = true; }

    private:
        FindingList& list_;
        std::array<std::size_t, 3> former_;
        std::size_t size_;
        bool isKept_ = false;
    };

    /// @return whether it is kept, or at least that there are more is told with it
    bool add(const MsgID& id, const ReportPlace& place);
    /// Whether an error that comes now would be kept.
    bool isOpen() const;
    /// With the numbers that the slides have by now among these: those that are added ahead of others shift them.
    /// @param first how many to leave out
    std::vector<Finding> get(const PPTNode::Children& slides, std::size_t first = 0) const;
    /// Lets findings be about no slide that were about this one: another may come to where it is in memory.
    void forget(const PPTNodeImpl& slide);
    /// One finding in words, whether it is kept or not.
    static Finding describe(const MsgID& id, const ReportPlace& place, const PPTNode::Children& slides);

private:
    struct Entry {
        MsgID id;
        std::wstring shape;
        const PPTNodeImpl* slide; // or null; only to be compared
    };

    std::vector<Entry> entries_;
    std::array<std::size_t, 3> count_{}; // by severity
};

} // namespace vellox::ppt

#endif
