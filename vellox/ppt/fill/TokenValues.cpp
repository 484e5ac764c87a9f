#include "vellox/ppt/fill/TokenValues.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/formats/NumberForm.h"
#include "vellox/ppt/rules/OfficeRules.h"
#include "vellox/ppt/tree/NodeText.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

namespace {

// A field may have dots in its own name.
const Content* findField(const Contents& record, const std::wstring& name) {
    if (const Content* found = record.find(name))
        return found;
    for (std::size_t dot = name.find(L'.'); dot != std::wstring::npos; dot = name.find(L'.', dot + 1)) {
        const Content* outer = record.find(name.substr(0, dot));
        const auto inner = outer ? RecordContent::cast(outer->get()) : nullptr;
        if (inner)
            return findField(inner->getValue(), name.substr(dot + 1));
    }
    return nullptr;
}

std::optional<std::vector<Contents>> toRecords(const HvList& list) {
    std::vector<Contents> records;
    for (unsigned int i = 0; i < list.getSize(); ++i) {
        const auto record = RecordContent::cast(list.getItem(i));
        if (!record)
            return std::nullopt;
        records.push_back(record->getValue());
    }
    return records;
}

std::optional<std::vector<Contents>> toRecords(const HvTable& table) {
    std::vector<Contents> records;
    for (unsigned int r = 1; r < table.getNRows(); ++r) {
        std::vector<Contents::Row> fields;
        for (unsigned int c = 0; c < table.getNCols(); ++c)
            fields.emplace_back(toText(table.getEntry(0, c), {}).value_or(L""), table.getEntry(r, c));
        records.emplace_back(std::move(fields));
    }
    return records;
}

} // namespace

TokenValues::TokenValues(const Contents& values, const NumberMarks& marks) : values_(values), marks_(marks) {
    for (const Contents::Row& row : values_.getRows())
        byName_.emplace(row.first, &row.second);
}

const Content* TokenValues::find(const Token& token, const TokenScope* scope) {
    const std::wstring first = token.getFirst();
    if (scope && first == scope->name && first.size() < token.name.size())
        return findField(scope->record, token.name.substr(first.size() + 1));
    for (const std::wstring& name : {token.name, first}) {
        const auto found = byName_.find(name);
        if (found == byName_.end())
            continue;
        used_.insert(name);
        if (name.size() == token.name.size())
            return found->second;
        const auto record = RecordContent::cast(found->second->get());
        return record ? findField(record->getValue(), token.name.substr(name.size() + 1)) : nullptr;
    }
    return nullptr;
}

const std::vector<Contents>* TokenValues::findRecords(const Token& token) {
    const std::wstring name = token.getFirst();
    const auto found = byName_.find(name);
    if (found == byName_.end() || name.size() == token.name.size() || byName_.count(token.name) > 0)
        return nullptr;
    const auto [entry, isNew] = records_.emplace(name, std::nullopt);
    if (isNew) {
        const HvContentPtr& content = found->second->get();
        if (const auto list = ListContent::getValue(content))
            entry->second = toRecords(*list);
        else if (const auto table = TableContent::getValue(content))
            entry->second = toRecords(*table);
    }
    if (!entry->second)
        return nullptr;
    used_.insert(name);
    return &*entry->second;
}

std::vector<std::wstring> TokenValues::getUnused() const {
    std::vector<std::wstring> unused;
    for (const Contents::Row& row : values_.getRows())
        if (used_.count(row.first) == 0)
            unused.push_back(row.first);
    return unused;
}

namespace {

const Rules& getShownBy() {
    static const auto& rules = *new const OfficeRules;
    return rules;
}

std::wstring showShortest(const TextImpl::Given& given) {
    return getShownBy().textOf({std::wstring(), given}).front();
}

std::optional<std::wstring> showNumber(const TextImpl::Given& given, double number, const std::wstring& form,
                                       const NumberMarks& marks) {
    if (form.empty())
        return marks.mark(showShortest(given));
    const std::optional<NumberForm> parsed = NumberForm::parse(form);
    return parsed ? parsed->show(number, marks) : std::nullopt;
}

std::optional<std::wstring> showObject(const HvContentPtr& content) {
    if (const auto* run = getObjectImpl<TextImpl>(content))
        return run->isNumContent() ? showShortest(run->getGiven()) : run->getTextContent();
    const PPTNodeImpl::Child paragraph = getParagraphObject(content);
    return paragraph ? std::optional(readRuns(*implOf<PPTNodeImpl>(*paragraph), &getShownBy()))
                     : std::nullopt;
}

/// Tables in files have numbers as texts, and these may have the form of a number, too.
std::optional<std::wstring> showText(const std::wstring& text, const std::wstring& form,
                                     const NumberMarks& marks) {
    if (form.empty())
        return text;
    const std::optional<NumberForm> parsed = NumberForm::parse(form);
    return parsed ? parsed->show(text, marks) : std::nullopt;
}

} // namespace

std::optional<std::wstring> toText(const HvContentPtr& content, const std::wstring& form,
                                   const NumberMarks& marks) {
    if (!content)
        return std::wstring();
    switch (content->getContentType()) {
    case HvContent::Integer:
        return showNumber(static_cast<long long>(IntegerContent::getValue(content)),
                          IntegerContent::getValue(content), form, marks);
    case HvContent::Double:
        return showNumber(DoubleContent::getValue(content), DoubleContent::getValue(content), form, marks);
    case HvContent::Boolean:
        return form.empty() ? std::optional(showShortest(BooleanContent::getValue(content))) : std::nullopt;
    case HvContent::String:
        return showText(StringContent::getValue(content), form, marks);
    case HvContent::Object:
        return form.empty() ? showObject(content) : std::nullopt;
    case HvContent::List:
    case HvContent::Table:
    case HvContent::Empty:
    case HvContent::Unknown:
        break;
    }
    return std::nullopt;
}

} // namespace vellox::ppt
