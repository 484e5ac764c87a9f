#include "vellox/ppt/writers/ElementWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/rules/Sequences.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/ChildOrder.h"
#include "vellox/ppt/xml/PropertyElement.h"
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

const Format* ElementWriter::findFormat(FormatType type) const {
    return getFormatsInForce().find(type);
}

void ElementWriter::applyFormats() {
    // A copy: listeners that hear of a finding may change the element's own.
    const Formats::Map own = element_.getStyle().getMap();
    for (const auto& entry : own)
        if (acceptsFormat(*entry.second))
            applyFormat(*entry.second);
    const FormatTypes& types = inheritedFormatTypes();
    if (types.empty() || getFormatsInForce().isEmpty())
        return; // as most texts have it
    for (const FormatType type : types) {
        if (!own.empty() && own.count(type) > 0)
            continue;
        const Format* format = findFormat(type);
        if (format && acceptsFormat(*format))
            applyFormat(*format);
    }
}

// The way down begins at a shape, which finds no frame. Below, a node may stand in the list of one that it doesn't
// link to, as the items of lists do; it is the link that counts.
FormatsInForce ElementWriter::getFormatsAbove() const {
    if (around_)
        return around_->getFormatsInForce();
    const PPTWriter::Frame& frame = writer_.getFrame();
    const PPTNodeImpl* parent = element_.getParent();
    // A writer may stand in for a child of its element, as that of a blank cell does for a row.
    const bool isAt = frame.element == parent || frame.element == &element_;
    const bool isOnTheWay = frame.formats && isAt && frame.formats->isCurrent();
    return isOnTheWay ? *frame.formats : FormatsInForce::at(parent, frame.table);
}

const FormatsInForce& ElementWriter::getFormatsInForce() const {
    if (!inForce_ || !inForce_->isCurrent()) {
        inForce_ = getFormatsAbove();
        inForce_->layOver(element_.getStyle());
    }
    return *inForce_;
}

PPTWriter::Frame ElementWriter::makeFrame() const {
    PPTWriter::Frame frame;
    frame.element = &element_;
    frame.formats = &getFormatsInForce();
    frame.table = writer_.getFrame().table;
    frame.markup = &getMarkup();
    return frame;
}

unsigned int ElementWriter::writeChildren(const PPTWriter::Frame& frame) const {
    const PPTWriter::FrameScope scope(writer_, frame);
    const PPTNode::Children& children = element_.getChildren();
    for (std::size_t i = 0; i < children.size(); ++i) { // a listener that hears of a finding may change them
        const auto child = children[i];
        child->acceptWriter(&writer_, parentNode_);
    }
    return writer_.getFrame().paragraphs;
}

std::optional<double> ElementWriter::findFontPoints() const {
    const Format* size = findFormat(FormatType::FontSize);
    if (!size)
        return {};
    return static_cast<const BaseDimension&>(*size).getDimension().getPointNumber();
}

void ElementWriter::putFontSize(PropertyElement& properties) const {
    if (const std::optional<double> points = findFontPoints())
        properties.setAttribute(xml::kSz, num2str(truncateToInt(*points * 100.0)));
    arrange(properties);
}

opc::MarkupBuffer& ElementWriter::getMarkup() const {
    return writer_.getMarkup();
}

PPTPartWriter& ElementWriter::getPartWriter() const {
    return *writer_.getPartWriter();
}

PresentationModel& ElementWriter::getModel() const {
    return *writer_.getModel();
}

const Rules& ElementWriter::getRules() const {
    return getModel().getRules();
}

void ElementWriter::arrange(PropertyElement& properties) const {
    if (properties.isEmpty())
        return;
    const ElementForm* form = getRules().formOf(properties.getName());
    if (!form)
        return;
    for (const ElementForm::Needed& needed : form->needed)
        properties.removeChildren(needed.child, needed.attribute);
    properties.sortChildren(form->children);
    for (const ElementForm::Range& range : form->ranges)
        if (const auto change = properties.limit(range.attribute, range.least, range.greatest))
            writer_.report(
                ppt_finding::valueLimited(std::wstring(range.attribute.begin(), range.attribute.end()),
                                          std::to_wstring(change->first), std::to_wstring(change->second)));
}

void ElementWriter::arrange(DOMElement* element) const {
    if (const ElementForm* form = element ? getRules().formOf(element->getNodeName()) : nullptr)
        sortChildren(element, form->children);
}

void ElementWriter::arrangeAnyway(DOMElement* element) {
    if (const ElementForm* form = findElementForm(element->getNodeName()))
        sortChildren(element, form->children);
}

SlideDocument* ElementWriter::getCurrentSlide() const {
    return writer_.getCurrentSlide();
}

std::wstring ElementWriter::getCurrentSlidePartName() const {
    return writer_.getCurrentSlidePartName();
}

DOMElement* ElementWriter::createElement(const XMLCh* name) const {
    SlideDocument* slide = getCurrentSlide();
    return slide ? slide->createElement(name) : nullptr;
}

DOMElement* ElementWriter::findSlideElement(const std::wstring& uid) const {
    SlideDocument* slide = getCurrentSlide();
    return slide ? slide->findElement(uid) : nullptr;
}

void removeChildElements(DOMElement* parent, const XMLCh* name) {
    for (DOMElement* child : getChildElements(parent))
        if (hasName(*child, name))
            parent->removeChild(child);
}

} // namespace vellox::ppt
