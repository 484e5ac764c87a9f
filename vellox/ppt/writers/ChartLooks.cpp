#include "vellox/ppt/writers/ChartLooks.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr unsigned long kAccents = 6;
/// From the second round of the theme's colours on, in thousandths of a per cent: darker, then lighter.
constexpr const wchar_t* kShades[][2] = {{nullptr, nullptr}, {L"60000", nullptr}, {L"80000", L"20000"}};

/// What belongs to the points of one series, or is known by a number of its own.
constexpr std::u16string_view kOfPoints[] = {u"dPt", u"dLbls", u"trendline", u"errBars", u"extLst"};

// Makes the colour of an element that of the theme whose turn it is.
void setTurn(DOMElement* color, unsigned long index) {
    DOMElement* own = color->getOwnerDocument()->createElement(xml::kASchemeClr);
    setAttribute(own, xml::kVal, L"accent" + std::to_wstring(index % kAccents + 1));
    const auto& [darker, lighter] = kShades[index / kAccents % std::size(kShades)];
    if (darker)
        setAttribute(appendElement(own, xml::kALumMod), xml::kVal, darker);
    if (lighter)
        setAttribute(appendElement(own, xml::kALumOff), xml::kVal, lighter);
    color->getParentNode()->replaceChild(own, color);
}

void recolor(DOMElement* element, unsigned long index) {
    for (DOMElement* child : getChildElements(element)) {
        const std::u16string_view local = getLocalName(*child);
        const bool isAccent =
            local == u"schemeClr" && getAttribute(child, xml::kVal).compare(0, 6, L"accent") == 0;
        if (isAccent || local == u"srgbClr")
            setTurn(child, index);
        else
            recolor(child, index);
    }
}

std::size_t getPoint(const DOMElement* element) {
    return str2uint(getAttribute(findLocal(element, u"idx"), xml::kVal));
}

} // namespace

std::u16string_view getLocalName(const DOMNode& element) {
    const std::u16string_view name = element.getNodeName();
    return name.substr(name.find(u':') + 1);
}

DOMElement* findLocal(const DOMNode* parent, std::u16string_view local) {
    for (DOMNode* child = parent ? parent->getFirstChild() : nullptr; child; child = child->getNextSibling())
        if (child->getNodeType() == DOMNode::ELEMENT_NODE && getLocalName(*child) == local)
            return static_cast<DOMElement*>(child);
    return nullptr;
}

void removeLocal(DOMElement* parent, std::u16string_view local) {
    for (DOMElement* child : getChildElements(parent))
        if (getLocalName(*child) == local)
            removeNode(child);
}

void continueLook(DOMElement* series, unsigned long index) {
    for (const std::u16string_view local : kOfPoints)
        removeLocal(series, local);
    for (const std::u16string_view local : {u"spPr", u"marker"})
        if (DOMElement* look = findLocal(series, local))
            recolor(look, index);
}

void limitPoints(DOMElement* series, std::size_t count) {
    std::size_t looks = 0, greatest = 0;
    DOMElement* last = nullptr;
    for (DOMElement* child : getChildElements(series)) {
        if (getLocalName(*child) != u"dPt" || !findLocal(child, u"idx"))
            continue;
        const std::size_t point = getPoint(child);
        if (point >= count) {
            removeNode(child);
            continue;
        }
        ++looks;
        greatest = std::max(greatest, point);
        last = child;
    }
    for (DOMElement* label : getChildElements(findLocal(series, u"dLbls")))
        if (getLocalName(*label) == u"dLbl" && getPoint(label) >= count)
            removeNode(label);
    if (!last || looks != greatest + 1 || looks < 2)
        return;
    for (std::size_t point = looks; point < count; ++point) {
        auto* copy = static_cast<DOMElement*>(last->cloneNode(true));
        removeLocal(copy, u"extLst");
        setAttribute(findLocal(copy, u"idx"), xml::kVal, std::to_wstring(point));
        recolor(copy, point);
        series->insertBefore(copy, last->getNextSibling());
        last = copy;
    }
}

} // namespace vellox::ppt
