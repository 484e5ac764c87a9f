#include "vellox/check/Schema.h"

#include "vellox/check/SchemaRows.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace vellox::check {

namespace {

struct TableRow {
    Namespace space;
    const char* text;
};

constexpr TableRow kTables[] = {
    {kPresentation, kPresentationTypes},
    {kPresentation, kPresentationValues},
    {kDrawing, kDrawingTypes},
    {kDrawing, kDrawingGroups},
    {kDrawing, kDrawingValues},
    {kChart, kChartTypes},
    {kChart, kChartValues},
    {kPicture, kPictureTypes},
    {kShared, kSharedValues},
    {kRelationships, kRelationshipValues},
};

// The tables are broken into lines where a blank may stand.
std::string_view nextWord(std::string_view& text) {
    const std::size_t start = std::min(text.find_first_not_of(" \n"), text.size());
    const std::size_t end = std::min(text.find_first_of(" \n", start), text.size());
    const std::string_view word = text.substr(start, end - start);
    text.remove_prefix(end);
    return word;
}

std::string unfold(std::string_view rule) {
    std::string line;
    while (true) {
        const std::string_view word = nextWord(rule);
        if (word.empty())
            return line;
        line += (line.empty() ? "" : " ") + std::string(word);
    }
}

} // namespace

bool Schema::knows(Namespace space) const {
    return std::any_of(std::begin(kTables), std::end(kTables),
                       [space](const TableRow& table) { return table.space == space; });
}

void Schema::addRows(const char* table, Index& index) {
    for (const char* row = table; *row;) {
        const char* end = std::strchr(row, '\n');
        while (end && end[1] == ' ')
            end = std::strchr(end + 1, '\n');
        const char* stop = end ? end : row + std::strlen(row);
        const auto length = static_cast<std::size_t>(stop - row);
        const std::string_view text(row, length);
        const std::size_t nameEnd = text.find_first_of(": ");
        if (nameEnd != std::string_view::npos)
            index.emplace(text.substr(0, nameEnd), text.substr(text.find_first_of(":=") + 1));
        row = end ? end + 1 : stop;
    }
}

Schema::Index& Schema::getIndex(Namespace space) {
    const auto place = indices_.emplace(space, Index());
    if (place.second)
        for (const TableRow& table : kTables)
            if (table.space == space)
                addRows(table.text, place.first->second);
    return place.first->second;
}

// The row is in the tables, unless these are at odds with themselves.
std::string_view Schema::findRule(const RowName& row) {
    const Index& index = getIndex(row.space);
    const auto found = index.find(row.name);
    if (found == index.end())
        throw std::logic_error("the tables have no row " + std::string(row.name));
    return found->second;
}

Schema::RowName Schema::split(Namespace space, std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {space, name};
    return {findTableNamespace(name.substr(0, colon)), name.substr(colon + 1)};
}

TypeId Schema::findRoot(Key element) {
    const Namespace space = getNamespace(element);
    if (!knows(space))
        return kNoType;
    const std::wstring name = names_.spellLocal(element);
    const std::string ascii(name.begin(), name.end());
    const Index& index = getIndex(space);
    const auto found = index.find(ascii);
    if (found == index.end() || ascii.find('_') != std::string::npos)
        return kNoType;
    std::string_view rule = found->second;
    return findType(split(space, nextWord(rule)));
}

TypeId Schema::findType(const RowName& row) {
    // A built-in kind of value has no row: its name is its rule.
    const bool hasRow = row.name.find('_') != std::string_view::npos;
    const std::string_view rule = hasRow ? findRule(row) : row.name;
    const auto place = types_.emplace(rule.data(), static_cast<TypeId>(entries_.size()));
    if (place.second)
        entries_.push_back({row, rule});
    return place.first->second;
}

std::pair<Key, TypeId> Schema::findElement(const RowName& row) {
    std::string_view rule = findRule(row);
    return {names_.makeKey(row.space, row.name), findType(split(row.space, nextWord(rule)))};
}

const ElementType& Schema::getType(TypeId type) {
    Entry& entry = entries_[static_cast<std::size_t>(type)];
    if (!entry.isReady)
        makeReady(entry);
    return entry.type;
}

void Schema::readAll() {
    for (const TableRow& table : kTables)
        for (const auto& row : getIndex(table.space))
            if (row.first.substr(0, 3) == "CT_")
                getType(findType({table.space, row.first}));
            else if (row.first.substr(0, 3) == "ST_")
                findValue({table.space, row.first});
            else if (row.first.find('_') == std::string_view::npos)
                findElement({table.space, row.first});
}

void Schema::makeReady(Entry& entry) {
    entry.isReady = true;
    const Namespace space = entry.row.space;
    const bool isComplex = entry.row.name.substr(0, 3) == "CT_";
    if (!isComplex) {
        entry.type.value = &makeValue(space, entry.row.name);
        return;
    }
    const std::size_t semicolon = std::min(entry.rule.find(';'), entry.rule.size());
    entry.type.content = ContentModel(entry.rule.substr(0, semicolon), makeSource(space));
    if (semicolon < entry.rule.size())
        addAttributes(space, entry.rule.substr(semicolon + 1), entry.type);
}

ContentModel::Source Schema::makeSource(Namespace space) {
    ContentModel::Source source;
    source.makeKey = [this, space](std::string_view name) { return names_.makeKey(space, name); };
    source.findType = [this, space](std::string_view name) { return findType(split(space, name)); };
    source.findElement = [this, space](std::string_view name) { return findElement(split(space, name)); };
    source.findGroup = [this, space](std::string_view name) {
        const RowName row = split(space, name);
        return std::make_pair(findRule(row), makeSource(row.space));
    };
    return source;
}

void Schema::addAttributes(Namespace space, std::string_view rule, ElementType& type) {
    while (true) {
        const std::string_view word = nextWord(rule);
        if (word.empty())
            return;
        const std::size_t equals = word.find('=');
        if (equals == std::string_view::npos) {
            const RowName group = split(space, word);
            const std::string_view groupRule = findRule(group);
            addAttributes(group.space, groupRule.substr(groupRule.find(';') + 1), type);
            continue;
        }
        const bool isRequired = word.back() == '!';
        const std::string_view value = word.substr(equals + 1, word.size() - equals - 1 - isRequired);
        const RowName name = split(kNoNamespace, word.substr(0, equals));
        if (isRequired)
            type.required |= std::uint64_t(1) << type.attributes.size();
        type.attributes.push_back(
            {names_.makeKey(name.space, name.name), &makeValue(space, value), isRequired});
    }
}

// A name: that of a row, or of a built-in kind.
const ValueType& Schema::makeValue(Namespace space, std::string_view name) {
    if (name.find('_') != std::string_view::npos)
        return findValue(split(space, name));
    const auto place = values_.emplace(name.data(), nullptr);
    if (place.second) {
        valueStore_.push_back(ValueType::parse(name, {}));
        place.first->second = &valueStore_.back();
    }
    return *place.first->second;
}

const ValueType& Schema::findValue(const RowName& row) {
    const std::string_view rule = findRule(row);
    const auto found = values_.find(rule.data());
    if (found != values_.end())
        return *found->second;
    const auto lookup = [this, &row](std::string_view name) -> const ValueType& {
        return findValue(split(row.space, name));
    };
    valueStore_.push_back(ValueType::parse(unfold(rule), lookup));
    return *values_.emplace(rule.data(), &valueStore_.back()).first->second;
}

} // namespace vellox::check
