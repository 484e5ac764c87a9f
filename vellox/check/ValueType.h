/// @file
/// What an attribute or a text may be.

#ifndef VELLOX_CHECK_VALUETYPE_H
#define VELLOX_CHECK_VALUETYPE_H

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vellox::check {

/// One kind of value. Blanks around a value don't count.
class ValueType {
public:
    /// Looks up a kind that a rule refers to by its name.
    using Lookup = std::function<const ValueType&(std::string_view name)>;

    /// From a rule as the tables spell it: "int 0..5", "{l ctr r}", "ST_A | percent".
    static ValueType parse(std::string_view rule, const Lookup& lookup);

    bool accepts(std::u16string_view text) const;
    /// Whether any text will do.
    bool isFree() const { return kind_ == Kind::Any && low_ == INT64_MIN && high_ == INT64_MAX; }
    /// Such as "a whole number from 0 to 5".
    std::wstring describe() const;

private:
    enum class Kind {
        Any,
        Boolean,
        Whole,
        Decimal,
        Hex,
        Guid,
        Percent,
        DecimalPercent,
        Measure,
        DateTime,
        Name,
        Words,
        Choice
    };
    struct BuiltIn;
    static const BuiltIn kBuiltIns[];

    static ValueType parseOne(std::string_view rule, const Lookup& lookup);
    static ValueType findKind(std::string_view name, const Lookup& lookup);
    void narrow(std::string_view range);
    bool acceptsWord(std::u16string_view text) const;
    bool isInRange(std::int64_t number) const { return number >= low_ && number <= high_; }
    std::wstring describeRange() const;

    Kind kind_ = Kind::Any;
    std::int64_t low_ = INT64_MIN; // of the number, or of the length
    std::int64_t high_ = INT64_MAX;
    std::vector<std::u16string> words_; // as in the table
    std::vector<ValueType> choices_;
};

} // namespace vellox::check

#endif
