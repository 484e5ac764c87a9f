#include "vellox/host/values/HvContent.h"

#include "vellox/foundation/Exception.h"
#include "vellox/host/values/HvViews.h"

namespace vellox {

namespace {

// The value that content of one class holds, or a zero value for any other.
template <class Content, class Value> Value valueOr(const HvContentPtr& content, Value zero) {
    const auto* own = dynamic_cast<const Content*>(content.get());
    return own ? own->getValue() : zero;
}

} // namespace

HvContent::~HvContent() = default;

boost::shared_ptr<BooleanContent> BooleanContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<BooleanContent>(content);
}

bool BooleanContent::getValue(const HvContentPtr& content) {
    return valueOr<BooleanContent>(content, false);
}

boost::shared_ptr<IntegerContent> IntegerContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<IntegerContent>(content);
}

int IntegerContent::getValue(const HvContentPtr& content) {
    return valueOr<IntegerContent>(content, 0);
}

boost::shared_ptr<DoubleContent> DoubleContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<DoubleContent>(content);
}

double DoubleContent::getValue(const HvContentPtr& content) {
    return valueOr<DoubleContent>(content, 0.0);
}

boost::shared_ptr<StringContent> StringContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<StringContent>(content);
}

const std::wstring& StringContent::getValue(const HvContentPtr& content) {
    static const std::wstring& none = *new const std::wstring;
    return valueOr<StringContent, const std::wstring&>(content, none);
}

ListContent::ListContent(boost::shared_ptr<HvList> value) : HvContent(List), value_(std::move(value)) {
    if (!value_)
        throw HvArrayException("Invalid list object",
                               boost::system::error_code(0, boost::system::system_category()));
}

boost::shared_ptr<ListContent> ListContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<ListContent>(content);
}

boost::shared_ptr<HvList> ListContent::getValue(const HvContentPtr& content, bool wrapObject) {
    if (const auto list = cast(content))
        return list->getValue();
    const auto object = wrapObject ? ObjectContent::cast(content) : boost::shared_ptr<ObjectContent>();
    if (object)
        return boost::make_shared<HvListToObjectContentAdaptor>(
            static_cast<const DataContent&>(*object).getValue(), object);
    return {};
}

boost::shared_ptr<HvList> ListContent::getValue(const hvArray* value, bool wrapObject) {
    return getValue(HvCell(value).getContent(), wrapObject);
}

TableContent::TableContent(boost::shared_ptr<HvTable> value) : HvContent(Table), value_(std::move(value)) {}

boost::shared_ptr<TableContent> TableContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<TableContent>(content);
}

boost::shared_ptr<HvTable> TableContent::getValue(const HvContentPtr& content) {
    return valueOr<TableContent>(content, boost::shared_ptr<HvTable>());
}

boost::shared_ptr<HvTable> TableContent::getValue(const hvArray* value, bool) {
    return getValue(HvCell(value).getContent());
}

DataContent::DataContent(boost::shared_ptr<HvData> value, ContentType type)
    : HvContent(type),
      data_(std::move(value)) {}

boost::shared_ptr<DataContent> DataContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<DataContent>(content);
}

boost::shared_ptr<HvData> DataContent::getValue(const HvContentPtr& content) {
    return valueOr<DataContent>(content, boost::shared_ptr<HvData>());
}

ObjectContent::ObjectContent(boost::shared_ptr<HvData> data, Interface object)
    : DataContent(std::move(data), Object),
      object_(std::move(object)) {}

boost::shared_ptr<ObjectContent> ObjectContent::cast(const HvContentPtr& content) {
    return boost::dynamic_pointer_cast<ObjectContent>(content);
}

ObjectContent::Interface ObjectContent::getValue(const HvContentPtr& content) {
    return valueOr<ObjectContent>(content, Interface());
}

} // namespace vellox
