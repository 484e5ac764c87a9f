#include "vellox/ppt/writers/SlideWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/writers/ChartParts.h"
#include "vellox/ppt/writers/NotesParts.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/PageFieldWriter.h"
#include "vellox/ppt/writers/SlideCopies.h"
#include "vellox/ppt/writers/SlideReports.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <set>

namespace vellox::ppt {

SlideWriter::SlideWriter(const SlideImpl& slide, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(slide, writer, parentNode),
      slide_(slide) {}

void SlideWriter::write() {
    const boost::shared_ptr<TemplateSlide>& record = slide_.getTemplateSlide();
    if (!record || getWriter().hasWritten(*record))
        return report(ppt_finding::slideNotWritten(), slide_);
    const bool turnsHidden = slide_.isHidden() != record->isHidden;
    const PageFieldWriter fields(slide_.pageFields.get(), getWriter().getPageFields(), *record, getRules());
    SlideDocument document(*record, getModel().getRules(),
                           turnsHidden || fields.needNodes() ? SlideDocument::Form::Nodes
                                                             : SlideDocument::Form::Pieces);
    document.setName(slide_.getName());
    if (turnsHidden)
        document.getRoot()->setAttribute(xml::kShow, slide_.isHidden() ? xml::kFalse : xml::kTrue);
    for (const std::wstring& uid : slide_.getDropped())
        document.removeElement(uid);
    const std::wstring partName = requirePart(*record, document);
    const PPTWriter::Visit visit(getWriter(), record, document);
    const PPTNode::Children shapes = slide_.getChildren(); // what a listener adds now comes too late
    std::set<std::wstring> taken;
    reportOnSlide(slide_, shapes, getModel());
    writeFields(fields, document);
    writeShapes(document, shapes, taken);
    arrange(document.getShapeTree());
    getWriter().setReporter(&slide_);
    opc::MarkupBuffer text;
    document.writeTo(text);
    getPartWriter().writeMarkup(partName, text.get());
    getWriter().setReporter(nullptr);
    for (const auto& [name, chart] : slide_.getCharts())
        if (chart.data)
            getWriter().getChartParts().add(partName, getWriter().getCurrentSlideNumber(), chart);
    if (record->notes && record->notes->isChanged)
        getWriter().getNotes().add(partName, record->notes);
}

void SlideWriter::writeFields(const PageFieldWriter& fields, SlideDocument& document) const {
    const PageFieldWriter::Outcome outcome = fields.writeTo(document);
    if (outcome.dropped > 0)
        report(ppt_finding::charactersDropped(std::to_wstring(outcome.dropped)), slide_);
    for (const std::wstring& field : outcome.notShown)
        report(ppt_finding::pageFieldNotShown(field), slide_);
}

std::wstring SlideWriter::requirePart(const TemplateSlide& slide, SlideDocument& document) const {
    if (!slide.partName.empty())
        return slide.partName;
    const std::wstring& name = getWriter().requirePartName(slide);
    if (slide.originName.empty())
        return getPartWriter().createSlidePart(slide, name);
    makeOrdinary(document);
    return getWriter().getCopies().createPart(slide, name);
}

// An element of the slide belongs to the first shape that stands for it. A copy of that, which bears the same
// mark, is a shape of its own.
void SlideWriter::writeShapes(SlideDocument& document, const PPTNode::Children& shapes,
                              std::set<std::wstring>& taken) {
    for (const auto& shape : shapes) {
        const auto* impl = implAs<ShapeImpl>(*shape);
        getWriter().setReporter(impl);
        const std::wstring uid = impl ? impl->getTemplateUid() : std::wstring();
        const bool isCopy = !uid.empty() && !taken.insert(uid).second;
        if (isCopy)
            document.hide(uid);
        shape->acceptWriter(&getWriter(), nullptr);
        if (isCopy)
            document.showHidden();
        const auto* group = getRules().reachesIntoGroups() ? implAs<GroupImpl>(*shape) : nullptr;
        if (group)
            writeShapes(document, PPTNode::Children(group->getChildren()), taken);
    }
    getWriter().setReporter(nullptr);
}

} // namespace vellox::ppt
