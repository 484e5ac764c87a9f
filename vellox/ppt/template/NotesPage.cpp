#include "vellox/ppt/template/NotesPage.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Streams.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <boost/make_shared.hpp>
#include <sstream>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr char kNotes[] =
    R"(<p:notes xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
    R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")"
    R"( xmlns:p="http://schemas.openxmlformats.org/presentationml/2006/main">)"
    R"(<p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>)"
    R"(<p:sp><p:nvSpPr><p:cNvPr id="2" name="Slide Image"/>)"
    R"(<p:cNvSpPr><a:spLocks noChangeAspect="1" noGrp="1" noRot="1"/></p:cNvSpPr>)"
    R"(<p:nvPr><p:ph type="sldImg"/></p:nvPr></p:nvSpPr><p:spPr/></p:sp>)"
    R"(<p:sp><p:nvSpPr><p:cNvPr id="3" name="Notes"/><p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr>)"
    R"(<p:nvPr><p:ph idx="1" type="body"/></p:nvPr></p:nvSpPr><p:spPr/>)"
    R"(<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p></p:txBody></p:sp></p:spTree></p:cSld>)"
    R"(<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:notes>)";

constexpr char kMaster[] =
    R"(<p:notesMaster xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
    R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")"
    R"( xmlns:p="http://schemas.openxmlformats.org/presentationml/2006/main">)"
    R"(<p:cSld><p:bg><p:bgRef idx="1001"><a:schemeClr val="bg1"/></p:bgRef></p:bg><p:spTree>)"
    R"(<p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>)"
    R"(<p:sp><p:nvSpPr><p:cNvPr id="2" name="Slide Image"/>)"
    R"(<p:cNvSpPr><a:spLocks noChangeAspect="1" noGrp="1" noRot="1"/></p:cNvSpPr>)"
    R"(<p:nvPr><p:ph idx="2" type="sldImg"/></p:nvPr></p:nvSpPr>)"
    R"(<p:spPr><a:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/></a:xfrm><a:prstGeom prst="rect"><a:avLst/>)"
    R"(</a:prstGeom><a:noFill/><a:ln w="12700"><a:solidFill><a:prstClr val="black"/></a:solidFill></a:ln></p:spPr></p:sp>)"
    R"(<p:sp><p:nvSpPr><p:cNvPr id="3" name="Notes"/><p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr>)"
    R"(<p:nvPr><p:ph idx="3" sz="quarter" type="body"/></p:nvPr></p:nvSpPr>)"
    R"(<p:spPr><a:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/></a:xfrm><a:prstGeom prst="rect"><a:avLst/>)"
    R"(</a:prstGeom></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p></p:txBody></p:sp>)"
    R"(</p:spTree></p:cSld><p:clrMap accent1="accent1" accent2="accent2" accent3="accent3" accent4="accent4")"
    R"( accent5="accent5" accent6="accent6" bg1="lt1" bg2="lt2" folHlink="folHlink" hlink="hlink" tx1="dk1" tx2="dk2"/>)"
    R"(<p:notesStyle><a:lvl1pPr><a:defRPr sz="1200"/></a:lvl1pPr></p:notesStyle></p:notesMaster>)";

OwnedDocument parse(const char* markup) {
    opc::XercesProcess xerces;
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(markup));
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    OwnedDocument document(opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
    document->setXmlStandalone(true);
    return document;
}

DOMElement* findBody(DOMDocument* document) {
    const DOMElement* tree = findDescendant(document->getDocumentElement(), {xml::kCSld, xml::kSpTree});
    for (DOMElement* shape : getChildElements(tree)) {
        const DOMElement* holder = findDescendant(shape, {xml::kNvSpPr, xml::kNvPr, xml::kPh});
        if (getAttribute(holder, xml::kType) == L"body")
            return findChild(shape, xml::kTxBody);
    }
    return nullptr;
}

// A page with nothing but an image is no page to read from, and becomes a plain one.
OwnedDocument copyOrMake(const TemplateNotes* notes) {
    if (notes && findBody(notes->document.get()))
        return copyDocument(notes->document);
    return parse(kNotes);
}

void setBox(DOMElement* xfrm, double x, double y, double cx, double cy) {
    const auto emu = [](double value) { return num2str(truncateToInt(value)); };
    setAttribute(findChild(xfrm, xml::kAOff), xml::kX, emu(x));
    setAttribute(findChild(xfrm, xml::kAOff), xml::kY, emu(y));
    setAttribute(findChild(xfrm, xml::kAExt), xml::kCx, emu(cx));
    setAttribute(findChild(xfrm, xml::kAExt), xml::kCy, emu(cy));
}

} // namespace

std::wstring readNotes(const TemplateNotes* notes) {
    return notes ? readBody(findBody(notes->document.get())) : std::wstring();
}

boost::shared_ptr<const TemplateNotes> changeNotes(const TemplateNotes* notes, const std::wstring& text) {
    const auto changed = boost::make_shared<TemplateNotes>();
    changed->document = copyOrMake(notes);
    replaceBody(*findBody(changed->document.get()), text);
    changed->isChanged = true;
    return changed;
}

// The image in the upper half, the text in the lower, a tenth of the page free around them.
OwnedDocument makeNotesMaster(const std::wstring& width, const std::wstring& height) {
    OwnedDocument document = parse(kMaster);
    const double cx = str2double(width), cy = str2double(height);
    const std::vector<DOMElement*> boxes = getElementsByName(document.get(), xml::kAXfrm);
    setBox(boxes[0], cx * 0.1, cy * 0.1, cx * 0.8, cy * 0.35);
    setBox(boxes[1], cx * 0.1, cy * 0.5, cx * 0.8, cy * 0.4);
    return document;
}

} // namespace vellox::ppt
