#include "vellox/check/MarkupPaths.h"

#include <algorithm>

namespace vellox::check {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kMaxSteps = 32;      // of one spot: names and places are other ones in each slide
constexpr unsigned kMaxContexts = 500;     // each declaration that comes first time is compared with all
constexpr ContentModel::State kPassed = 0; // in an element that holds a value: that stands there

bool isBlank(std::string_view text) {
    return text.find_first_not_of(kBlanks) == text.npos;
}

// What has no references and no characters beyond ASCII means itself.
bool isLiteral(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c != '&' && c > 0; });
}

bool isNameStart(char c) {
    return c == '_' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::u16string widenAscii(std::string_view text) {
    return {text.begin(), text.end()};
}

bool accepts(const ValueType& type, std::string_view text) {
    return type.isFree() || (isLiteral(text) && type.accepts(widenAscii(text)));
}

std::string_view getLocal(std::string_view name) {
    return name.substr(name.find(':') + 1);
}

bool isDeclaration(std::string_view name) {
    return name.substr(0, 5) == "xmlns" && (name.size() == 5 || name[5] == ':');
}

} // namespace

MarkupPaths::MarkupPaths()
    : schema_(names_),
      alternate_(names_.makeKey(kCompatibility, "AlternateContent")),
      ignorable_(names_.makeKey(kCompatibility, "Ignorable")),
      column_(names_.makeKey(kDrawing, "gridCol")),
      row_(names_.makeKey(kDrawing, "tr")),
      cell_(names_.makeKey(kDrawing, "tc")) {
    contexts_.push_back({{"", kNoNamespace}, {"xml", kXml}});
    start_ = &requireSpot(0, kNoType, 0, ContentModel::kStart, {});
}

const MarkupPaths::Step* MarkupPaths::follow(Spot& spot, std::string_view markup) {
    for (std::size_t i = 0; i < spot.steps.size(); ++i) {
        const std::string& tag = spot.steps[i].tag;
        if (markup.compare(0, tag.size(), tag) != 0)
            continue;
        if (i == 0)
            return &spot.steps[0];
        std::swap(spot.steps[i - 1], spot.steps[i]);
        return &spot.steps[i - 1];
    }
    Tag tag;
    return read(markup, tag) ? learn(spot, tag) : nullptr;
}

MarkupPaths::Spot* MarkupPaths::passText(Spot& spot, std::string_view text) {
    const bool isOutside = spot.end.empty();
    if (!isOutside && (!spot.type || (spot.type->value && spot.type->value->isFree())))
        return &spot;
    if (!isOutside && spot.type->value)
        return spot.state != kPassed && accepts(*spot.type->value, text)
                   ? &requireSpot(spot.context, spot.typeId, spot.key, kPassed, spot.end)
                   : nullptr;
    return isBlank(text) ? &spot : nullptr;
}

// A start tag as serializers write it.
bool MarkupPaths::read(std::string_view markup, Tag& tag) {
    std::size_t at = markup.find_first_of(" \t\r\n/>", 1);
    if (at == markup.npos || !isNameStart(markup[1]))
        return false;
    tag.name = markup.substr(1, at - 1);
    while (true) {
        at = markup.find_first_not_of(kBlanks, at);
        if (at == markup.npos)
            return false;
        tag.isEmpty = markup[at] == '/';
        if (tag.isEmpty || markup[at] == '>')
            break;
        const std::size_t equals = markup.find('=', at);
        if (equals == markup.npos || equals + 1 == markup.size() || markup[equals + 1] != '"')
            return false;
        const std::size_t end = markup.find('"', equals + 2);
        if (end == markup.npos)
            return false;
        tag.attributes.push_back(
            {markup.substr(at, equals - at), markup.substr(equals + 2, end - equals - 2)});
        if (tag.attributes.back().value.find('<') != std::string_view::npos)
            return false;
        at = end + 1;
    }
    const std::size_t end = at + (tag.isEmpty ? 2 : 1);
    tag.text = markup.substr(0, end);
    return isLiteral(tag.name) && end <= markup.size() && tag.text.back() == '>';
}

const MarkupPaths::Step* MarkupPaths::learn(Spot& spot, Tag& tag) {
    unsigned context = spot.context;
    Key key = 0;
    ContentModel::State next = ContentModel::kStart;
    TypeId typeId = kNoType;
    if (!enter(tag, context, key) || !findType(spot, key, next, typeId))
        return nullptr;
    const ElementType* type = typeId == kNoType ? nullptr : &schema_.getType(typeId);
    Step step{std::string(tag.text)};
    if ((type && !takesAttributes(tag, *type, context)) || !seeFacts(tag, key, step))
        return nullptr;
    if (tag.isEmpty && (!mayEnd(type, ContentModel::kStart) || key == row_))
        return nullptr;
    const std::string end = "</" + std::string(tag.name) + ">";
    if (!tag.isEmpty)
        step.within = &requireSpot(context, typeId, key, ContentModel::kStart, end);
    step.after = &requireSpot(spot.context, spot.typeId, spot.key, next, spot.end);
    ++learnt_;
    if (spot.steps.size() == kMaxSteps)
        spot.steps.pop_back();
    return &*spot.steps.insert(spot.steps.begin() + static_cast<std::ptrdiff_t>(spot.steps.size() / 2),
                               std::move(step));
}

// The names of the element and its attributes.
bool MarkupPaths::enter(Tag& tag, unsigned& context, Key& key) {
    context = declare(context, tag);
    if (context == kMaxContexts || !findKey(context, tag.name, contexts_[context].find("")->second, key) ||
        key == alternate_)
        return false;
    const auto first = std::remove_if(tag.attributes.begin(), tag.attributes.end(),
                                      [](const Attribute& row) { return isDeclaration(row.name); });
    tag.attributes.erase(first, tag.attributes.end());
    for (Attribute& row : tag.attributes)
        if (!findKey(context, row.name, kNoNamespace, row.key))
            return false;
    return true;
}

/// @return kMaxContexts if there are too many
unsigned MarkupPaths::declare(unsigned context, const Tag& tag) {
    if (std::none_of(tag.attributes.begin(), tag.attributes.end(),
                     [](const Attribute& row) { return isDeclaration(row.name); }))
        return context;
    Context inner = contexts_[context];
    for (const Attribute& row : tag.attributes)
        if (isDeclaration(row.name)) {
            const std::u16string space = widenAscii(row.value);
            const bool isKnown = isLiteral(row.value) && !Names::isStrict(space);
            inner[std::string(row.name.size() == 5 ? "" : row.name.substr(6))] =
                isKnown ? names_.findNamespace(space) : kUndeclared;
        }
    const auto found = std::find(contexts_.begin(), contexts_.end(), inner);
    if (found != contexts_.end())
        return static_cast<unsigned>(found - contexts_.begin());
    if (contexts_.size() == kMaxContexts)
        return kMaxContexts;
    contexts_.push_back(std::move(inner));
    return static_cast<unsigned>(contexts_.size() - 1);
}

/// @param plain the namespace of names without a prefix
bool MarkupPaths::findKey(unsigned context, std::string_view name, Namespace plain, Key& key) {
    const std::size_t colon = name.find(':');
    Namespace space = plain;
    if (colon != name.npos) {
        const auto found = contexts_[context].find(name.substr(0, colon));
        space = found == contexts_[context].end() ? kUndeclared : found->second;
    }
    key = names_.makeKey(space, getLocal(name));
    return space != kUndeclared;
}

bool MarkupPaths::findType(const Spot& spot, Key key, ContentModel::State& next, TypeId& type) {
    if (!spot.type) {
        const bool isSecondRoot = spot.end.empty() && spot.state != ContentModel::kStart;
        next = kPassed;
        type = schema_.findRoot(key);
        return !isSecondRoot;
    }
    const ContentModel& content = spot.type->content;
    next = spot.type->value ? ContentModel::kNowhere : content.step(spot.state, key);
    if (next == ContentModel::kNowhere)
        return false;
    type = content.takesAny() ? schema_.findRoot(key) : content.getType(next);
    return type != kNoType || !content.takesKnownOnly() || !schema_.knows(getNamespace(key));
}

bool MarkupPaths::takesAttributes(const Tag& tag, const ElementType& type, unsigned context) const {
    std::uint64_t seen = 0;
    for (const Attribute& attribute : tag.attributes) {
        if (attribute.key == ignorable_ && !isKnown(attribute.value, context))
            return false;
        const auto rule = std::find_if(type.attributes.begin(), type.attributes.end(),
                                       [&](const AttributeRule& row) { return row.key == attribute.key; });
        if (rule == type.attributes.end()) {
            const Namespace space = getNamespace(attribute.key);
            if (space != kCompatibility && space != kInstance)
                return false;
            continue;
        }
        const std::uint64_t bit = std::uint64_t(1) << (rule - type.attributes.begin());
        if (seen & bit || !accepts(*rule->type, attribute.value))
            return false;
        seen |= bit;
    }
    return (type.required & ~seen) == 0;
}

bool MarkupPaths::isKnown(std::string_view prefixes, unsigned context) const {
    while (!isBlank(prefixes)) {
        prefixes.remove_prefix(prefixes.find_first_not_of(kBlanks));
        const std::string_view prefix = prefixes.substr(0, prefixes.find_first_of(kBlanks));
        prefixes.remove_prefix(prefix.size());
        const auto found = contexts_[context].find(prefix);
        if (found == contexts_[context].end() || found->second == kUndeclared)
            return false;
    }
    return true;
}

bool MarkupPaths::seeFacts(const Tag& tag, Key key, Step& step) const {
    const std::u16string local = widenAscii(getLocal(tag.name));
    const auto find = [&](std::string_view name) {
        for (const Attribute& row : tag.attributes)
            if (row.name == name)
                return row.value;
        return std::string_view();
    };
    step.key = key;
    step.watch = findWatch(getNamespace(key), local);
    if (step.watch != Watch::Nothing)
        step.id = find(step.watch == Watch::TargetBySpid ? "spid" : "id");
    for (const Attribute& row : tag.attributes) {
        const bool isSpan = key == cell_ && getNamespace(row.key) == kNoNamespace && row.name != "id";
        if (isSpan || !isLiteral(step.id))
            return false;
        if (getNamespace(row.key) != kRelationships || (row.value.empty() && isLink(local)))
            continue;
        if (row.value.empty() || !isLiteral(row.value))
            return false;
        step.references.push_back(
            {widen(row.value), findTargetKinds(getNamespace(key), local, widenAscii(find("action")))});
    }
    const bool isOfTable = key == column_ || key == row_ || key == cell_;
    step.isPlain = step.watch == Watch::Nothing && step.references.empty() && !isOfTable;
    return true;
}

bool MarkupPaths::mayEnd(const ElementType* type, ContentModel::State state) const {
    if (!type)
        return true;
    if (type->value)
        return state == kPassed || accepts(*type->value, {});
    return type->content.mayEnd(state);
}

MarkupPaths::Spot& MarkupPaths::requireSpot(unsigned context, TypeId typeId, Key key,
                                            ContentModel::State state, std::string_view end) {
    const std::tuple name(context, typeId, key, state, std::string(end));
    const auto found = spots_.find(name);
    if (found != spots_.end())
        return found->second;
    ++learnt_;
    const ElementType* type = typeId == kNoType ? nullptr : &schema_.getType(typeId);
    const Spot spot{type, typeId, state, key, context, mayEnd(type, state), std::string(end)};
    return spots_.emplace(name, spot).first->second;
}

} // namespace vellox::check
