#include "vellox/ppt/template/SlidePrototype.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <set>
#include <string>
#include <utility>
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

void copyAttributes(const DOMElement& from, DOMElement& to, const Rules& rules) {
    const DOMNamedNodeMap* attributes = from.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const DOMNode* attribute = attributes->item(i);
        const bool isHidden = XMLString::equals(attribute->getNodeName(), xml::kShowMasterSp) &&
                              !rules.takes(Inherited::ShowMasterShapes);
        if (!isHidden && !isLayoutAttribute(attribute->getNodeName()))
            to.setAttribute(attribute->getNodeName(), attribute->getNodeValue());
    }
}

// Turns p:sldLayout into p:sld. The first child element comes across, p:cSld: transition, timing and the like are
// the layout's own.
// @return whether all of it could be had
bool replaceRoot(DOMDocument& document, const Rules& rules) {
    DOMElement* layoutRoot = document.getDocumentElement();
    DOMElement* slideRoot = document.createElement(xml::kSld);
    bool isWhole = true;
    try {
        copyAttributes(*layoutRoot, *slideRoot, rules);
    } catch (const DOMException&) {
        isWhole = false; // an attribute that can't be copied is no reason to have no slide
    }
    if (DOMElement* data = layoutRoot->getFirstElementChild())
        slideRoot->appendChild(data);
    DOMElement* colourMap = findChild(layoutRoot, xml::kClrMapOvr);
    if (colourMap && rules.takes(Inherited::ColourMap))
        slideRoot->appendChild(colourMap);
    try {
        document.replaceChild(slideRoot, layoutRoot);
    } catch (const DOMException&) {
        isWhole = false; // likewise: the slide then keeps the layout's root
    }
    return isWhole;
}

using Nodes = std::vector<DOMNode*>;

void collectInherited(const DOMElement& placeholder, bool keepsPlace, Nodes& condemned) {
    DOMElement* xfrm = findDescendant(&placeholder, {xml::kSpPr, xml::kAXfrm});
    if (xfrm && !keepsPlace)
        condemned.push_back(xfrm);
    const DOMElement* body = findChild(&placeholder, xml::kTxBody);
    if (const DOMElement* styles = findChild(body, xml::kALstStyle))
        for (DOMNode* style = styles->getFirstChild(); style; style = style->getNextSibling())
            condemned.push_back(style);
    for (DOMElement* child : getChildElements(body))
        if (hasName(*child, xml::kAP))
            condemned.push_back(child);
}

// What becomes of each shape was decided when the layout was read.
void stripShapeTree(DOMDocument& document, const TemplateLayout& layout, TreePath path) {
    Nodes condemned;
    DOMElement* shape = findFirstShape(&document, path);
    for (std::size_t i = 0; shape && i < layout.fates.size(); ++i) {
        if (layout.fates[i] == Fate::Empty)
            collectInherited(*shape, i < layout.keptPlaces.size() && layout.keptPlaces[i], condemned);
        else if (layout.fates[i] == Fate::Drop)
            condemned.push_back(shape);
        shape = shape->getNextElementSibling();
    }
    for (DOMNode* node : condemned)
        removeNode(node);
}

void stripSlideData(DOMDocument& document, const Rules& rules) {
    DOMElement* data = document.getDocumentElement()->getFirstElementChild();
    if (!data)
        return;
    data->removeAttribute(xml::kName);
    constexpr std::pair<Inherited, const XMLCh*> kRows[] = {{Inherited::Background, xml::kBg},
                                                            {Inherited::CustomData, xml::kCustDataLst}};
    for (const auto& [what, name] : kRows)
        if (DOMElement* child = rules.takes(what) ? nullptr : findChild(data, name))
            data->removeChild(child);
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
                removeNode(child);
            child = next;
        }
    }
}

// Some programs write placeholders without id and name, which readers overlook in a layout but not in a
// slide. The ids are none that the layout or its master has: a place is inherited by id. Gives the last id, or 0.
unsigned int completeIdentities(DOMDocument& document, const TemplateLayout& layout) {
    unsigned int id = 0;
    for (DOMElement* nonVisual : getElementsByName(&document, xml::kNvSpPr)) {
        if (findChild(nonVisual, xml::kCNvPr))
            continue;
        if (id == 0) {
            id = std::max(findGreatestId(layout.document.get()), layout.maxShapeId);
            if (const auto master = layout.master.lock())
                id = std::max(id, master->maxShapeId);
        }
        DOMElement* properties = document.createElement(xml::kCNvPr);
        setAttribute(properties, xml::kId, num2str(++id));
        setAttribute(properties, xml::kName, uuid_gen());
        nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    }
    return id;
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

std::vector<LayoutField> readFields(const TemplateLayout& layout, TreePath path) {
    std::vector<LayoutField> fields;
    std::size_t shape = 0;
    for (const DOMElement* element = findFirstShape(layout.document.get(), path); element;
         element = element->getNextElementSibling(), ++shape) {
        const ShapeFacts facts = readFacts(*element);
        const auto isSame = [&](const LayoutField& field) { return field.type == facts.placeholderType; };
        if (!facts.isField || std::any_of(fields.begin(), fields.end(), isSame))
            continue;
        const DOMElement* placeholder = findDescendant(findNonVisual(*element), {xml::kNvPr, xml::kPh});
        LayoutField& field = fields.emplace_back();
        field.type = facts.placeholderType;
        field.index = facts.placeholderIndex;
        field.size = getAttribute(placeholder, xml::kSz);
        field.orientation = getAttribute(placeholder, u"orient");
        field.name = facts.name;
        field.fieldType =
            getAttribute(findDescendant(element, {xml::kTxBody, xml::kAP, xml::kAFld}), xml::kType);
        field.text = facts.text;
        field.isKept = shape < layout.fates.size() && layout.fates[shape] == Fate::Keep;
    }
    return fields;
}

boost::shared_ptr<const SlidePrototype> makePrototype(const TemplateLayout& layout, const Rules& rules) {
    const auto prototype = boost::make_shared<SlidePrototype>();
    prototype->fields = readFields(layout, rules.findsTree());
    OwnedDocument document = copyDocument(layout.document);
    document->setXmlStandalone(true);
    removeIndentation(*document.get());
    prototype->isWhole = replaceRoot(*document.get(), rules);
    stripShapeTree(*document.get(), layout, rules.findsTree());
    stripSlideData(*document.get(), rules);
    removeUndeclared(*document.get());
    prototype->lastShapeId = completeIdentities(*document.get(), layout);
    if (rules.renumbersRepeats())
        renumberRepeatedIds(document.get(), findLastId(document.get()) + 1);
    prototype->lastId = findLastId(document.get());
    prototype->relationshipIds = collectRelationshipIds(*document.get());
    // Once more, which leaves behind what was stripped: a document never gives memory back.
    prototype->document = copyDocument(document);
    declarePrefixes(prototype->document->getDocumentElement());
    // Behind the extensions of a shape tree nothing may stand, where the rules mind: new shapes are put in order then.
    const DOMElement* data = findChild(prototype->document->getDocumentElement(), xml::kCSld);
    if (!rules.formOf(xml::kSpTree) || !findDescendant(data, {xml::kSpTree, xml::kExtLst}))
        prototype->pieces = cutIntoPieces(prototype->document);
    return prototype;
}

} // namespace

const SlidePrototype& requirePrototype(TemplateLayout& layout, const Rules& rules) {
    if (!layout.prototype) {
        layout.prototype = makePrototype(layout, rules);
        layout.document.reset();
    }
    return *layout.prototype;
}

} // namespace vellox::ppt
