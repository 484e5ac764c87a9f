/// @file
/// The tables, made ready as far as they are needed.

#ifndef VELLOX_CHECK_SCHEMA_H
#define VELLOX_CHECK_SCHEMA_H

#include <cstdint>
#include <deque>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "vellox/check/ContentModel.h"
#include "vellox/check/Names.h"
#include "vellox/check/ValueType.h"

namespace vellox::check {

struct AttributeRule {
    Key key;
    const ValueType* type;
    bool isRequired;
};

/// What may stand in an element and on it. If it holds a value, it has no children.
struct ElementType {
    ContentModel content = {};
    std::vector<AttributeRule> attributes = {};
    const ValueType* value = nullptr;
    std::uint64_t required = 0; // one bit for each attribute that must be there
};

/// Answers from the tables of SchemaRows.h. A row is read when the first element of its type comes along, so
/// that a schema costs next to nothing to make; hold on to one for as long as there are documents.
class Schema {
public:
    explicit Schema(Names& names) : names_(names) {}
    Schema(const Schema&) = delete;
    Schema& operator=(const Schema&) = delete;

    /// Whether there are tables for this namespace.
    bool knows(Namespace space) const;
    /// The type of an element that can stand alone, or kNoType.
    TypeId findRoot(Key element);
    const ElementType& getType(TypeId type);
    /// Reads all rows, which only a test has reason to.
    /// @throws std::logic_error if a row refers to another that isn't there
    void readAll();

private:
    struct RowName {
        Namespace space;
        std::string_view name;
    };
    struct Entry {
        RowName row;
        std::string_view rule;
        bool isReady = false;
        ElementType type = {};
    };
    using Index = std::unordered_map<std::string_view, std::string_view>;

    Index& getIndex(Namespace space);
    static void addRows(const char* table, Index& index);
    std::string_view findRule(const RowName& row);
    static RowName split(Namespace space, std::string_view name);

    TypeId findType(const RowName& row);
    std::pair<Key, TypeId> findElement(const RowName& row);
    const ValueType& findValue(const RowName& row);
    const ValueType& makeValue(Namespace space, std::string_view rule);
    ContentModel::Source makeSource(Namespace space);
    void makeReady(Entry& entry);
    void addAttributes(Namespace space, std::string_view rule, ElementType& type);

    Names& names_;
    std::unordered_map<int, Index> indices_;        // by namespace
    std::deque<Entry> entries_;                     // by type
    std::unordered_map<const char*, TypeId> types_; // by where the rule stands
    std::unordered_map<const char*, const ValueType*> values_;
    std::deque<ValueType> valueStore_;
};

} // namespace vellox::check

#endif
