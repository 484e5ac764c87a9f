#include "vellox/ppt/xml/Dom.h"

#include "vellox/opc/DocumentCopy.h"
#include "vellox/opc/NodeLinks.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/object/DomForward.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <type_traits>

namespace vellox::ppt {

using namespace xercesc;

static_assert(std::is_same<::xercesc_3_2::DOMNode, XERCES_CPP_NAMESPACE_QUALIFIER DOMNode>::value,
              "DomForward.h names another version of Xerces than the one in use");

OwnedDocument copyDocument(const OwnedDocument& document) {
    OwnedDocument copy(opc::copyDocument(*document.get()));
    copy->setXmlVersion(document->getXmlVersion());
    copy->setXmlStandalone(document->getXmlStandalone());
    return copy;
}

bool hasName(const DOMNode& node, const XMLCh* name) {
    return XMLString::equals(node.getNodeName(), name);
}

namespace {

// Those of a name, or all for none. Steps to a first child and to a next sibling cost next to nothing, those of
// lists and walkers much.
void collectElements(const DOMNode& parent, const XMLCh* name, std::vector<DOMElement*>& elements) {
    for (DOMNode* child = parent.getFirstChild(); child; child = child->getNextSibling()) {
        if (child->getNodeType() != DOMNode::ELEMENT_NODE)
            continue;
        if (!name || hasName(*child, name))
            elements.push_back(static_cast<DOMElement*>(child));
        collectElements(*child, name, elements);
    }
}

// The node itself, or the first element behind it. An element's own step to the next looks up its parent first.
DOMElement* toElement(DOMNode* node) {
    while (node && node->getNodeType() != DOMNode::ELEMENT_NODE)
        node = node->getNextSibling();
    return static_cast<DOMElement*>(node);
}

DOMElement* getFirstChildElement(const DOMNode* parent) {
    const bool isElement = parent && parent->getNodeType() == DOMNode::ELEMENT_NODE;
    return isElement ? toElement(parent->getFirstChild()) : nullptr;
}

} // namespace

DOMElement* findChild(const DOMNode* parent, const XMLCh* name) {
    DOMElement* child = getFirstChildElement(parent);
    while (child && !hasName(*child, name))
        child = toElement(child->getNextSibling());
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
    for (DOMElement* child = getFirstChildElement(parent); child; child = toElement(child->getNextSibling()))
        children.push_back(child);
    return children;
}

std::vector<DOMElement*> getAllElements(DOMDocument* document) {
    std::vector<DOMElement*> elements;
    collectElements(*document, nullptr, elements);
    return elements;
}

std::vector<DOMElement*> getElementsByName(DOMDocument* document, const XMLCh* name) {
    std::vector<DOMElement*> elements;
    collectElements(*document, name, elements);
    return elements;
}

std::wstring getAttribute(const DOMElement* element, const XMLCh* name) {
    const DOMAttr* attribute = element ? element->getAttributeNode(name) : nullptr;
    return attribute ? opc::toWideString(opc::getValue(*attribute)) : std::wstring();
}

void setAttribute(DOMElement* element, const XMLCh* name, const std::wstring& value) {
    setAttribute(element, name, opc::XercesString(value).get());
}

void setAttribute(DOMElement* element, const XMLCh* name, const XMLCh* value) {
    DOMAttr* present = element->getAttributeNode(name);
    if (!present)
        return opc::addAttribute(static_cast<DOMElementImpl&>(*element), name, value);
    // A text stays in its place and says something else: to take it out and put in another costs a dozen casts.
    DOMNode* text = present->getFirstChild();
    if (text && text->getNodeType() == DOMNode::TEXT_NODE && !text->getNextSibling())
        return text->setNodeValue(value);
    present->setValue(value);
}

void appendNode(DOMNode* parent, DOMNode* child) {
    opc::appendNew(*static_cast<DOMElementImpl*>(parent), *child);
}

DOMElement* appendElement(DOMElement* parent, const XMLCh* name) {
    return &opc::appendElement(static_cast<DOMElementImpl&>(*parent), name);
}

std::size_t appendText(DOMElement* parent, const std::wstring& text) {
    auto* const document = static_cast<DOMDocumentImpl*>(parent->getOwnerDocument());
    const opc::XercesString held(text);
    appendNode(parent, opc::makeText(document, held));
    return held.getDropped();
}

DOMElement* requireChild(DOMElement* parent, const XMLCh* name) {
    DOMElement* child = findChild(parent, name);
    return child ? child : appendElement(parent, name);
}

DOMElement* requireFirstChild(DOMElement* parent, const XMLCh* name) {
    if (DOMElement* found = findChild(parent, name))
        return found;
    DOMElement* made = parent->getOwnerDocument()->createElement(name);
    parent->insertBefore(made, parent->getFirstChild());
    return made;
}

void ensureParagraph(DOMElement* element) {
    DOMElement* body = findChild(element, xml::kTxBody);
    if (!body)
        body = findChild(element, xml::kATxBody);
    if (body && !findChild(body, xml::kAP))
        appendElement(appendElement(body, xml::kAP), xml::kAEndParaRPr);
}

void removeNode(DOMNode* node) {
    DOMNode* parent = node->getParentNode();
    if (parent && parent->getNodeType() == DOMNode::ELEMENT_NODE)
        opc::takeOut(static_cast<DOMElementImpl&>(*parent), *node);
    else if (parent)
        parent->removeChild(node);
}

void declarePrefixes(DOMElement* root) {
    constexpr const XMLCh* kPrefixes[][2] = {{xml::kXmlnsA, xml::kDrawingUri},
                                             {xml::kXmlnsP, xml::kPresentationUri},
                                             {xml::kXmlnsR, xml::kRelationshipsUri}};
    for (const auto& [name, uri] : kPrefixes)
        if (root && !root->hasAttribute(name))
            root->setAttribute(name, uri);
}

} // namespace vellox::ppt
