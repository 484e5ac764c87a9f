#include "vellox/check/NodeNames.h"

namespace vellox::check {

namespace {

constexpr std::uint32_t kNoPrefix = 0; // the number of the empty one
constexpr std::size_t kSlots = 512;    // to begin with; a power of two

/// The value of an attribute. Asking the attribute itself costs Xerces more than all else of the walk, and
/// nearly every one holds a single text.
const XMLCh* readValue(const xercesc::DOMNode& attribute) {
    const xercesc::DOMNode* text = attribute.getFirstChild();
    if (!text)
        return u"";
    const bool isAlone = !text->getNextSibling() && text->getNodeType() == xercesc::DOMNode::TEXT_NODE;
    return isAlone ? text->getNodeValue() : attribute.getNodeValue();
}

} // namespace

NodeNames::NodeNames(Names& names) : names_(names) {
    reset();
}

void NodeNames::reset() {
    slots_.assign(kSlots, Slot());
    usedSlots_ = 0;
    prefixNumbers_.clear();
    meanings_.clear();
    former_.clear();
    attributes_.clear();
    isStrict_ = false;
    meanings_[findPrefixNumber(u"")] = kNoNamespace;
    meanings_[findPrefixNumber(u"xml")] = kXml;
}

std::uint32_t NodeNames::findPrefixNumber(std::u16string_view prefix) {
    const auto next = static_cast<std::uint32_t>(meanings_.size());
    const auto place = prefixNumbers_.emplace(prefix, next);
    if (place.second)
        meanings_.push_back(kUndeclared);
    return place.first->second;
}

Namespace NodeNames::findPrefix(std::u16string_view prefix) {
    return meanings_[findPrefixNumber(prefix)];
}

NodeNames::Slot& NodeNames::findSlot(const XMLCh* name) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = (reinterpret_cast<std::uintptr_t>(name) >> 3) * 0x9E3779B1U & mask;
    while (slots_[at].name && slots_[at].name != name)
        at = (at + 1) & mask;
    return slots_[at];
}

void NodeNames::grow() {
    const std::vector<Slot> former = std::move(slots_);
    slots_.assign(former.size() * 2, Slot());
    for (const Slot& slot : former)
        if (slot.name)
            findSlot(slot.name) = slot;
}

NodeNames::Spelling NodeNames::read(const XMLCh* name) {
    Slot& slot = findSlot(name);
    if (slot.name)
        return slot.spelling;
    const Spelling spelling = takeApart(name);
    slot = {name, spelling};
    if (++usedSlots_ * 2 > slots_.size())
        grow();
    return spelling;
}

NodeNames::Spelling NodeNames::takeApart(std::u16string_view name) {
    const std::size_t colon = name.find(u':');
    const std::u16string_view prefix = colon == name.npos ? u"" : name.substr(0, colon);
    const std::u16string_view local = colon == name.npos ? name : name.substr(colon + 1);
    if (prefix == u"xmlns" || name == u"xmlns")
        return {0, findPrefixNumber(prefix.empty() ? u"" : local), true};
    return {findPrefixNumber(prefix), names_.findName(local), false};
}

void NodeNames::declare(std::uint32_t prefix, const XMLCh* uri) {
    former_.emplace_back(prefix, meanings_[prefix]);
    meanings_[prefix] = names_.findNamespace(uri);
    isStrict_ = isStrict_ || Names::isStrict(uri);
}

NodeNames::Scope::Scope(NodeNames& names, const xercesc::DOMElement& element)
    : names_(names),
      firstDeclaration_(names.former_.size()),
      firstAttribute_(names.attributes_.size()) {
    if (element.hasAttributes()) {
        const xercesc::DOMNamedNodeMap& nodes = *element.getAttributes();
        const XMLSize_t count = nodes.getLength();
        for (XMLSize_t i = 0; i < count; ++i) {
            const xercesc::DOMNode& node = *nodes.item(i);
            const Spelling spelling = names.read(node.getNodeName());
            if (spelling.isDeclaration)
                names.declare(spelling.local, readValue(node));
            else
                names.attributes_.push_back(
                    {Names::makeKey(static_cast<Namespace>(spelling.prefix), spelling.local),
                     readValue(node)});
        }
        // A prefix may be declared behind its use.
        attributeCount_ = names.attributes_.size() - firstAttribute_;
        for (std::size_t i = firstAttribute_; i < names.attributes_.size(); ++i) {
            Key& key = names.attributes_[i].key;
            const auto prefix = static_cast<std::uint32_t>(getNamespace(key));
            const Namespace space = prefix == kNoPrefix ? kNoNamespace : names.meanings_[prefix];
            key = Names::makeKey(space, static_cast<std::uint32_t>(key));
        }
    }
    const Spelling spelling = names.read(element.getNodeName());
    key_ = Names::makeKey(names.meanings_[spelling.prefix], spelling.local);
}

NodeNames::Scope::~Scope() {
    while (names_.former_.size() > firstDeclaration_) {
        names_.meanings_[names_.former_.back().first] = names_.former_.back().second;
        names_.former_.pop_back();
    }
    names_.attributes_.resize(firstAttribute_);
}

const XMLCh* NodeNames::Scope::find(Key key) const {
    for (const AttributeNode& attribute : *this)
        if (attribute.key == key)
            return attribute.value;
    return nullptr;
}

std::u16string_view getLocalName(const xercesc::DOMNode& node) {
    const std::u16string_view name(node.getNodeName());
    const std::size_t colon = name.find(u':');
    return colon == name.npos ? name : name.substr(colon + 1);
}

} // namespace vellox::check
