#include "vellox/ppt/writers/SlideReports.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

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
    for (const auto& child : group.getChildren()) {
        const auto* shape = implAs<ShapeImpl>(*child);
        if (child->getNodeType() == NodeType::Group)
            reportGrouped(*shape);
        else if (shape && isChanged(*shape))
            report(ppt_finding::shapeInGroup(), *shape);
    }
}

} // namespace

void reportOnSlide(const SlideImpl& slide, const Rules& rules) {
    const boost::shared_ptr<TemplateLayout>& layout = slide.getTemplateSlide()->layout;
    if (layout && layout->prototype && !layout->prototype->isWhole)
        report(ppt_finding::layoutCopiedInPart(layout->name), slide);
    reportName(slide);
    for (const auto& child : slide.getChildren()) {
        const auto* shape = implOf<PPTNodeImpl>(*child);
        reportName(*shape);
        if (shape->getNodeType() == NodeType::Group && !rules.reachesIntoGroups())
            reportGrouped(*shape);
    }
}

} // namespace vellox::ppt
