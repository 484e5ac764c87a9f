#include "vellox/reading/DeckComparison.h"

#include "vellox/reading/Alignment.h"
#include "vellox/reading/ShapeComparison.h"

#include <map>

namespace vellox::reading {

using namespace ppt;

namespace {

constexpr const char* kKindNames[] = {
    "slideRemoved",   "slideAdded",     "slideMoved",  "layoutChanged", "visibilityChanged",
    "shapeRemoved",   "shapeAdded",     "textChanged", "cellChanged",   "sizeChanged",
    "pictureChanged", "altTextChanged", "kindChanged", "notesChanged",
};

class Comparison {
public:
    Comparison(const DeckContents& former, const DeckContents& present)
        : former_(former.slides),
          present_(present.slides),
          formerTexts_(summarizeAll(former_)),
          presentTexts_(summarizeAll(present_)) {}

    std::vector<DeckDifference> run() {
        auto pairs = align(formerTexts_, presentTexts_);
        pairs.emplace_back(former_.size(), present_.size());
        findMoved(pairs);
        std::size_t i = 0, j = 0;
        for (const auto& pair : pairs) {
            compareGap(i, pair.first, j, pair.second);
            i = pair.first + 1;
            j = pair.second + 1;
        }
        return std::move(differences_);
    }

private:
    using Slides = std::vector<DeckSlide>;
    using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

    static std::vector<std::wstring> summarizeAll(const Slides& slides) {
        std::vector<std::wstring> texts;
        for (const DeckSlide& slide : slides)
            texts.push_back(summarize(slide));
        return texts;
    }

    /// Slides in no pair that show what one in no pair of the other deck does.
    void findMoved(const Pairs& pairs) {
        std::map<std::wstring, std::vector<std::size_t>> left;
        std::size_t next = 0;
        for (const auto& pair : pairs) {
            for (; next < pair.first; ++next)
                left[formerTexts_[next]].push_back(next);
            ++next;
        }
        next = 0;
        for (const auto& pair : pairs) {
            for (; next < pair.second; ++next) {
                std::vector<std::size_t>& places = left[presentTexts_[next]];
                if (places.empty())
                    continue;
                movedFrom_[next] = places.back();
                movedTo_[places.back()] = next;
                places.pop_back();
            }
            ++next;
        }
    }

    /// Between slides that show the same: those of one title belong together, and between these what is left,
    /// one after the other.
    void compareGap(std::size_t i, std::size_t formerEnd, std::size_t j, std::size_t presentEnd) {
        Pairs pairs = align(describeAll(former_, i, formerEnd), describeAll(present_, j, presentEnd));
        pairs.emplace_back(formerEnd - i, presentEnd - j);
        const std::size_t formerBegin = i, presentBegin = j;
        for (const auto& pair : pairs) {
            compareInOrder(i, formerBegin + pair.first, j, presentBegin + pair.second);
            i = formerBegin + pair.first;
            j = presentBegin + pair.second;
            const std::size_t count = i < formerEnd && j < presentEnd ? 1 : 0;
            compareInOrder(i, i + count, j, j + count);
            i += count;
            j += count;
        }
    }

    static std::vector<std::wstring> describeAll(const Slides& slides, std::size_t begin, std::size_t end) {
        std::vector<std::wstring> titles;
        for (; begin < end; ++begin)
            titles.push_back(describe(slides[begin]));
        return titles;
    }

    void compareInOrder(std::size_t i, std::size_t formerEnd, std::size_t j, std::size_t presentEnd) {
        while (i < formerEnd || j < presentEnd) {
            if (i < formerEnd && movedTo_.count(i) > 0) {
                ++i;
            } else if (j < presentEnd && movedFrom_.count(j) > 0) {
                add(DeckDifference::Kind::SlideMoved, &former_[movedFrom_[j]], &present_[j]);
                ++j;
            } else if (i < formerEnd && j < presentEnd) {
                SlideComparison(former_[i++], present_[j++], differences_).run();
            } else if (i < formerEnd) {
                add(DeckDifference::Kind::SlideRemoved, &former_[i++], nullptr);
            } else {
                add(DeckDifference::Kind::SlideAdded, nullptr, &present_[j++]);
            }
        }
    }

    void add(DeckDifference::Kind kind, const DeckSlide* former, const DeckSlide* present) {
        DeckDifference difference;
        difference.kind = kind;
        difference.formerSlide = former ? former->number : 0;
        difference.presentSlide = present ? present->number : 0;
        difference.former = former ? describe(*former) : std::wstring();
        difference.present = present ? describe(*present) : std::wstring();
        differences_.push_back(std::move(difference));
    }

    const Slides& former_;
    const Slides& present_;
    std::vector<std::wstring> formerTexts_, presentTexts_;
    std::map<std::size_t, std::size_t> movedFrom_, movedTo_;
    std::vector<DeckDifference> differences_;
};

} // namespace

} // namespace vellox::reading

namespace vellox::ppt {

const char* toString(DeckDifference::Kind kind) {
    return reading::kKindNames[static_cast<std::size_t>(kind)];
}

std::vector<DeckDifference> compareDecks(const DeckContents& former, const DeckContents& present) {
    return reading::Comparison(former, present).run();
}

} // namespace vellox::ppt
