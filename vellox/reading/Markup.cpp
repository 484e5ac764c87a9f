#include "vellox/reading/Markup.h"

#include "vellox/opc/XercesString.h"

#include <sstream>
#include <string_view>

namespace vellox::reading {

using xercesc::DOMElement;

bool Markup::isIn(const XMLCh* uri, check::Namespace space) {
    return names_.findNamespace(uri ? uri : u"") == space;
}

bool Markup::is(const DOMElement& element, check::Namespace space, const XMLCh* name) {
    return xercesc::XMLString::equals(element.getLocalName(), name) && isIn(element.getNamespaceURI(), space);
}

const DOMElement* Markup::find(const DOMElement& parent, check::Namespace space, const XMLCh* name) {
    const DOMElement* child = parent.getFirstElementChild();
    while (child && !is(*child, space, name))
        child = child->getNextElementSibling();
    return child;
}

const DOMElement* Markup::choose(const DOMElement& alternatives) {
    const DOMElement* child = alternatives.getFirstElementChild();
    while (child && !is(*child, check::kCompatibility, u"Fallback") &&
           !(is(*child, check::kCompatibility, u"Choice") && isUnderstood(*child)))
        child = child->getNextElementSibling();
    return child;
}

// Whether current readers know all namespaces that the choice needs: those of the format, and the extensions that the
// years have brought, which share the beginning of their names.
bool Markup::isUnderstood(const DOMElement& choice) {
    constexpr std::wstring_view kExtensions = L"http://schemas.microsoft.com/office/";
    std::wistringstream prefixes(get(choice, u"Requires"));
    std::wstring prefix;
    bool isKnown = false;
    while (prefixes >> prefix) {
        const XMLCh* uri = choice.lookupNamespaceURI(opc::XercesString(prefix));
        isKnown = uri && (names_.findNamespace(uri) < check::kFirstOther ||
                          opc::toWideString(uri).compare(0, kExtensions.size(), kExtensions) == 0);
        if (!isKnown)
            break;
    }
    return isKnown;
}

std::wstring Markup::get(const DOMElement& element, const XMLCh* name) const {
    return opc::toWideString(element.getAttribute(name));
}

std::wstring Markup::getReference(const DOMElement& element, const XMLCh* name) {
    const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        const xercesc::DOMNode& attribute = *attributes.item(i);
        if (xercesc::XMLString::equals(attribute.getLocalName(), name) &&
            isIn(attribute.getNamespaceURI(), check::kRelationships))
            return opc::toWideString(attribute.getNodeValue());
    }
    return {};
}

bool isTrue(const std::wstring& value) {
    return value == L"1" || value == L"true";
}

std::wstring shorten(const std::wstring& text) {
    constexpr std::size_t kMaxLength = 255;
    return text.substr(0, kMaxLength);
}

} // namespace vellox::reading
