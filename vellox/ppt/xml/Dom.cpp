#include "vellox/ppt/xml/Dom.h"

#include "vellox/opc/XercesString.h"
#include "vellox/ppt/object/DomForward.h"

#include <type_traits>

namespace vellox::ppt {

using namespace xercesc;

static_assert(std::is_same<::xercesc_3_2::DOMNode, XERCES_CPP_NAMESPACE_QUALIFIER DOMNode>::value,
              "DomForward.h names another version of Xerces than the one in use");

bool hasName(const DOMNode& node, const XMLCh* name) {
    return XMLString::equals(node.getNodeName(), name);
}

namespace {

DOMElement* getFirstChildElement(const DOMNode* parent) {
    const bool isElement = parent && parent->getNodeType() == DOMNode::ELEMENT_NODE;
    return isElement ? static_cast<const DOMElement*>(parent)->getFirstElementChild() : nullptr;
}

// The element behind another in document order, or null behind the last. The walker of Xerces calls itself for
// each node that it passes over, and its node lists count from the start whenever their length is asked for.
DOMElement* getNextElement(const DOMElement* element) {
    if (DOMElement* child = element->getFirstElementChild())
        return child;
    for (const DOMNode* node = element; node && node->getNodeType() == DOMNode::ELEMENT_NODE;
         node = node->getParentNode())
        if (DOMElement* next = static_cast<const DOMElement*>(node)->getNextElementSibling())
            return next;
    return nullptr;
}

} // namespace

DOMElement* findChild(const DOMNode* parent, const XMLCh* name) {
    DOMElement* child = getFirstChildElement(parent);
    while (child && !hasName(*child, name))
        child = child->getNextElementSibling();
    return child;
}

DOMElement* findDescendant(const DOMNode* start, std::initializer_list<const XMLCh*> path) {
    DOMElement* element = nullptr;
    for (const XMLCh* name : path) {
        element = findChild(start, name);
        start = element;
    }
    return element;
}

DOMElement* goDownFirstChildren(DOMDocument* document, unsigned levels) {
    DOMElement* element = document->getDocumentElement();
    while (element && levels-- > 0)
        element = element->getFirstElementChild();
    return element;
}

std::vector<DOMElement*> getChildElements(const DOMNode* parent) {
    std::vector<DOMElement*> children;
    for (DOMElement* child = getFirstChildElement(parent); child; child = child->getNextElementSibling())
        children.push_back(child);
    return children;
}

std::vector<DOMElement*> getAllElements(DOMDocument* document) {
    std::vector<DOMElement*> elements;
    for (DOMElement* element = document->getDocumentElement(); element; element = getNextElement(element))
        elements.push_back(element);
    return elements;
}

std::vector<DOMElement*> getElementsByName(DOMDocument* document, const XMLCh* name) {
    std::vector<DOMElement*> elements;
    for (DOMElement* element = document->getDocumentElement(); element; element = getNextElement(element))
        if (hasName(*element, name))
            elements.push_back(element);
    return elements;
}

std::wstring getAttribute(const DOMElement* element, const XMLCh* name) {
    return element ? opc::toWideString(element->getAttribute(name)) : std::wstring();
}

void setAttribute(DOMElement* element, const XMLCh* name, const std::wstring& value) {
    element->setAttribute(name, opc::XercesString(value));
}

DOMElement* appendElement(DOMElement* parent, const XMLCh* name) {
    DOMElement* child = parent->getOwnerDocument()->createElement(name);
    parent->appendChild(child);
    return child;
}

DOMElement* requireChild(DOMElement* parent, const XMLCh* name) {
    DOMElement* child = findChild(parent, name);
    return child ? child : appendElement(parent, name);
}

void removeNode(DOMNode* node) {
    if (node->getParentNode())
        node->getParentNode()->removeChild(node);
}

} // namespace vellox::ppt
