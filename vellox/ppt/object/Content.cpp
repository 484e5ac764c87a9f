#include "vellox/ppt/object/Content.h"

#include "vellox/host/values/HvViews.h"

#include <limits>

namespace vellox::ppt {

namespace {

class ContentList : public HvList {
public:
    explicit ContentList(std::vector<Content> items) : items_(std::move(items)) {}
    HvContentPtr getItem(unsigned int i) const override { return items_[i].get(); }
    bool isEmptyItem(unsigned int i) const override { return !items_[i].get(); }
    unsigned int getSize() const override { return static_cast<unsigned int>(items_.size()); }

private:
    std::vector<Content> items_;
};

} // namespace

Content::Content(const wchar_t* text) : Content(std::wstring(text)) {}
Content::Content(const std::wstring& text) : content_(boost::make_shared<StringContent>(text)) {}
Content::Content(bool value) : content_(boost::make_shared<BooleanContent>(value)) {}

HvContentPtr Content::makeNumber(double number) {
    return boost::make_shared<DoubleContent>(number);
}

// A whole number that no double holds exactly is a text of its digits.
HvContentPtr Content::makeNumber(long long number) {
    constexpr long long kFirstLong = 9007199254740992;
    if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
        return boost::make_shared<IntegerContent>(static_cast<int>(number));
    if (number > -kFirstLong && number < kFirstLong)
        return makeNumber(static_cast<double>(number));
    return boost::make_shared<StringContent>(std::to_wstring(number));
}

HvContentPtr Content::makeList(std::vector<Content> items) {
    return boost::make_shared<ListContent>(boost::make_shared<ContentList>(std::move(items)));
}

const Content* Contents::find(const std::wstring& name) const {
    for (const Row& row : rows_)
        if (row.first == name)
            return &row.second;
    return nullptr;
}

boost::shared_ptr<RecordContent> RecordContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<RecordContent>(content);
}

Content list(std::initializer_list<Content> items) {
    return Content::makeList(items);
}

Content record(const Contents& fields) {
    return HvContentPtr(boost::make_shared<RecordContent>(fields));
}

} // namespace vellox::ppt
