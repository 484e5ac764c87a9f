#include "vellox/check/NodeNames.h"

namespace vellox::check {

namespace {

constexpr std::uint32_t kNoPrefix = 0; // the number of the empty one

} // namespace

NodeNames::NodeNames(Names& names) : names_(names) {
    reset();
}

void NodeNames::reset() {
    spellings_.clear();
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

const NodeNames::Spelling& NodeNames::read(const XMLCh* name) {
    const auto found = spellings_.find(name);
    if (found != spellings_.end())
        return found->second;
    const std::u16string_view text(name);
    const std::size_t colon = text.find(u':');
    const std::u16string_view prefix = colon == text.npos ? u"" : text.substr(0, colon);
    const std::u16string_view local = colon == text.npos ? text : text.substr(colon + 1);
    Spelling spelling{};
    if (prefix == u"xmlns" || text == u"xmlns") {
        spelling.isDeclaration = true;
        spelling.local = findPrefixNumber(prefix.empty() ? u"" : local);
    } else {
        spelling.prefix = findPrefixNumber(prefix);
        spelling.local = names_.findName(local);
    }
    return spellings_.emplace(name, spelling).first->second;
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
            const Spelling& spelling = names.read(node.getNodeName());
            if (spelling.isDeclaration)
                names.declare(spelling.local, node.getNodeValue());
            else
                names.attributes_.push_back(
                    {Names::makeKey(static_cast<Namespace>(spelling.prefix), spelling.local),
                     node.getNodeValue()});
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
    const Spelling& spelling = names.read(element.getNodeName());
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
