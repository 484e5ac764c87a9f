#include "vellox/ppt/writers/TextLook.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/Dom.h"
#include "vellox/ppt/xml/RunMarks.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr unsigned int kDeepestLevel = 8; // from 0

const DOMElement* findFirstRun(const DOMElement& paragraph) {
    for (const DOMElement* child : getChildElements(&paragraph))
        if (hasName(*child, xml::kAR) || hasName(*child, xml::kAFld))
            return child;
    return nullptr;
}

void takeRunProperties(PropertyElement& into, const DOMElement* properties) {
    if (!properties)
        return;
    into.copyFrom(*properties);
    for (const XMLCh* name : kRunLinks)
        into.removeChildren(name);
    for (const XMLCh* name : kRunMarks)
        into.removeAttribute(name);
}

ParagraphLook readLook(const DOMElement& paragraph, const DOMElement* run) {
    ParagraphLook look;
    if (const DOMElement* properties = findChild(&paragraph, xml::kAPPr)) {
        look.level = std::min(str2uint(getAttribute(properties, xml::kLvl)), kDeepestLevel);
        look.pPr.copyFrom(*properties);
        look.pPr.removeAttribute(xml::kLvl);
    }
    const DOMElement* end = findChild(&paragraph, xml::kAEndParaRPr);
    takeRunProperties(look.rPr, run ? findChild(run, xml::kARPr) : end);
    takeRunProperties(look.endParaRPr, end);
    return look;
}

} // namespace

PropertyElement ParagraphLook::makeEmptyEnd() const {
    PropertyElement end = endParaRPr;
    if (end.isEmpty())
        end.layOver(rPr);
    return end;
}

TextLook::TextLook(const DOMElement* txBody) {
    std::vector<bool> haveRuns; // whether that of a level is of a paragraph with a run
    for (const DOMElement* child : getChildElements(txBody)) {
        if (!hasName(*child, xml::kAP))
            continue;
        const DOMElement* run = findFirstRun(*child);
        ParagraphLook look = readLook(*child, run);
        const auto known = std::find_if(levels_.begin(), levels_.end(), [&](const ParagraphLook& other) {
            return other.level == look.level;
        });
        const auto place = static_cast<std::size_t>(known - levels_.begin());
        if (known == levels_.end()) {
            levels_.push_back(std::move(look));
            haveRuns.push_back(run != nullptr);
        } else if (run && !haveRuns[place]) {
            *known = std::move(look);
            haveRuns[place] = true;
        }
    }
    if (levels_.empty())
        return;
    const auto first = std::find(haveRuns.begin(), haveRuns.end(), true);
    other_ = levels_[first == haveRuns.end() ? 0 : static_cast<std::size_t>(first - haveRuns.begin())];
    for (const XMLCh* name : {xml::kMarL, xml::kIndent})
        other_.pPr.removeAttribute(name);
}

const ParagraphLook* TextLook::find(unsigned int level) const {
    for (const ParagraphLook& look : levels_)
        if (look.level == level)
            return &look;
    return levels_.empty() ? nullptr : &other_;
}

void writeEmptyParagraph(opc::MarkupBuffer& out, const ParagraphLook* look) {
    if (!look)
        return out.append(kEmptyParagraph);
    const std::size_t start = out.openElement("a:p");
    look->pPr.writeTo(out);
    const PropertyElement end = look->makeEmptyEnd();
    if (end.isEmpty())
        out.append("<a:endParaRPr/>");
    else
        end.writeTo(out);
    out.closeElement("a:p", start);
}

} // namespace vellox::ppt
