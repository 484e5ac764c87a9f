/// @file
/// What a presentation has heard about itself. Internal: users get the findings.

#ifndef VELLOX_PPT_MESSAGES_FINDINGLIST_H
#define VELLOX_PPT_MESSAGES_FINDINGLIST_H

#include <cstddef>
#include <vector>

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/Finding.h"
#include "vellox/ppt/object/PPTNode.h"

namespace vellox {
class MsgID;
}

namespace vellox::ppt {

/// Findings in the order in which they were reported, up to a limit: a program may well use a wrong name a million times.
class FindingList {
public:
    static constexpr std::size_t kMaxFindings = 1000;

    /// What is reported while one of these lives is forgotten with it, unless it is kept: what was tried may be tried
    /// again.
    class Attempt {
    public:
        explicit Attempt(FindingList& list) : list_(list), size_(list.findings_.size()) {}
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;
        ~Attempt();
        void keep() { isKept_ = true; }

    private:
        FindingList& list_;
        std::size_t size_;
        bool isKept_ = false;
    };

    void add(const MsgID& id, const ReportPlace& place);
    /// With the numbers that the slides have by now among these: those that are added ahead of others shift them.
    const std::vector<Finding>& get(const PPTNode::Children& slides);

private:
    std::vector<Finding> findings_;
    std::vector<const PPTNodeImpl*> slides_; // that each is about, or null; only to be compared
};

} // namespace vellox::ppt

#endif
