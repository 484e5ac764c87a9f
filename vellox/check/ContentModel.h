/// @file
/// Which children may follow one another.

#ifndef VELLOX_CHECK_CONTENTMODEL_H
#define VELLOX_CHECK_CONTENTMODEL_H

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "vellox/check/Names.h"

namespace vellox::check {

/// The type of an element: a number of the schema's, or nothing known.
using TypeId = int;
constexpr TypeId kNoType = -1;

/// The rule of one element's children as an automaton. Each element of the rule is a state, and each state
/// knows which may come next: a walk over the children takes one step a child, however the rule is built.
class ContentModel {
public:
    using State = int;
    static constexpr State kStart = -1;
    static constexpr State kNowhere = -2;

    /// What a rule needs to know of the names in it.
    struct Source {
        std::function<Key(std::string_view name)> makeKey;
        std::function<TypeId(std::string_view name)> findType;
        std::function<std::pair<Key, TypeId>(std::string_view name)> findElement;
        /// The rule of a group, and what its own names mean.
        std::function<std::pair<std::string_view, Source>(std::string_view name)> findGroup;
    };

    /// Without a rule, nothing is allowed.
    ContentModel() = default;
    ContentModel(std::string_view rule, const Source& source);

    /// The state after a child, or kNowhere if it may not come now.
    State step(State state, Key child) const;
    /// Whether the children may end here.
    bool mayEnd(State state) const;
    /// The first state of such a child, or kNowhere if it has no place here at all.
    State find(Key child) const;
    /// The first such state that can come later, with anything between; or kNowhere.
    State findAhead(State from, Key child) const;
    TypeId getType(State state) const { return states_[static_cast<std::size_t>(state)].type; }
    /// What may come next.
    std::vector<Key> getExpected(State state) const;
    bool isEmpty() const { return states_.empty(); }
    bool takesAny() const { return takesAny_; }
    /// Whether what can't stand alone is refused among elements of any kind.
    bool takesKnownOnly() const { return takesKnownOnly_; }

private:
    class Builder;
    struct Row {
        Key key;
        TypeId type;
        bool isLast = false;
        std::vector<State> next = {};
    };

    const std::vector<State>& getNext(State state) const {
        return state == kStart ? first_ : states_[static_cast<std::size_t>(state)].next;
    }

    std::vector<Row> states_;
    std::vector<State> first_;
    bool mayBeEmpty_ = true;
    bool takesAny_ = false;
    bool takesKnownOnly_ = false;
};

} // namespace vellox::check

#endif
