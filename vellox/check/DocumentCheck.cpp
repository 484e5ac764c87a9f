#include "vellox/check/DocumentCheck.h"

#include "vellox/check/ChildFeed.h"
#include "vellox/check/ElementFacts.h"
#include "vellox/check/NodeNames.h"
#include "vellox/opc/XercesString.h"

#include <algorithm>
#include <unordered_map>

namespace vellox::check {

using namespace xercesc;

namespace {

// The tables and any honest deck have some thousands; with more, the walk begins afresh.
constexpr std::size_t kMaxNames = 100000;

bool isBlankText(const XMLCh* text) {
    for (; *text; ++text)
        if (*text != u' ' && *text != u'\n' && *text != u'\t' && *text != u'\r')
            return false;
    return true;
}

bool isText(const DOMNode& node) {
    return node.getNodeType() == DOMNode::TEXT_NODE || node.getNodeType() == DOMNode::CDATA_SECTION_NODE;
}

} // namespace

/// The walk over a document: types go down with it, names and facts are gathered on the way.
class DocumentCheck::Walk {
public:
    Walk()
        : schema_(names_),
          nodes_(names_),
          facts_(names_),
          alternate_(names_.makeKey(kCompatibility, "AlternateContent")),
          choice_(names_.makeKey(kCompatibility, "Choice")),
          ignorable_(names_.makeKey(kCompatibility, "Ignorable")),
          requires_(names_.makeKey(kNoNamespace, "Requires")) {}

    DocumentFacts run(const DOMDocument& document, const Place& place, const RelationshipKinds* kinds,
                      Report& report) {
        place_ = place;
        report_ = &report;
        tolerated_.clear();
        nodes_.reset();
        facts_.begin(place, kinds, report);
        const std::wstring root = enterRoot(*document.getDocumentElement());
        DocumentFacts facts = facts_.finish();
        facts.root = root;
        facts.isStrict = nodes_.isStrict();
        return facts;
    }

    std::size_t countNames() const { return names_.count(); }

private:
    /// Namespaces that a reader may not know, for as long as this lives.
    class Tolerance {
    public:
        Tolerance(Walk& walk, const DOMElement& element, const XMLCh* prefixes) : walk_(walk) {
            if (prefixes)
                forEachWord(prefixes, [&](std::u16string_view prefix) {
                    spaces_.push_back(walk.findDeclared(element, prefix));
                    ++walk.tolerated_[spaces_.back()];
                });
        }
        Tolerance(const Tolerance&) = delete;
        Tolerance& operator=(const Tolerance&) = delete;
        ~Tolerance() {
            for (const Namespace space : spaces_)
                --walk_.tolerated_[space];
        }

    private:
        Walk& walk_;
        std::vector<Namespace> spaces_;
    };

    template <class Action> static void forEachWord(std::u16string_view text, Action action) {
        constexpr std::u16string_view kBlanks = u" \t\n\r";
        for (std::size_t at = text.find_first_not_of(kBlanks); at < text.size();) {
            const std::size_t end = std::min(text.find_first_of(kBlanks, at), text.size());
            action(text.substr(at, end - at));
            at = text.find_first_not_of(kBlanks, end);
        }
    }

    Namespace findDeclared(const DOMElement& element, std::u16string_view prefix) {
        const Namespace space = nodes_.findPrefix(prefix);
        if (space == kUndeclared)
            add(Code::unknownPrefix, element,
                L"the prefix " + quote(widen(prefix)) + L" is named, and declared nowhere");
        return space;
    }

    bool isTolerated(Namespace space) const {
        const auto found = tolerated_.find(space);
        return found != tolerated_.end() && found->second > 0;
    }

    void add(Code code, const DOMElement& element, const std::wstring& text) {
        report_->add(code, place_, text, findShapeName(element));
    }

    std::wstring spell(const std::vector<Key>& keys) const {
        constexpr std::size_t kMax = 6;
        std::wstring text;
        for (std::size_t i = 0; i < keys.size() && i < kMax; ++i)
            text += (i == 0 ? L"" : i + 1 == keys.size() ? L" or " : L", ") + names_.spell(keys[i]);
        return text + (keys.size() > kMax ? L" ..." : L"");
    }

    std::wstring enterRoot(const DOMElement& element) {
        const NodeNames::Scope scope(nodes_, element);
        // The strict form spells values otherwise, so that the tables don't hold for it.
        const bool isChecked = !nodes_.isStrict();
        visit(element, scope, isChecked ? schema_.findRoot(scope.getKey()) : kNoType, true);
        return names_.spell(scope.getKey());
    }

    void visit(const DOMElement& element, const NodeNames::Scope& scope, TypeId typeId, bool isActive) {
        const Tolerance tolerance(*this, element, scope.find(ignorable_));
        facts_.see(element, scope, isActive);
        if (getNamespace(scope.getKey()) == kUndeclared)
            add(Code::unknownPrefix, element,
                L"the prefix of " + opc::toWideString(element.getNodeName()) + L" is declared nowhere");
        const ElementType* type = typeId == kNoType ? nullptr : &schema_.getType(typeId);
        if (type)
            checkAttributes(element, scope, *type);
        if (type && type->value)
            return checkValue(element, scope.getKey(), *type->value);
        ChildFeed feed(type);
        feedChildren(element, scope.getKey(), feed, isActive);
        if (type)
            finish(element, scope.getKey(), feed);
    }

    // Attributes

    void checkAttributes(const DOMElement& element, const NodeNames::Scope& scope, const ElementType& type) {
        std::uint64_t seen = 0;
        for (const AttributeNode& attribute : scope) {
            const auto rule =
                std::find_if(type.attributes.begin(), type.attributes.end(),
                             [&](const AttributeRule& row) { return row.key == attribute.key; });
            if (rule == type.attributes.end()) {
                checkUnknownAttribute(element, scope.getKey(), attribute);
                continue;
            }
            seen |= std::uint64_t(1) << (rule - type.attributes.begin());
            if (!rule->type->accepts(attribute.value))
                add(Code::invalidValue, element,
                    names_.spell(attribute.key) + L"=" + quote(opc::toWideString(attribute.value)) + L" of " +
                        names_.spell(scope.getKey()) + L" isn't " + rule->type->describe());
        }
        if (const std::uint64_t missing = type.required & ~seen)
            for (std::size_t i = 0; i < type.attributes.size(); ++i)
                if (missing >> i & 1)
                    add(Code::missingAttribute, element,
                        names_.spell(scope.getKey()) + L" has no attribute " +
                            names_.spell(type.attributes[i].key));
    }

    void checkUnknownAttribute(const DOMElement& element, Key owner, const AttributeNode& attribute) {
        const Namespace space = getNamespace(attribute.key);
        if (space == kCompatibility || space == kInstance || (space != kNoNamespace && isTolerated(space)))
            return;
        add(space == kUndeclared ? Code::unknownPrefix : Code::unknownAttribute, element,
            names_.spell(owner) + L" has an attribute " + names_.spell(attribute.key) +
                L", which isn't allowed there");
    }

    void checkValue(const DOMElement& element, Key key, const ValueType& type) {
        if (element.getFirstElementChild())
            add(Code::unknownElement, element,
                names_.spell(key) + L" holds a value and has an element in it");
        const XMLCh* text = type.isFree() ? nullptr : element.getTextContent();
        if (text && !type.accepts(text))
            add(Code::invalidValue, element,
                quote(opc::toWideString(text)) + L" in " + names_.spell(key) + L" isn't " + type.describe());
    }

    // Children

    void feedChildren(const DOMElement& parent, Key parentKey, ChildFeed& feed, bool isActive) {
        bool hasText = false;
        for (const DOMNode* node = parent.getFirstChild(); node; node = node->getNextSibling()) {
            if (node->getNodeType() == DOMNode::ELEMENT_NODE)
                feedChild(static_cast<const DOMElement&>(*node), parentKey, feed, isActive);
            else if (feed.isChecked() && !hasText && isText(*node) && !isBlankText(node->getNodeValue())) {
                hasText = true;
                add(Code::unexpectedText, parent,
                    names_.spell(parentKey) + L" has text in it: " +
                        quote(opc::toWideString(node->getNodeValue())));
            }
        }
    }

    void feedChild(const DOMElement& child, Key parentKey, ChildFeed& feed, bool isActive) {
        const NodeNames::Scope scope(nodes_, child);
        const Key key = scope.getKey();
        if (key == alternate_)
            return feedAlternate(child, scope, parentKey, feed, isActive);
        const Namespace space = getNamespace(key);
        TypeId type = kNoType;
        if (!feed.isChecked())
            type = nodes_.isStrict() ? kNoType : schema_.findRoot(key);
        else if (schema_.knows(space) || !isTolerated(space))
            type = findChildType(child, key, parentKey, feed);
        visit(child, scope, type, isActive);
    }

    TypeId findChildType(const DOMElement& child, Key key, Key parentKey, ChildFeed& feed) {
        const ContentModel& content = feed.getType().content;
        TypeId type = kNoType;
        ChildFeed::Fault fault = feed.take(key, type);
        if (fault == ChildFeed::Fault::None && content.takesAny()) {
            type = schema_.findRoot(key);
            if (type == kNoType && content.takesKnownOnly() && schema_.knows(getNamespace(key)))
                fault = ChildFeed::Fault::Unknown;
        }
        if (fault == ChildFeed::Fault::Unknown)
            add(Code::unknownElement, child,
                names_.spell(key) + L" isn't allowed in " + names_.spell(parentKey));
        else if (fault == ChildFeed::Fault::Disorder)
            add(Code::elementOrder, child,
                names_.spell(key) + L" comes too late in " + names_.spell(parentKey) +
                    L", or once too often");
        return type;
    }

    void finish(const DOMElement& element, Key key, const ChildFeed& feed) {
        const std::vector<Key> missing = feed.finish();
        if (!missing.empty())
            add(Code::missingElement, element, names_.spell(key) + L" lacks " + spell(missing));
    }

    // Alternatives

    // A reader takes the first branch whose namespaces it knows; others take others, so that all of them have
    // to fit into the place.
    void feedAlternate(const DOMElement& alternate, const NodeNames::Scope& alternateScope, Key parentKey,
                       ChildFeed& feed, bool isActive) {
        const Tolerance tolerance(*this, alternate, alternateScope.find(ignorable_));
        const ChildFeed before = feed;
        bool isChosen = false;
        for (const DOMElement* branch = alternate.getFirstElementChild(); branch;
             branch = branch->getNextElementSibling()) {
            const NodeNames::Scope scope(nodes_, *branch);
            const bool isChoice = scope.getKey() == choice_;
            const XMLCh* needed = isChoice ? scope.find(requires_) : nullptr;
            const Tolerance branchTolerance(*this, *branch, needed);
            const bool isTaken = !isChosen && (!isChoice || knowsAll(needed));
            isChosen = isChosen || isTaken;
            ChildFeed trial = before;
            feedChildren(*branch, parentKey, isTaken ? feed : trial, isActive && isTaken);
        }
    }

    bool knowsAll(const XMLCh* prefixes) {
        bool isKnown = prefixes && *prefixes;
        if (isKnown)
            forEachWord(prefixes, [&](std::u16string_view prefix) {
                isKnown = isKnown && schema_.knows(nodes_.findPrefix(prefix));
            });
        return isKnown;
    }

    Names names_;
    Schema schema_;
    NodeNames nodes_;
    ElementFacts facts_;
    Key alternate_, choice_, ignorable_, requires_;
    std::unordered_map<std::uint32_t, unsigned> tolerated_; // how often each namespace is
    Place place_;
    Report* report_ = nullptr;
};

DocumentCheck::DocumentCheck() : walk_(std::make_unique<Walk>()) {}

DocumentCheck::~DocumentCheck() = default;

DocumentFacts DocumentCheck::check(const DOMDocument& document, const Place& place,
                                   const RelationshipKinds* kinds, Report& report) {
    if (walk_->countNames() > kMaxNames)
        walk_ = std::make_unique<Walk>();
    return walk_->run(document, place, kinds, report);
}

} // namespace vellox::check
