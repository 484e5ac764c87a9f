#include "vellox/ppt/xml/BodyText.h"

#include "vellox/foundation/Lines.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/RunMarks.h"

namespace vellox::ppt {

using namespace xercesc;

std::wstring readParagraph(const DOMElement& paragraph) {
    std::wstring text;
    for (const DOMElement* child : getChildElements(&paragraph)) {
        if (hasName(*child, xml::kABr))
            text += L'\n';
        else if (const DOMElement* run = findChild(child, xml::kAT))
            text += opc::toWideString(run->getTextContent());
    }
    return text;
}

std::wstring readBody(const DOMElement* body) {
    std::wstring text;
    bool isFirst = true;
    for (const DOMElement* paragraph : getChildElements(body)) {
        if (!hasName(*paragraph, xml::kAP))
            continue;
        text += (isFirst ? L"" : L"\n") + readParagraph(*paragraph);
        isFirst = false;
    }
    return text;
}

namespace {

DOMElement* findNth(const DOMElement* parent, const XMLCh* name, unsigned int n) {
    DOMElement* child = findChild(parent, name);
    while (child && n-- > 0)
        do {
            child = child->getNextElementSibling();
        } while (child && !hasName(*child, name));
    return child;
}

} // namespace

DOMElement* findCell(const DOMElement* frame, unsigned int row, unsigned int column) {
    const DOMElement* table = findDescendant(frame, {xml::kAGraphic, xml::kAGraphicData, xml::kATbl});
    return findNth(findNth(table, u"a:tr", row), u"a:tc", column);
}

namespace {

// What the paragraphs of a body look like.
struct Look {
    const DOMElement* paragraph = nullptr; ///< a:pPr
    const DOMElement* run = nullptr;       ///< a:rPr
    const DOMElement* end = nullptr;       ///< a:endParaRPr, in an empty body
};

Look findLook(const DOMElement& body) {
    const DOMElement* paragraph = findChild(&body, xml::kAP);
    Look look;
    look.paragraph = findChild(paragraph, xml::kAPPr);
    look.end = findChild(paragraph, xml::kAEndParaRPr);
    for (const DOMElement* child : getChildElements(paragraph)) {
        look.run = findChild(child, xml::kARPr);
        if (look.run)
            break;
    }
    return look;
}

void copyLook(const DOMElement& from, DOMElement& to) {
    const DOMNamedNodeMap* attributes = from.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
        to.setAttribute(attributes->item(i)->getNodeName(), attributes->item(i)->getNodeValue());
    for (const DOMNode* child = from.getFirstChild(); child; child = child->getNextSibling())
        to.appendChild(child->cloneNode(true));
    for (const XMLCh* name : kRunLinks)
        while (DOMElement* link = findChild(&to, name))
            removeNode(link);
    for (const XMLCh* name : kRunMarks)
        to.removeAttribute(name);
}

std::size_t appendParagraph(DOMElement& body, const Look& look, const std::wstring& line) {
    DOMElement* paragraph = appendElement(&body, xml::kAP);
    if (look.paragraph)
        paragraph->appendChild(look.paragraph->cloneNode(true));
    const DOMElement* properties = look.run ? look.run : look.end;
    if (line.empty()) {
        DOMElement* end = appendElement(paragraph, xml::kAEndParaRPr);
        if (properties)
            copyLook(*properties, *end);
        return 0;
    }
    DOMElement* run = appendElement(paragraph, u"a:r");
    if (properties)
        copyLook(*properties, *appendElement(run, xml::kARPr));
    return appendText(appendElement(run, xml::kAT), line);
}

} // namespace

std::size_t replaceBody(DOMElement& body, const std::wstring& text) {
    const Look look = findLook(body);
    std::vector<DOMElement*> former;
    for (DOMElement* child : getChildElements(&body))
        if (hasName(*child, xml::kAP))
            former.push_back(child);
    std::size_t dropped = 0;
    for (const std::wstring& line : splitLines(text))
        dropped += appendParagraph(body, look, line);
    for (DOMElement* paragraph : former)
        removeNode(paragraph);
    return dropped;
}

} // namespace vellox::ppt
