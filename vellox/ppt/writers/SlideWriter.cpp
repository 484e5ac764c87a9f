#include "vellox/ppt/writers/SlideWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/template/SlideDocuments.h"
#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/SlideReports.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <set>
#include <utility>

namespace vellox::ppt {

SlideWriter::SlideWriter(const SlideImpl& slide, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(slide, writer, parentNode),
      slide_(slide) {}

void SlideWriter::write() {
    const boost::shared_ptr<TemplateSlide>& record = slide_.getTemplateSlide();
    if (!record || !record->document)
        return report(ppt_finding::slideNotWritten(), slide_);
    getWriter().enterSlide(record);
    declarePrefixes(record->document->getDocumentElement());
    if (xercesc::DOMElement* data = findChild(record->document->getDocumentElement(), xml::kCSld))
        setAttribute(data, xml::kName, slide_.getName());
    if (record->partName.empty())
        record->partName = getPartWriter().createSlidePart(*record);
    writeShapes(*record);
    // What no writer has visited, such as groups and placeholders that nothing came for, still bears the mark,
    // and may have been stripped of its text.
    for (const auto& entry : record->elementsByUid) {
        entry.second->removeAttribute(xml::kDataUid);
        ensureParagraph(entry.second);
    }
    getPartWriter().writeDocument(record->partName, record->document.get());
    getWriter().leaveSlide();
}

// An element of the slide belongs to the first shape that stands for it. A copy of that, which bears the same
// mark, is a shape of its own.
void SlideWriter::writeShapes(TemplateSlide& record) {
    const PPTNode::Children shapes = slide_.getChildren(); // what a listener adds now comes too late
    std::set<std::wstring> taken;
    reportOnSlide(slide_);
    for (const auto& shape : shapes) {
        const auto* impl = implAs<ShapeImpl>(*shape);
        getWriter().setReporter(impl);
        const std::wstring uid = impl ? impl->getTemplateUid() : std::wstring();
        const bool isCopy = !uid.empty() && !taken.insert(uid).second;
        auto hidden = isCopy ? record.elementsByUid.extract(uid) : ElementMap::node_type();
        shape->acceptWriter(&getWriter(), nullptr);
        if (hidden)
            record.elementsByUid.insert(std::move(hidden));
    }
    getWriter().setReporter(nullptr);
}

} // namespace vellox::ppt
