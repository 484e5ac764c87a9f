#include "vellox/ppt/writers/NotesParts.h"

#include "vellox/opc/Package.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/template/NotesPage.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

// The first part that a relationship of a type leads to; empty if there is none.
std::wstring findTarget(const PPTPartWriter& partWriter, const std::wstring& partName, const wchar_t* type) {
    for (const opc::Relationship& row : partWriter.getPart(partName).getRelationships())
        if (row.getType() == type && !row.isExternal() && partWriter.hasPart(row.getTargetURI().toString()))
            return row.getTargetURI().toString();
    return {};
}

} // namespace

NotesParts::NotesParts(const ReadTemplate& source, PPTPartWriter& partWriter)
    : source_(source),
      partWriter_(partWriter) {}

void NotesParts::write() {
    for (const auto& [slidePartName, notes] : pages_)
        write(slidePartName, *notes);
}

void NotesParts::write(const std::wstring& slidePartName, const TemplateNotes& notes) {
    std::wstring name = findTarget(partWriter_, slidePartName, relationship::kNotesSlide);
    if (name.empty())
        name = createPart(slidePartName);
    partWriter_.writeDocument(name, notes.document.get());
}

std::wstring NotesParts::createPart(const std::wstring& slidePartName) {
    const std::wstring name = partWriter_.chooseNameLike(L"/ppt/notesSlides/notesSlide1.xml");
    const std::wstring& master = requireMaster();
    partWriter_.createPart(name, contenttype::kNotesSlide);
    partWriter_.addRelationship(name, relationship::kNotesMaster, master);
    partWriter_.addRelationship(name, relationship::kSlide, slidePartName);
    partWriter_.addRelationship(slidePartName, relationship::kNotesSlide, name);
    return name;
}

const std::wstring& NotesParts::requireMaster() {
    if (masterName_.empty())
        masterName_ = findTarget(partWriter_, source_.presentationPartName, relationship::kNotesMaster);
    if (masterName_.empty())
        createMaster();
    return masterName_;
}

void NotesParts::createMaster() {
    constexpr wchar_t kWidth[] = L"6858000", kHeight[] = L"9144000";
    const DOMElement* size = findChild(source_.presentationDocument->getDocumentElement(), u"p:notesSz");
    const std::wstring cx = getAttribute(size, xml::kCx), cy = getAttribute(size, xml::kCy);
    const OwnedDocument master = makeNotesMaster(cx.empty() ? kWidth : cx, cy.empty() ? kHeight : cy);
    masterName_ = partWriter_.chooseNameLike(L"/ppt/notesMasters/notesMaster1.xml");
    partWriter_.writeNewDocument(masterName_, contenttype::kNotesMaster, master.get());
    createTheme();
    newMastersId_ =
        partWriter_.addRelationship(source_.presentationPartName, relationship::kNotesMaster, masterName_);
}

// A master has a theme of its own: that of the slides, once more.
void NotesParts::createTheme() {
    for (const auto& master : source_.masters) {
        if (!master->theme || !partWriter_.hasPart(master->theme->partName))
            continue;
        const opc::Part theme = partWriter_.getPart(master->theme->partName);
        const std::wstring name = partWriter_.chooseNameLike(L"/ppt/theme/theme1.xml");
        opc::Part copy = partWriter_.copyPart(theme, name, false);
        copyRelationships(theme, copy);
        partWriter_.addRelationship(masterName_, relationship::kTheme, name);
        return;
    }
}

void NotesParts::listMaster(DOMDocument& presentation) const {
    DOMElement* root = presentation.getDocumentElement();
    if (newMastersId_.empty() || findChild(root, xml::kNotesMasterIdLst))
        return;
    const DOMElement* masters = findChild(root, xml::kSldMasterIdLst);
    DOMElement* list = presentation.createElement(xml::kNotesMasterIdLst);
    root->insertBefore(list, masters ? masters->getNextSibling() : root->getFirstChild());
    setAttribute(appendElement(list, u"p:notesMasterId"), xml::kRId, newMastersId_);
}

} // namespace vellox::ppt
