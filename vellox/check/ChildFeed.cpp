#include "vellox/check/ChildFeed.h"

namespace vellox::check {

ChildFeed::Fault ChildFeed::take(Key child, TypeId& childType) {
    const ContentModel& content = type_->content;
    const ContentModel::State next = content.step(state_, child);
    if (next != ContentModel::kNowhere) {
        state_ = next;
        childType = content.getType(next);
        return Fault::None;
    }
    const ContentModel::State ahead = content.findAhead(state_, child);
    const ContentModel::State place = ahead == ContentModel::kNowhere ? content.find(child) : ahead;
    if (place == ContentModel::kNowhere)
        return Fault::Unknown;
    childType = content.getType(place);
    if (ahead == ContentModel::kNowhere) {
        isOutOfOrder_ = true;
        return Fault::Disorder;
    }
    if (gap_.empty())
        gap_ = getExpected();
    state_ = ahead;
    return Fault::None;
}

std::vector<Key> ChildFeed::finish() const {
    if (isOutOfOrder_)
        return {};
    if (!gap_.empty())
        return gap_;
    return type_->content.mayEnd(state_) ? std::vector<Key>() : getExpected();
}

} // namespace vellox::check
