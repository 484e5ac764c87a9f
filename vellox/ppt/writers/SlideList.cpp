#include "vellox/ppt/writers/SlideList.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/writers/NotesParts.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/Sections.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

// Slide ids start here: the format keeps what is below for other uses.
constexpr unsigned int kFirstSlideId = 256;

DOMElement* prepareSlideList(DOMDocument& presentation) {
    DOMElement* root = presentation.getDocumentElement();
    DOMElement* list = findChild(root, xml::kSldIdLst);
    for (DOMElement* former : getElementsByName(&presentation, xml::kSldId))
        removeNode(former);
    if (list)
        return list;
    // Behind the lists of masters, which stand in this order where there are any.
    list = presentation.createElement(xml::kSldIdLst);
    DOMNode* next = root->getFirstElementChild();
    for (const XMLCh* name : {xml::kSldMasterIdLst, xml::kNotesMasterIdLst, xml::kHandoutMasterIdLst})
        if (const DOMElement* masters = findChild(root, name))
            next = masters->getNextSibling();
    root->insertBefore(list, next);
    return list;
}

} // namespace

void updateSlideList(const ReadTemplate& source, const std::vector<boost::shared_ptr<TemplateSlide>>& slides,
                     PPTPartWriter& partWriter, const NotesParts& notes) {
    const OwnedDocument presentation = copyDocument(source.presentationDocument);
    declarePrefixes(presentation->getDocumentElement());
    std::vector<std::wstring> formerIds;
    formerIds.reserve(slides.size());
    for (const auto& slide : slides)
        formerIds.push_back(slide->id);
    updateSections(*presentation.get(), formerIds, kFirstSlideId);
    notes.listMaster(*presentation.get());
    // As text: nodes for each slide of a long deck would take more room than all else that is kept of it.
    opc::Contents contents;
    opc::MarkupBuffer& list = contents[prepareSlideList(*presentation.get())];
    unsigned int id = kFirstSlideId;
    for (const auto& slide : slides) {
        if (slide->relationshipId.empty())
            slide->relationshipId = partWriter.addRelationship(source.presentationPartName,
                                                               relationship::kSlide, slide->partName);
        list.append("<p:sldId");
        list.appendAttribute(xml::kId, opc::XercesString(num2str(id++)));
        list.appendAttribute(xml::kRId, opc::XercesString(slide->relationshipId));
        list.append("/>");
    }
    partWriter.writeDocument(source.presentationPartName, presentation.get(), contents);
}

} // namespace vellox::ppt
