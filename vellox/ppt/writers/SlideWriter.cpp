#include "vellox/ppt/writers/SlideWriter.h"

#include "vellox/ppt/engine/PPTPartWriter.h"
#include "vellox/ppt/engine/TemplateRecords.h"
#include "vellox/ppt/engine/XmlNames.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"

namespace vellox::ppt {

SlideWriter::SlideWriter(const SlideImpl& slide, PPTWriter& writer, xercesc::DOMNode* parentNode)
    : ElementWriter(slide, writer, parentNode),
      slide_(slide) {}

void SlideWriter::write() {
    const boost::shared_ptr<TemplateSlide>& record = slide_.getTemplateSlide();
    if (!record || !record->document)
        return;
    getWriter().enterSlide(record);
    if (xercesc::DOMElement* data = findChild(record->document->getDocumentElement(), xml::kCSld))
        setAttribute(data, xml::kName, slide_.getName());
    if (record->partName.empty())
        record->partName = getPartWriter().createSlidePart(*record);
    for (const auto& child : slide_.getChildren())
        child->acceptWriter(&getWriter(), nullptr);
    // What no writer has visited, such as groups and placeholders that nothing came for, still bears the mark,
    // and may have been stripped of its text.
    for (const auto& entry : record->elementsByUid) {
        entry.second->removeAttribute(xml::kDataUid);
        ensureParagraph(entry.second);
    }
    getPartWriter().writeDocument(record->partName, record->document.get());
    getWriter().leaveSlide();
}

} // namespace vellox::ppt
