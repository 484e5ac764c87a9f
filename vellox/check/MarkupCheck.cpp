#include "vellox/check/MarkupCheck.h"

#include "vellox/check/DocumentCheck.h"
#include "vellox/check/XmlReader.h"
#include "vellox/foundation/ByteArray.h"
#include "vellox/opc/ByteArrayInputStream.h"

#include <algorithm>

namespace vellox::check {

namespace {

// Some thousands are enough for a deck of many layouts; with more, the paths begin afresh.
constexpr std::size_t kMaxLearnt = 50000;

} // namespace

MarkupCheck::MarkupCheck() = default;
MarkupCheck::~MarkupCheck() = default;

std::vector<ppt::Finding> MarkupCheck::check(std::string_view markup, const Place& place,
                                             const GetKinds& getKinds) {
    std::vector<ppt::Finding> findings;
    if (isPlainlySound(markup, getKinds))
        return findings;
    if (!documents_)
        documents_ = std::make_unique<DocumentCheck>();
    Report report(findings);
    ByteArray bytes{std::string(markup)};
    ByteArrayInputStream stream(&bytes);
    const opc::DocumentScope document = XmlReader(report).read(stream, place);
    const RelationshipKinds kinds = getKinds();
    if (document)
        documents_->check(*document, place, &kinds, report);
    return findings;
}

bool MarkupCheck::isPlainlySound(std::string_view markup, const GetKinds& getKinds) {
    if (!paths_ || paths_->count() > kMaxLearnt)
        paths_ = std::make_unique<MarkupPaths>();
    open_.clear();
    shapes_.clear();
    targets_.clear();
    references_.clear();
    if (markup.substr(0, 5) == "<?xml")
        markup.remove_prefix(std::min(markup.find("?>"), markup.size() - 2) + 2);
    return walk(markup) && areShapesSound() && areReferencesSound(getKinds);
}

bool MarkupCheck::walk(std::string_view markup) {
    MarkupPaths::Spot* spot = &paths_->getStart();
    while (true) {
        if (!markup.empty() && markup.front() != '<') {
            const std::size_t text = std::min(markup.find('<'), markup.size());
            spot = paths_->passText(*spot, markup.substr(0, text));
            markup.remove_prefix(text);
        }
        if (!spot || markup.empty())
            return spot && open_.empty() && spot != &paths_->getStart();
        if (markup.substr(0, 2) == "</") {
            if (!mayLeave(*spot) || markup.compare(0, spot->end.size(), spot->end) != 0)
                return false;
            markup.remove_prefix(spot->end.size());
            spot = open_.back();
            open_.pop_back();
            continue;
        }
        const MarkupPaths::Step* step = paths_->follow(*spot, markup);
        if (!step)
            return false;
        if (!step->isPlain)
            see(*step);
        markup.remove_prefix(step->tag.size());
        if (step->within)
            open_.push_back(step->after);
        spot = step->within ? step->within : step->after;
    }
}

bool MarkupCheck::mayLeave(const MarkupPaths::Spot& spot) const {
    const bool isRow = spot.key == paths_->getRow();
    return !open_.empty() && spot.mayEnd && (!isRow || cells_ == columns_);
}

void MarkupCheck::see(const MarkupPaths::Step& step) {
    switch (step.watch) {
    case Watch::Shape:
        shapes_.push_back(step.id);
        break;
    case Watch::TargetBySpid:
    case Watch::TargetById:
        targets_.push_back(step.id);
        break;
    case Watch::Table:
        columns_ = 0;
        break;
    default:
        columns_ += step.key == paths_->getColumn() ? 1 : 0;
        cells_ = step.key == paths_->getRow() ? 0 : step.key == paths_->getCell() ? cells_ + 1 : cells_;
    }
    references_.insert(references_.end(), step.references.begin(), step.references.end());
}

bool MarkupCheck::areShapesSound() {
    std::sort(shapes_.begin(), shapes_.end());
    const bool isEachOnce = std::adjacent_find(shapes_.begin(), shapes_.end()) == shapes_.end();
    return isEachOnce && std::all_of(targets_.begin(), targets_.end(), [&](const std::string& id) {
               return std::binary_search(shapes_.begin(), shapes_.end(), id);
           });
}

bool MarkupCheck::areReferencesSound(const GetKinds& getKinds) const {
    if (references_.empty())
        return true;
    const RelationshipKinds kinds = getKinds();
    return std::all_of(references_.begin(), references_.end(), [&](const MarkupPaths::Reference& reference) {
        const auto found = kinds.find(reference.id);
        return found != kinds.end() && reference.kinds.take(found->second);
    });
}

} // namespace vellox::check
