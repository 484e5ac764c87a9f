#include "vellox/ppt/fill/RunTexts.h"

#include "vellox/foundation/Lines.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

RunTexts::RunTexts(DOMElement& paragraph) {
    for (DOMElement* child : getChildElements(&paragraph)) {
        const DOMElement* text = findChild(child, xml::kAT);
        const std::size_t start = text_.size();
        if (text && hasName(*child, u"a:r")) {
            text_ += opc::toWideString(text->getTextContent());
            runs_.push_back({child, start, text_.size()});
        } else if (text || hasName(*child, xml::kABr)) {
            text_ += L'\n';
        }
    }
}

namespace {

// The lines of a run, with breaks of its look between them.
std::size_t writeRun(DOMElement& run, const std::wstring& text) {
    const std::vector<std::wstring> lines = splitLines(text);
    std::size_t dropped = 0;
    DOMNode* parent = run.getParentNode();
    for (const std::wstring& line : lines) {
        const bool isLast = &line == &lines.back();
        DOMElement* target = isLast ? &run : static_cast<DOMElement*>(run.cloneNode(true));
        const opc::XercesString content(line);
        dropped += content.getDropped();
        findChild(target, xml::kAT)->setTextContent(content);
        if (isLast)
            break;
        parent->insertBefore(target, &run);
        DOMElement* pause = run.getOwnerDocument()->createElement(xml::kABr);
        if (const DOMElement* look = findChild(&run, xml::kARPr))
            pause->appendChild(look->cloneNode(true));
        parent->insertBefore(pause, &run);
    }
    return dropped;
}

} // namespace

std::size_t RunTexts::apply(const std::vector<TextEdit>& edits) {
    std::size_t dropped = 0;
    auto first = edits.begin(); // that isn't over ahead of the run
    for (const Run& run : runs_) {
        while (first != edits.end() && first->end <= run.start)
            ++first;
        std::wstring text;
        std::size_t at = run.start;
        bool beginsHere = false;
        for (auto edit = first; edit != edits.end() && edit->start < run.end; ++edit) {
            if (edit->start >= at)
                text += text_.substr(at, edit->start - at);
            if (edit->start >= run.start) {
                text += edit->text;
                beginsHere = true;
            }
            at = std::min(edit->end, run.end);
        }
        text += text_.substr(at, run.end - at);
        if (text.empty() && !beginsHere && run.end > run.start)
            removeNode(run.element);
        else if (text != text_.substr(run.start, run.end - run.start))
            dropped += writeRun(*run.element, text);
    }
    return dropped;
}

} // namespace vellox::ppt
