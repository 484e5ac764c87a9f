#include "vellox/ppt/formats/SpellingTable.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"

namespace vellox::ppt {

SpellingTable::SpellingTable(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        mappings_.emplace(row.key, ValueMapping{row.label, row.xmlValue});
}

const ValueMapping& SpellingTable::lookup(const std::wstring& text) const {
    static const ValueMapping& none = *new const ValueMapping;
    const auto found = mappings_.find(toLowerString(text));
    return found == mappings_.end() ? none : found->second;
}

const ValueMapping& SpellingTable::require(const std::wstring& text) const {
    const ValueMapping& mapping = lookup(text);
    if (mapping.label.empty())
        raise(ppt_error::invalidPropertyValue(text));
    return mapping;
}

} // namespace vellox::ppt
