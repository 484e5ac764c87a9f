#include "vellox/host/binding/Adapters.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/host/values/hvFields.h"

namespace vellox::ppt::hostbind {

bool toLogical(const hvArray& value) {
    const int code = value.getClassCode();
    if (code == HvLogicalClass && value.getNElements() == 1)
        return value.getLogical();
    if (code >= HvDoubleClass && code <= HvLastIntegerClass && value.getNElements() > 0)
        return value.getDouble() != 0;
    raise(ppt_error::invalidLogicalPropertyValue());
}

namespace {

// Lists are taken apart here: what is in them may be fields, which no content of a host's value is.
Content toContent(const hvArray& value) {
    if (findFields(value))
        return record(toContents(value));
    const bool isEmptyList = value.getClassCode() == HvCellClass && value.getNElements() == 0;
    if (isEmptyList ||
        (value.getClassCode() == HvCellClass && HvCell(&value).getContentType() == HvContent::List)) {
        std::vector<Content> items;
        for (std::size_t i = 0; i < value.getNElements(); ++i) {
            const hvArray* cell = value.getCell(i);
            items.push_back(cell ? toContent(*cell) : Content());
        }
        return items;
    }
    const HvContentPtr content = HvCell(&value).getContent();
    if (!content && value.getNElements() > 0)
        raise(ppt_error::invalidReplaceArg());
    return content;
}

} // namespace

Contents toContents(const hvArray& value) {
    std::vector<Contents::Row> rows;
    const hvFields* fields = findFields(value);
    for (std::size_t i = 0; fields && i < fields->getNFields(); ++i)
        rows.emplace_back(fields->getFieldName(i), toContent(fields->getField(i)));
    return rows;
}

std::wstring describeValue(const hvArray& value) {
    const HvContentPtr content = HvCell(&value).getContent();
    const bool isCollection = ListContent::cast(content) || TableContent::cast(content);
    return isCollection || (!content && value.getNElements() > 0) ? HvData(&value).getDispl()
                                                                  : describeValue(content);
}

std::wstring describeValue(const HvContentPtr& content) {
    switch (content ? content->getContentType() : HvContent::Empty) {
    case HvContent::Boolean:
        return bool2str(BooleanContent::getValue(content));
    case HvContent::Integer:
        return num2str(IntegerContent::getValue(content));
    case HvContent::Double:
        return num2str(DoubleContent::getValue(content));
    case HvContent::String:
        return StringContent::getValue(content);
    case HvContent::Object:
        if (const auto object = ObjectContent::getValue(content))
            return toStringFromASCIIStringLiteral(object->getProxy()->getFullyQualifiedHostTypeName());
        [[fallthrough]];
    case HvContent::Unknown:
        return DataContent::getValue(content)->getDispl();
    case HvContent::List: // of several values, none of which is the one
    case HvContent::Table:
    case HvContent::Empty:
        break;
    }
    return {};
}

} // namespace vellox::ppt::hostbind
