#include "vellox/ppt/writers/ElementWriter.h"

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

ElementWriter::ElementWriter(const ElementImpl& element, PPTWriter& writer, DOMNode* parentNode)
    : element_(element),
      writer_(writer),
      parentNode_(parentNode) {}

ElementWriter::~ElementWriter() = default;

void ElementWriter::write() {}

void ElementWriter::applyFormat(const Format&) {}

bool ElementWriter::acceptsFormat(const Format&) const {
    return true;
}

const ElementWriter::FormatTypes& ElementWriter::inheritedFormatTypes() const {
    static const FormatTypes& none = *new const FormatTypes;
    return none;
}

namespace {

const Format* findIn(const Formats& formats, FormatType type) {
    const Formats::Map& map = formats.getMap();
    if (map.empty())
        return nullptr;
    const auto found = map.find(type);
    return found == map.end() ? nullptr : found->second.get();
}

const Format* findInCurrentColumn(const PPTWriter::TableContext& table, FormatType type) {
    if (table.col >= table.colCount || table.col >= table.colFormats.size())
        return nullptr;
    return findIn(table.colFormats[table.col], type);
}

} // namespace

const Format* ElementWriter::findFormat(const ElementImpl& node, FormatType type) const {
    if (const Format* own = findIn(node.getStyle(), type))
        return own;
    if (node.getNodeType() == NodeType::TableRow)
        if (const Format* ofColumn = findInCurrentColumn(writer_.getTableContext(), type))
            return ofColumn;
    const PPTNodeImpl* parent = node.getParent();
    const ElementImpl* above = parent ? parent->asElement() : nullptr;
    return above ? findFormat(*above, type) : nullptr;
}

void ElementWriter::applyFormats(const ElementImpl& node, const FormatTypes& inherited) {
    const Formats::Map& own = node.getStyle().getMap();
    for (const auto& entry : own)
        if (acceptsFormat(*entry.second))
            applyFormat(*entry.second);
    for (const FormatType type : inherited) {
        if (!own.empty() && own.count(type) > 0)
            continue;
        const Format* format = findFormat(node, type);
        if (format && acceptsFormat(*format))
            applyFormat(*format);
    }
}

PPTPartWriter& ElementWriter::getPartWriter() const {
    return *writer_.getPartWriter();
}

PresentationModel& ElementWriter::getModel() const {
    return *writer_.getModel();
}

SlideDocument* ElementWriter::getCurrentSlide() const {
    return writer_.getCurrentSlide();
}

std::wstring ElementWriter::getCurrentSlidePartName() const {
    return writer_.getCurrentSlidePartName();
}

DOMElement* ElementWriter::createElement(const XMLCh* name) const {
    const SlideDocument* slide = getCurrentSlide();
    return slide ? slide->createElement(name) : nullptr;
}

DOMElement* ElementWriter::findSlideElement(const std::wstring& uid) const {
    const SlideDocument* slide = getCurrentSlide();
    return slide ? slide->findElement(uid) : nullptr;
}

void removeChildElements(DOMElement* parent, const XMLCh* name) {
    for (DOMElement* child : getChildElements(parent))
        if (hasName(*child, name))
            parent->removeChild(child);
}

void ensureParagraph(DOMElement* element) {
    DOMElement* body = findChild(element, xml::kTxBody);
    if (!body)
        body = findChild(element, xml::kATxBody);
    if (body && !findChild(body, xml::kAP))
        appendElement(appendElement(body, xml::kAP), xml::kAEndParaRPr);
}

} // namespace vellox::ppt
