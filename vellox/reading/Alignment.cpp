#include "vellox/reading/Alignment.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace vellox::reading {

namespace {

using Pair = std::pair<std::size_t, std::size_t>;
using Entries = std::vector<std::wstring>;

class Aligner {
public:
    Aligner(const Entries& former, const Entries& present) : former_(former), present_(present) {}

    std::vector<Pair> run() {
        const std::size_t head = countAlike({0, 0}, {former_.size(), present_.size()}, 1);
        const std::size_t tail = countAlike({former_.size(), present_.size()}, {head, head}, std::size_t(-1));
        const Pair end(former_.size() - tail, present_.size() - tail);
        addRun({0, 0}, head);
        Pair at(head, head);
        for (const Pair& anchor : findAnchors(at, end)) {
            if (anchor.first < at.first || anchor.second < at.second)
                continue; // within what goes with the one before
            const std::size_t back = countAlike(anchor, at, std::size_t(-1));
            const std::size_t ahead = countAlike(anchor, end, 1);
            addRun({anchor.first - back, anchor.second - back}, back + ahead);
            at = {anchor.first + ahead, anchor.second + ahead};
        }
        addRun(end, tail);
        return std::move(pairs_);
    }

private:
    /// How many entries are alike from a place on, forward (1) or backward (-1), at most to a limit.
    std::size_t countAlike(Pair from, const Pair& limit, std::size_t step) const {
        std::size_t count = 0;
        const std::size_t back = step == 1 ? 0 : 1;
        while (from.first != limit.first && from.second != limit.second &&
               former_[from.first - back] == present_[from.second - back]) {
            from.first += step;
            from.second += step;
            ++count;
        }
        return count;
    }

    void addRun(const Pair& from, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            pairs_.emplace_back(from.first + i, from.second + i);
    }

    /// The entries that stand once in both lists, in the longest order that is that of both.
    std::vector<Pair> findAnchors(const Pair& begin, const Pair& end) const {
        struct Use {
            unsigned formerCount = 0, presentCount = 0;
            std::size_t former = 0;
        };
        std::unordered_map<std::wstring, Use> uses;
        for (std::size_t i = begin.first; i < end.first; ++i) {
            Use& use = uses[former_[i]];
            ++use.formerCount;
            use.former = i;
        }
        for (std::size_t i = begin.second; i < end.second; ++i)
            ++uses[present_[i]].presentCount;
        std::vector<Pair> single;
        for (std::size_t i = begin.second; i < end.second; ++i) {
            const Use& use = uses[present_[i]];
            if (use.formerCount == 1 && use.presentCount == 1)
                single.emplace_back(use.former, i);
        }
        return findLongestRise(single);
    }

    /// Of pairs whose second numbers rise, the longest choice whose first ones do, too.
    static std::vector<Pair> findLongestRise(const std::vector<Pair>& pairs) {
        std::vector<std::size_t> ends;                               // of the best choice of each length
        std::vector<std::size_t> before(pairs.size(), pairs.size()); // the one ahead in its choice
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto place = std::lower_bound(
                ends.begin(), ends.end(), pairs[i].first,
                [&](std::size_t end, std::size_t former) { return pairs[end].first < former; });
            if (place != ends.begin())
                before[i] = *std::prev(place);
            if (place == ends.end())
                ends.push_back(i);
            else
                *place = i;
        }
        std::vector<Pair> rise;
        for (std::size_t i = ends.empty() ? pairs.size() : ends.back(); i < pairs.size(); i = before[i])
            rise.push_back(pairs[i]);
        std::reverse(rise.begin(), rise.end());
        return rise;
    }

    const Entries& former_;
    const Entries& present_;
    std::vector<Pair> pairs_;
};

} // namespace

std::vector<Pair> align(const Entries& former, const Entries& present) {
    return Aligner(former, present).run();
}

} // namespace vellox::reading
