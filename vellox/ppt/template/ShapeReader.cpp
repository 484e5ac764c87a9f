#include "vellox/ppt/template/ShapeReader.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

namespace {

struct Row {
    const XMLCh* name;
    ShapeElement element;
    const XMLCh* nonVisual;
};

constexpr Row kRows[] = {
    {xml::kSp, ShapeElement::Shape, xml::kNvSpPr},
    {xml::kPic, ShapeElement::Picture, xml::kNvPicPr},
    {xml::kGrpSp, ShapeElement::Group, xml::kNvGrpSpPr},
    {xml::kGraphicFrame, ShapeElement::GraphicFrame, xml::kNvGraphicFramePr},
    {xml::kCxnSp, ShapeElement::Connector, xml::kNvCxnSpPr},
    {xml::kNvGrpSpPr, ShapeElement::Structure, xml::kNvPr},
    {xml::kGrpSpPr, ShapeElement::Structure, xml::kNvPr},
};

const Row* findRow(const DOMElement& shape) {
    for (const Row& row : kRows)
        if (hasName(shape, row.name))
            return &row;
    return nullptr;
}

// Of a date, a footer or a number.
void readField(const DOMElement& shape, ShapeFacts& facts) {
    const DOMElement* body = findChild(&shape, xml::kTxBody);
    for (const DOMElement* paragraph : getChildElements(body)) {
        facts.movesOn = facts.movesOn || findChild(paragraph, xml::kAFld);
        for (const DOMElement* run : getChildElements(paragraph))
            if (const DOMElement* text = findChild(run, xml::kAT))
                facts.text += opc::toWideString(text->getTextContent());
    }
}

bool isFieldType(const std::wstring& placeholderType) {
    return placeholderType == L"dt" || placeholderType == L"ftr" || placeholderType == L"sldNum";
}

bool isInFallback(const DOMElement& element) {
    for (const DOMNode* node = element.getParentNode(); node; node = node->getParentNode())
        if (XMLString::equals(node->getNodeName(), u"mc:Fallback"))
            return true;
    return false;
}

} // namespace

ShapeFacts readFacts(const DOMElement& shape, bool isInGroup) {
    ShapeFacts facts;
    const Row* row = findRow(shape);
    if (!row)
        return facts;
    facts.element = row->element;
    facts.isInGroup = isInGroup;
    const DOMElement* nonVisual = findChild(&shape, row->nonVisual);
    if (const DOMElement* properties = findChild(nonVisual, xml::kCNvPr)) {
        facts.id = getAttribute(properties, xml::kId);
        facts.name = getAttribute(properties, xml::kName);
    }
    if (const DOMElement* placeholder = findDescendant(nonVisual, {xml::kNvPr, xml::kPh})) {
        facts.isPlaceholder = true;
        facts.placeholderType = getAttribute(placeholder, xml::kType);
        facts.placeholderIndex = getAttribute(placeholder, xml::kIdx);
    }
    facts.isField = facts.isPlaceholder && isFieldType(facts.placeholderType);
    if (facts.isField)
        readField(shape, facts);
    facts.hasTextBody = findChild(&shape, xml::kTxBody) != nullptr;
    facts.hasTable = findDescendant(&shape, {xml::kAGraphic, xml::kAGraphicData, xml::kATbl}) != nullptr;
    return facts;
}

DOMElement* findNonVisual(const DOMElement& shape) {
    const Row* row = findRow(shape);
    return row ? findChild(&shape, row->nonVisual) : nullptr;
}

boost::shared_ptr<const PlaceText> readPlace(const DOMElement& shape) {
    const bool isFrame = hasName(shape, xml::kGraphicFrame);
    const DOMElement* xfrm =
        isFrame ? findChild(&shape, xml::kXfrm) : findDescendant(&shape, {xml::kSpPr, xml::kAXfrm});
    if (!xfrm)
        return {};
    const DOMElement* off = findChild(xfrm, xml::kAOff);
    const DOMElement* ext = findChild(xfrm, xml::kAExt);
    const auto place = boost::make_shared<PlaceText>();
    place->x = getAttribute(off, xml::kX);
    place->y = getAttribute(off, xml::kY);
    place->cx = getAttribute(ext, xml::kCx);
    place->cy = getAttribute(ext, xml::kCy);
    place->isWhole = off && ext;
    return place;
}

DOMElement* findFirstShape(DOMDocument* document, TreePath path) {
    if (path == TreePath::FirstChildren)
        return goDownFirstChildren(document, 3);
    DOMElement* tree = findDescendant(document->getDocumentElement(), {xml::kCSld, xml::kSpTree});
    return tree ? tree->getFirstElementChild() : nullptr;
}

unsigned int findGreatestId(DOMDocument* document) {
    unsigned int greatest = 0;
    for (const DOMElement* properties : getElementsByName(document, xml::kCNvPr))
        greatest = std::max(greatest, str2uint(getAttribute(properties, xml::kId)));
    return greatest;
}

namespace {

// Those of ink have another prefix.
std::vector<DOMElement*> getAllIdentities(DOMDocument* document) {
    constexpr std::u16string_view kLocal = u":cNvPr";
    std::vector<DOMElement*> identities;
    for (DOMElement* element : getAllElements(document)) {
        const std::u16string_view name = element->getNodeName();
        if (name.size() > kLocal.size() && name.substr(name.size() - kLocal.size()) == kLocal)
            identities.push_back(element);
    }
    return identities;
}

} // namespace

unsigned int findLastId(DOMDocument* document) {
    unsigned int last = 0;
    for (const DOMElement* properties : getAllIdentities(document)) {
        const unsigned int id = str2uint(getAttribute(properties, xml::kId));
        last = id < kEndOfIds ? std::max(last, id) : last;
    }
    return last;
}

unsigned int renumberRepeatedIds(DOMDocument* document, unsigned int next) {
    std::set<std::wstring> taken;
    for (DOMElement* properties : getAllIdentities(document))
        if (!isInFallback(*properties) && !taken.insert(getAttribute(properties, xml::kId)).second)
            setAttribute(properties, xml::kId, num2str(next++));
    return next;
}

} // namespace vellox::ppt
