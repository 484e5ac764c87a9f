#include "vellox/ppt/template/SlideDocuments.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/DocumentCopy.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <set>
#include <string>
#include <xercesc/util/XMLChar.hpp>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// What is said of a layout and can't be said of a slide: readers that check a slide refuse it there.
bool isLayoutAttribute(const XMLCh* name) {
    static const auto& names =
        *new const std::set<std::u16string>{u"matchingName", u"preserve", u"type", u"userDrawn"};
    return names.count(name) > 0;
}

void copyAttributes(const DOMElement& from, DOMElement& to) {
    const DOMNamedNodeMap* attributes = from.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const DOMNode* attribute = attributes->item(i);
        if (!isLayoutAttribute(attribute->getNodeName()))
            to.setAttribute(attribute->getNodeName(), attribute->getNodeValue());
    }
}

// Turns p:sldLayout into p:sld. Only the first child element comes across, p:cSld: colour map, transition,
// timing and the like are the layout's own.
void replaceRoot(DOMDocument& document, TemplateLayout& layout) {
    DOMElement* layoutRoot = document.getDocumentElement();
    DOMElement* slideRoot = document.createElement(xml::kSld);
    try {
        copyAttributes(*layoutRoot, *slideRoot);
    } catch (const DOMException&) {
        layout.isCopiedInPart = true; // an attribute that can't be copied is no reason to have no slide
    }
    if (DOMElement* data = layoutRoot->getFirstElementChild())
        slideRoot->appendChild(data);
    try {
        document.replaceChild(slideRoot, layoutRoot);
    } catch (const DOMException&) {
        layout.isCopiedInPart = true; // likewise: the slide then keeps the layout's root
    }
}

using Nodes = std::vector<DOMNode*>;

void collectInherited(const DOMElement& placeholder, Nodes& condemned) {
    if (DOMElement* xfrm = findDescendant(&placeholder, {xml::kSpPr, xml::kAXfrm}))
        condemned.push_back(xfrm);
    const DOMElement* body = findChild(&placeholder, xml::kTxBody);
    if (const DOMElement* styles = findChild(body, xml::kALstStyle))
        for (DOMNode* style = styles->getFirstChild(); style; style = style->getNextSibling())
            condemned.push_back(style);
    for (DOMElement* child : getChildElements(body))
        if (hasName(*child, xml::kAP))
            condemned.push_back(child);
}

void stripShapeTree(DOMDocument& document) {
    Nodes condemned;
    DOMElement* shape = goDownFirstChildren(&document, 3);
    for (; shape; shape = shape->getNextElementSibling()) {
        if (shape->hasAttribute(xml::kDataUid))
            collectInherited(*shape, condemned);
        else if (PresentationModel::classify(shape) != NodeType::None || hasName(*shape, xml::kCxnSp))
            condemned.push_back(shape);
    }
    for (DOMNode* node : condemned)
        removeNode(node);
}

bool isBlank(const DOMNode& node) {
    const XMLCh* text = node.getNodeValue();
    return node.getNodeType() == DOMNode::TEXT_NODE &&
           XMLChar1_0::isAllSpaces(text, XMLString::stringLen(text));
}

// Indentation in a layout would be carried into every slide. Blanks beside elements are never content.
void removeIndentation(DOMDocument& document) {
    for (DOMElement* element : getAllElements(&document)) {
        if (!element->getFirstElementChild())
            continue;
        for (DOMNode* child = element->getFirstChild(); child;) {
            DOMNode* next = child->getNextSibling();
            if (isBlank(*child))
                element->removeChild(child);
            child = next;
        }
    }
}

unsigned int findGreatestId(DOMDocument& document) {
    unsigned int greatest = 0;
    for (const DOMElement* properties : getElementsByName(&document, xml::kCNvPr))
        greatest = std::max(greatest, str2uint(getAttribute(properties, xml::kId)));
    return greatest;
}

// Some programs write placeholders without id and name, which readers overlook in a layout but not in a
// slide. The ids are none that the layout or its master has: a place is inherited by id.
void completeIdentities(DOMDocument& document, TemplateLayout& layout) {
    unsigned int id = 0;
    for (DOMElement* nonVisual : getElementsByName(&document, xml::kNvSpPr)) {
        if (findChild(nonVisual, xml::kCNvPr))
            continue;
        if (id == 0) {
            id = std::max(findGreatestId(*layout.document.get()), layout.maxShapeId);
            if (layout.master)
                id = std::max(id, findGreatestId(*layout.master->document.get()));
        }
        DOMElement* properties = document.createElement(xml::kCNvPr);
        setAttribute(properties, xml::kId, num2str(++id));
        setAttribute(properties, xml::kName, uuid_gen());
        nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    }
    layout.lastSlideShapeId = id;
}

// What comes across from a layout, such as a picture as background, may refer to other parts through the
// layout's relationships, which the slide then needs too.
std::vector<std::wstring> collectRelationshipIds(DOMDocument& document) {
    std::set<std::wstring> ids;
    for (const DOMElement* element : getAllElements(&document)) {
        const DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
            const DOMNode* attribute = attributes->item(i);
            if (XMLString::startsWith(attribute->getNodeName(), xml::kRPrefix) ||
                XMLString::equals(attribute->getNamespaceURI(), xml::kRelationshipsUri))
                ids.insert(opc::toWideString(attribute->getNodeValue()));
        }
    }
    return {ids.begin(), ids.end()};
}

// Whether the prefix of a name is declared where the name stands. The library's own always are.
bool isDeclared(const XMLCh* name, const DOMNode* element) {
    const std::u16string text(name);
    const std::size_t colon = text.find(u':');
    if (colon == std::u16string::npos)
        return true;
    const std::u16string prefix = text.substr(0, colon);
    if (colon == 0 || colon + 1 == text.size() || text.find(u':', colon + 1) != std::u16string::npos)
        return false;
    if (prefix == u"xml" || prefix == u"xmlns" || prefix == u"a" || prefix == u"p" || prefix == u"r")
        return true;
    const std::u16string declaration = u"xmlns:" + prefix;
    for (; element && element->getNodeType() == DOMNode::ELEMENT_NODE; element = element->getParentNode())
        if (static_cast<const DOMElement*>(element)->hasAttribute(declaration.c_str()))
            return true;
    return false;
}

// What nobody can say the meaning of makes a slide that readers refuse. A layout is read without namespaces,
// where it goes unnoticed.
void removeUndeclared(DOMDocument& document) {
    Nodes condemned;
    for (DOMElement* element : getAllElements(&document)) {
        if (!isDeclared(element->getNodeName(), element))
            condemned.push_back(element);
        const DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = attributes->getLength(); i-- > 0;) {
            const XMLCh* name = attributes->item(i)->getNodeName();
            if (!isDeclared(name, element))
                element->removeAttribute(name);
        }
    }
    for (DOMNode* node : condemned)
        removeNode(node);
}

OwnedDocument makePrototype(TemplateLayout& layout) {
    OwnedDocument document = copyDocument(layout.document);
    removeIndentation(*document.get());
    replaceRoot(*document.get(), layout);
    if (DOMElement* data = document->getDocumentElement()->getFirstElementChild())
        data->removeAttribute(xml::kName);
    stripShapeTree(*document.get());
    removeUndeclared(*document.get());
    completeIdentities(*document.get(), layout);
    layout.slideRelationshipIds = collectRelationshipIds(*document.get());
    return copyDocument(
        document); // which leaves behind what was stripped: a document never gives memory back
}

} // namespace

OwnedDocument copyDocument(const OwnedDocument& document) {
    OwnedDocument copy(opc::copyDocument(*document.get()));
    copy->setXmlStandalone(true);
    return copy;
}

void declarePrefixes(DOMElement* root) {
    constexpr const XMLCh* kPrefixes[][2] = {{xml::kXmlnsA, xml::kDrawingUri},
                                             {xml::kXmlnsP, xml::kPresentationUri},
                                             {xml::kXmlnsR, xml::kRelationshipsUri}};
    for (const auto& [name, uri] : kPrefixes)
        if (root && !root->hasAttribute(name))
            root->setAttribute(name, uri);
}

OwnedDocument makeSlideDocument(TemplateLayout& layout) {
    if (!layout.slidePrototype)
        layout.slidePrototype = makePrototype(layout);
    return copyDocument(layout.slidePrototype);
}

} // namespace vellox::ppt
