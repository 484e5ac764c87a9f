#include "vellox/ppt/xml/Prefixes.h"

#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace vellox::ppt {

using namespace xercesc;

namespace {

using Name = std::u16string;

const Name kDeclaration = u"xmlns";

struct UsualPrefix {
    const XMLCh* prefix;
    const XMLCh* uri;
};

constexpr UsualPrefix kUsual[] = {
    {u"a", xml::kDrawingUri}, {u"p", xml::kPresentationUri}, {u"r", xml::kRelationshipsUri}};

// Of the markup compatibility namespace: their values are lists of prefixes, or of names with prefixes.
bool holdsPrefixes(const Name& localName) {
    static const auto& names =
        *new const std::set<Name>{u"Ignorable",        u"MustUnderstand", u"PreserveAttributes",
                                  u"PreserveElements", u"ProcessContent", u"Requires"};
    return names.count(localName) > 0;
}

std::pair<Name, Name> split(const Name& name) {
    const std::size_t colon = name.find(u':');
    return colon == Name::npos ? std::make_pair(Name(), name)
                               : std::make_pair(name.substr(0, colon), name.substr(colon + 1));
}

Name join(const Name& prefix, const Name& localName) {
    return prefix.empty() ? localName : prefix + u":" + localName;
}

/// The prefix that an attribute declares, empty for the default one.
/// @return false for an attribute that declares none
bool readDeclaration(const Name& name, Name& prefix) {
    const auto [first, second] = split(name);
    if (first != kDeclaration && name != kDeclaration)
        return false;
    prefix = first == kDeclaration ? second : Name();
    return true;
}

bool isUsual(const Name& prefix, const XMLCh* uri) {
    return std::all_of(std::begin(kUsual), std::end(kUsual), [&](const UsualPrefix& row) {
        return (prefix == row.prefix) == XMLString::equals(uri, row.uri);
    });
}

bool hasUsualPrefixes(DOMDocument& document) {
    Name prefix;
    for (const DOMElement* element : getAllElements(&document)) {
        const DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
            const DOMNode* attribute = attributes->item(i);
            if (XMLString::startsWith(attribute->getNodeName(), kDeclaration.c_str()) &&
                readDeclaration(attribute->getNodeName(), prefix) &&
                !isUsual(prefix, attribute->getNodeValue()))
                return false;
        }
    }
    return true;
}

class Renamer {
public:
    explicit Renamer(DOMDocument& document) : document_(document) {
        Name prefix;
        for (const DOMElement* element : getAllElements(&document_)) {
            const DOMNamedNodeMap* attributes = element->getAttributes();
            for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
                if (readDeclaration(attributes->item(i)->getNodeName(), prefix))
                    taken_.insert(prefix);
        }
    }

    void rename() { rename(*document_.getDocumentElement()); }

private:
    using Scope = std::map<Name, Name>; // from prefixes to those that stand for the same here
    using Former = std::vector<std::pair<Name, std::optional<Name>>>;

    void rename(DOMElement& element) {
        Former former; // of the prefixes that this element declares
        std::vector<DOMAttr*> attributes;
        for (XMLSize_t i = 0; i < element.getAttributes()->getLength(); ++i)
            attributes.push_back(static_cast<DOMAttr*>(element.getAttributes()->item(i)));
        for (DOMAttr* attribute : attributes)
            declare(*attribute, former);
        for (DOMAttr* attribute : attributes)
            renameAttribute(element, *attribute);
        renameNode(element, translate(element.getNodeName()));
        for (DOMElement* child : getChildElements(&element))
            rename(*child);
        restore(former);
    }

    void declare(const DOMAttr& attribute, Former& former) {
        Name prefix;
        if (!readDeclaration(attribute.getName(), prefix))
            return;
        const auto present = scope_.find(prefix);
        former.emplace_back(prefix,
                            present == scope_.end() ? std::nullopt : std::make_optional(present->second));
        Name& wanted = scope_[prefix] = prefix;
        for (const UsualPrefix& row : kUsual)
            if (XMLString::equals(attribute.getValue(), row.uri))
                wanted = row.prefix;
            else if (prefix == row.prefix)
                wanted = number(prefix);
    }

    void restore(Former& former) {
        for (auto& [prefix, wanted] : former)
            if (wanted)
                scope_[prefix] = std::move(*wanted);
            else
                scope_.erase(prefix);
    }

    // An attribute without a prefix has no namespace, whatever the default one is.
    void renameAttribute(DOMElement& element, DOMAttr& attribute) {
        Name prefix;
        if (readDeclaration(attribute.getName(), prefix)) {
            const Name& wanted = scope_.at(prefix);
            const Name name = wanted.empty() ? kDeclaration : join(kDeclaration, wanted);
            if (name != attribute.getName() && element.hasAttribute(name.c_str()))
                element.removeAttribute(attribute.getName()); // it is declared already
            else
                renameNode(attribute, name);
            return;
        }
        if (holdsPrefixes(split(attribute.getName()).second))
            attribute.setValue(translateList(attribute.getValue()).c_str());
        if (XMLString::indexOf(attribute.getName(), u':') >= 0)
            renameNode(attribute, translate(attribute.getName()));
    }

    Name translate(const Name& name) const {
        const auto [prefix, localName] = split(name);
        const auto found = scope_.find(prefix);
        return found == scope_.end() ? name : join(found->second, localName);
    }

    Name translateList(const Name& list) const {
        Name translated;
        for (std::size_t at = 0; at < list.size();) {
            const std::size_t end = std::min(list.find_first_of(u" \t\r\n:", at), list.size());
            const auto found = scope_.find(list.substr(at, end - at));
            translated += found == scope_.end() || end == at ? list.substr(at, end - at) : found->second;
            const std::size_t next = end < list.size() && list[end] == u':' // what follows is a name's rest
                                         ? std::min(list.find_first_of(u" \t\r\n", end), list.size())
                                         : std::min(end + 1, list.size());
            translated += list.substr(end, next - end);
            at = next;
        }
        return translated;
    }

    // The same for all that it stands for in the document.
    const Name& number(const Name& prefix) {
        Name& numbered = numbered_[prefix];
        for (unsigned i = 1; numbered.empty(); ++i) {
            const std::string text = std::to_string(i);
            const Name candidate = prefix + Name(text.begin(), text.end());
            if (taken_.insert(candidate).second)
                numbered = candidate;
        }
        return numbered;
    }

    void renameNode(DOMNode& node, const Name& name) {
        if (name != node.getNodeName())
            document_.renameNode(&node, nullptr, name.c_str());
    }

    DOMDocument& document_;
    Scope scope_;
    std::set<Name> taken_;
    std::map<Name, Name> numbered_;
};

} // namespace

void useUsualPrefixes(DOMDocument& document) {
    if (!hasUsualPrefixes(document))
        Renamer(document).rename();
}

} // namespace vellox::ppt
