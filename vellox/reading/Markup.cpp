#include "vellox/reading/Markup.h"

#include "vellox/opc/XercesString.h"

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
