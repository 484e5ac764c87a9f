#include "vellox/check/ContentModel.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace vellox::check {

namespace {

/// A part of a rule: where it can begin and end, and whether it can be left out.
struct Piece {
    bool mayBeEmpty = true;
    std::vector<ContentModel::State> first = {};
    std::vector<ContentModel::State> last = {};
};

void append(std::vector<ContentModel::State>& target, const std::vector<ContentModel::State>& source) {
    for (const ContentModel::State state : source)
        if (std::find(target.begin(), target.end(), state) == target.end())
            target.push_back(state);
}

struct Occurrence {
    int least = 1;
    int most = 1; // INT_MAX if there is no limit
};

} // namespace

/// Reads a rule from left to right and links its states as it goes.
class ContentModel::Builder {
public:
    Builder(ContentModel& model, std::string_view text, const Source& source)
        : model_(model),
          text_(text),
          source_(source) {}

    Piece readAll() {
        Piece all = readSequence();
        return all;
    }

private:
    static constexpr std::string_view kEndOfName = " \n|()?*+{";

    void skipBlanks() { at_ = std::min(text_.find_first_not_of(" \n", at_), text_.size()); }

    bool take(char c) {
        skipBlanks();
        if (at_ == text_.size() || text_[at_] != c)
            return false;
        ++at_;
        return true;
    }

    bool isAtEnd() {
        skipBlanks();
        return at_ == text_.size() || text_[at_] == ')' || text_[at_] == '|';
    }

    Piece readSequence() {
        Piece sequence;
        while (!isAtEnd())
            sequence = join(sequence, readOccurrences());
        return sequence;
    }

    Piece readChoice() {
        Piece choice = readSequence();
        while (take('|')) {
            const Piece other = readSequence();
            choice.mayBeEmpty = choice.mayBeEmpty || other.mayBeEmpty;
            append(choice.first, other.first);
            append(choice.last, other.last);
        }
        return choice;
    }

    // What may come several times is read several times, since each time has states of its own; only what
    // has no limit goes round in a circle.
    Piece readOccurrences() {
        const std::size_t start = at_;
        Piece piece = readOne();
        const Occurrence often = readOccurrence();
        const std::size_t end = at_;
        const auto readAgain = [&] {
            at_ = start;
            return readOne();
        };
        Piece whole = piece;
        for (int i = 1; i < often.least; ++i)
            whole = join(whole, piece = readAgain());
        if (often.most == INT_MAX)
            link(piece.last, piece.first);
        for (int i = std::max(1, often.least); often.most != INT_MAX && i < often.most; ++i) {
            piece = readAgain();
            piece.mayBeEmpty = true;
            whole = join(whole, piece);
        }
        whole.mayBeEmpty = whole.mayBeEmpty || often.least == 0;
        at_ = end;
        return whole;
    }

    Occurrence readOccurrence() {
        if (at_ == text_.size())
            return {};
        switch (text_[at_]) {
        case '?':
            ++at_;
            return {0, 1};
        case '*':
            ++at_;
            return {0, INT_MAX};
        case '+':
            ++at_;
            return {1, INT_MAX};
        case '{': {
            const std::size_t end = text_.find('}', at_);
            const std::string range(text_.substr(at_ + 1, end - at_ - 1));
            const std::string most = range.substr(range.find(',') + 1);
            at_ = end + 1;
            return {std::atoi(range.c_str()), most.empty() ? INT_MAX : std::atoi(most.c_str())};
        }
        default:
            return {};
        }
    }

    Piece readOne() {
        if (take('(')) {
            Piece inner = readChoice();
            take(')');
            return inner;
        }
        skipBlanks();
        const std::size_t end = std::min(text_.find_first_of(kEndOfName, at_), text_.size());
        const std::string_view name = text_.substr(at_, end - at_);
        at_ = end;
        return readName(name);
    }

    Piece readName(std::string_view name) {
        const std::size_t equals = name.find('=');
        if (equals != std::string_view::npos)
            return addState(source_.makeKey(name.substr(0, equals)),
                            source_.findType(name.substr(equals + 1)));
        if (name == "any" || name == "anyKnown") {
            model_.takesAny_ = true;
            model_.takesKnownOnly_ = name == "anyKnown";
            return addState(kAnyKey, kNoType);
        }
        if (name.find("EG_") != std::string_view::npos) {
            const auto group = source_.findGroup(name);
            return Builder(model_, group.first, group.second).readAll();
        }
        const auto element = source_.findElement(name);
        return addState(element.first, element.second);
    }

    Piece addState(Key key, TypeId type) {
        const auto state = static_cast<State>(model_.states_.size());
        model_.states_.push_back({key, type});
        return {false, {state}, {state}};
    }

    void link(const std::vector<State>& from, const std::vector<State>& to) {
        for (const State state : from)
            append(model_.states_[static_cast<std::size_t>(state)].next, to);
    }

    Piece join(const Piece& left, const Piece& right) {
        link(left.last, right.first);
        Piece both{left.mayBeEmpty && right.mayBeEmpty, left.first, right.last};
        if (left.mayBeEmpty)
            append(both.first, right.first);
        if (right.mayBeEmpty)
            append(both.last, left.last);
        return both;
    }

    ContentModel& model_;
    std::string_view text_;
    const Source& source_;
    std::size_t at_ = 0;
};

ContentModel::ContentModel(std::string_view rule, const Source& source) {
    const Piece whole = Builder(*this, rule, source).readAll();
    first_ = whole.first;
    mayBeEmpty_ = whole.mayBeEmpty;
    for (const State state : whole.last)
        states_[static_cast<std::size_t>(state)].isLast = true;
}

ContentModel::State ContentModel::step(State state, Key child) const {
    for (const State next : getNext(state)) {
        const Key key = states_[static_cast<std::size_t>(next)].key;
        if (key == child || key == kAnyKey)
            return next;
    }
    return kNowhere;
}

bool ContentModel::mayEnd(State state) const {
    return state == kStart ? mayBeEmpty_ : states_[static_cast<std::size_t>(state)].isLast;
}

ContentModel::State ContentModel::find(Key child) const {
    for (std::size_t i = 0; i < states_.size(); ++i)
        if (states_[i].key == child)
            return static_cast<State>(i);
    return kNowhere;
}

ContentModel::State ContentModel::findAhead(State from, Key child) const {
    std::vector<bool> isSeen(states_.size());
    std::vector<State> open{from};
    while (!open.empty()) {
        const State state = open.back();
        open.pop_back();
        for (const State next : getNext(state)) {
            if (states_[static_cast<std::size_t>(next)].key == child)
                return next;
            if (!isSeen[static_cast<std::size_t>(next)])
                open.push_back(next);
            isSeen[static_cast<std::size_t>(next)] = true;
        }
    }
    return kNowhere;
}

std::vector<Key> ContentModel::getExpected(State state) const {
    std::vector<Key> keys;
    for (const State next : getNext(state))
        keys.push_back(states_[static_cast<std::size_t>(next)].key);
    return keys;
}

} // namespace vellox::check
