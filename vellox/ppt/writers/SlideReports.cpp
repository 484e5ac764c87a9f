#include "vellox/ppt/writers/SlideReports.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/FitReports.h"

namespace vellox::ppt {

namespace {

void reportName(const PPTNodeImpl& node) {
    if (const std::size_t dropped = opc::XercesString(node.getName()).getDropped())
        report(ppt_finding::charactersDropped(std::to_wstring(dropped)), node);
}

bool isChanged(const ShapeImpl& shape) {
    return shape.isContentReplaced() || !shape.getChildren().empty() || !shape.getStyle().getMap().empty() ||
           shape.getGeometry().hasPlacement() || shape.getAltText().isSet();
}

void reportGrouped(const PPTNodeImpl& group) {
    for (const auto& child : PPTNode::Children(group.getChildren())) { // a listener may change them
        const auto* shape = implAs<ShapeImpl>(*child);
        if (child->getNodeType() == NodeType::Group)
            reportGrouped(*shape);
        else if (shape && isChanged(*shape))
            report(ppt_finding::shapeInGroup(), *shape);
    }
}

// Text and box are made to fit, which is seen to where they are written.
bool fits(const ShapeImpl& shape) {
    const auto* textBox = dynamic_cast<const BaseTextBoxImpl*>(&shape);
    return textBox && textBox->getAutofit().isSet() && textBox->getAutofit().get() != autofit::kNone;
}

// What stands on a slide of the template has contents that nobody here knows.
void reportRoom(const ShapeImpl& shape, bool isOnNewSlide, const Rules& rules, double slideHeight) {
    if (shape.getTemplateShape() && !isOnNewSlide)
        return;
    const NodeType type = shape.getNodeType();
    if (type == NodeType::Table)
        return reportFit(static_cast<const TableImpl&>(shape), slideHeight, rules.measuresColumns());
    const bool isPlaceholder = isKindOf(type, NodeType::TextBoxPlaceholder);
    if (isPlaceholder && shape.getChildren().empty() && !shape.isContentReplaced())
        report(ppt_finding::emptyPlaceholder(), shape);
    else if ((isPlaceholder || type == NodeType::TextBox) && !(rules.measuresTexts() && fits(shape)))
        reportFit(shape);
}

} // namespace

void reportOnSlide(const SlideImpl& slide, const PPTNode::Children& shapes, const PresentationModel& model) {
    const boost::shared_ptr<TemplateLayout>& layout = slide.getTemplateSlide()->layout;
    if (layout && layout->prototype && !layout->prototype->isWhole)
        report(ppt_finding::layoutCopiedInPart(layout->name), slide);
    const bool isNew = !slide.getTemplateSlide()->source;
    const double height = str2double(model.getTemplate().slideHeight);
    reportName(slide);
    for (const auto& child : shapes) {
        const auto* shape = implOf<PPTNodeImpl>(*child);
        reportName(*shape);
        if (shape->getNodeType() == NodeType::Group && !model.getRules().reachesIntoGroups())
            reportGrouped(*shape);
        if (const auto* placed = implAs<ShapeImpl>(*child))
            reportRoom(*placed, isNew, model.getRules(), height);
    }
}

} // namespace vellox::ppt
