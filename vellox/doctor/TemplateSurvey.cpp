#include "vellox/doctor/TemplateSurvey.h"

#include "vellox/doctor/FontCheck.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/rules/OfficeRules.h"
#include "vellox/ppt/template/Kin.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <array>
#include <xercesc/util/XMLString.hpp>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr wchar_t kStrictMainType[] =
    L"http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument";
constexpr wchar_t kMacroMark[] = L"macroEnabled";
constexpr const wchar_t* kMainTypeEnds[] = {
    L"presentationml.presentation.main+xml", L"presentationml.template.main+xml",
    L"presentationml.slideshow.main+xml",    L".presentation.macroEnabled.main+xml",
    L".template.macroEnabled.main+xml",      L".slideshow.macroEnabled.main+xml"};
constexpr const wchar_t* kMediaKinds[] = {L"/image", L"/video", L"/audio", L"/media"};

bool endsWith(const std::wstring& text, const std::wstring& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool isOff(const std::wstring& value) {
    return value == L"0" || value == L"false" || value == L"off";
}

constexpr const XMLCh* kUsualPrefixes[][2] = {{xml::kPresentationUri, xml::kXmlnsP},
                                              {xml::kDrawingUri, xml::kXmlnsA},
                                              {xml::kRelationshipsUri, xml::kXmlnsR}};

bool isUnusualDeclaration(const DOMNode& attribute) {
    const XMLCh* name = attribute.getNodeName();
    return XMLString::startsWith(name, u"xmlns") &&
           std::any_of(std::begin(kUsualPrefixes), std::end(kUsualPrefixes), [&](const auto& row) {
               return XMLString::equals(attribute.getNodeValue(), row[0]) && !XMLString::equals(name, row[1]);
           });
}

// The names of elements are compared as they are written. Some programs declare a namespace again further down.
bool hasUsualPrefixes(DOMDocument& document) {
    for (const DOMElement* element : getAllElements(&document)) {
        const DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
            if (isUnusualDeclaration(*attributes->item(i)))
                return false;
    }
    return true;
}

std::vector<DOMElement*> getListed(const DOMElement& root, const XMLCh* list, const XMLCh* item) {
    std::vector<DOMElement*> found;
    for (DOMElement* child : getChildElements(findChild(&root, list)))
        if (hasName(*child, item))
            found.push_back(child);
    return found;
}

} // namespace

bool TemplateSurvey::run(const LayoutVisitor& visit) {
    visit_ = visit;
    if (builder_.getRelationshipTarget(relationship::kOfficeDocument).empty() &&
        !builder_.getRelationshipTarget(kStrictMainType).empty()) {
        add(doctor::kStrictForm, {});
        return true;
    }
    if (!readMainPart())
        return false;
    const opc::Part presentation = builder_.getPart(mainPart_);
    const OwnedDocument document = read(presentation);
    const DOMElement* root = document->getDocumentElement();
    const DOMElement* size = findChild(root, xml::kSldSz);
    report_.slideWidth = static_cast<long long>(str2uint(getAttribute(size, xml::kCx)));
    report_.slideHeight = static_cast<long long>(str2uint(getAttribute(size, xml::kCy)));
    readSlides(presentation, *document.get());
    for (const DOMElement* entry : getListed(*root, xml::kSldMasterIdLst, xml::kSldMasterId))
        readMaster(presentation, getAttribute(entry, xml::kRId));
    readTableStyles(presentation);
    nameAll();
    judgeFonts();
    return true;
}

bool TemplateSurvey::readMainPart() {
    mainPart_ = builder_.getRelationshipTarget(relationship::kOfficeDocument);
    if (mainPart_.empty() || !builder_.hasPart(mainPart_))
        return false;
    const std::wstring type = builder_.getPart(mainPart_).getContentType().toString();
    if (type.find(kMacroMark) != std::wstring::npos)
        add(doctor::kMacros, mainPart_);
    return std::any_of(std::begin(kMainTypeEnds), std::end(kMainTypeEnds),
                       [&](const wchar_t* end) { return endsWith(type, end); });
}

// The document of a part. What is told of any part is told here.
OwnedDocument TemplateSurvey::read(const opc::Part& part) {
    OwnedDocument document(builder_.getDocument(part));
    if (!hasUsualPrefixes(*document.get()))
        add(doctor::kUnusualPrefixes, part.getName().toString());
    return document;
}

// Of slides only their layouts matter, and what they weigh.
void TemplateSurvey::readSlides(const opc::Part& presentation, DOMDocument& document) {
    for (const DOMElement* entry : getListed(*document.getDocumentElement(), xml::kSldIdLst, xml::kSldId)) {
        const opc::Part part =
            builder_.getPart(presentation.getRelationshipByID(getAttribute(entry, xml::kRId)));
        const std::wstring layout = builder_.getRelationshipTarget(part, relationship::kSlideLayout);
        if (!layout.empty() && builder_.hasPart(layout))
            usedLayouts_.insert(builder_.getPart(layout).getName().toString());
        noteMedia(part);
        ++report_.slides;
    }
    if (report_.slides > 0)
        add(doctor::kSampleSlides, mainPart_, std::to_wstring(report_.slides));
}

// Masters

void TemplateSurvey::readMaster(const opc::Part& presentation, const std::wstring& relationshipId) {
    const opc::Part part = builder_.getPart(presentation.getRelationshipByID(relationshipId));
    MasterReport& master = report_.masters.emplace_back();
    master.part = part.getName().toString();
    const OwnedDocument document = read(part);
    readTheme(part, master);
    noteFonts(*document.get());
    noteMedia(part);
    TemplateMaster kin;
    DOMElement* shape = findFirstShape(document.get(), TreePath::ByName);
    for (; shape; shape = shape->getNextElementSibling()) {
        const Place place = readPlace(*shape);
        const DOMElement* xfrm = findDescendant(shape, {xml::kSpPr, xml::kAXfrm});
        if (place && xfrm && xfrm->hasAttributes())
            turned_.emplace(place.get(), place);
        addKin(kin, readFacts(*shape), place);
    }
    readLayouts(part, *document.get(), master, kin);
}

void TemplateSurvey::readTheme(const opc::Part& part, MasterReport& master) {
    const std::wstring target = builder_.getRelationshipTarget(part, relationship::kTheme);
    themeParts_.push_back(target);
    if (target.empty())
        return;
    const OwnedDocument document(builder_.getDocument(builder_.getPart(target)));
    const DOMElement* root = document->getDocumentElement();
    master.name = getAttribute(root, xml::kName);
    const DOMElement* elements = findChild(root, u"a:themeElements");
    for (const DOMElement* colour : getChildElements(findChild(elements, u"a:clrScheme"))) {
        const DOMElement* value = colour->getFirstElementChild();
        const bool isOfSystem = value && hasName(*value, u"a:sysClr");
        const std::wstring name = opc::toWideString(colour->getNodeName());
        const std::wstring text = getAttribute(value, isOfSystem ? u"lastClr" : xml::kVal);
        if (!text.empty())
            master.colours.emplace_back(name.substr(name.find(L':') + 1), text);
    }
    const auto findFont = [&](const XMLCh* name) {
        return getAttribute(findDescendant(elements, {u"a:fontScheme", name, xml::kALatin}), xml::kTypeface);
    };
    master.headingFont = findFont(u"a:majorFont");
    master.bodyFont = findFont(u"a:minorFont");
    for (const std::wstring& font : {master.headingFont, master.bodyFont})
        if (!font.empty())
            fonts_.insert(font);
}

// In the order of the master's list; what that doesn't have comes last.
void TemplateSurvey::readLayouts(const opc::Part& part, DOMDocument& document, MasterReport& master,
                                 const TemplateMaster& kin) {
    std::vector<std::wstring> ids;
    for (const DOMElement* entry : getElementsByName(&document, xml::kSldLayoutId))
        ids.push_back(getAttribute(entry, xml::kRId));
    for (const opc::Relationship& row : builder_.getRelationships(part, relationship::kSlideLayout))
        ids.push_back(row.getID());
    for (const std::wstring& id : ids)
        if (!id.empty()) // written with another prefix: the list of relationships has it, too
            readLayout(builder_.getPart(part.getRelationshipByID(id)), master, kin);
}

void TemplateSurvey::readLayout(const opc::Part& part, MasterReport& master, const TemplateMaster& kin) {
    SurveyedLayout layout;
    layout.report.part = part.getName().toString();
    if (!knownLayouts_.insert(layout.report.part).second)
        return;
    layout.document = read(part);
    const DOMElement* root = layout.document->getDocumentElement();
    const DOMElement* data = findChild(root, xml::kCSld);
    layout.report.name = getAttribute(data, xml::kName);
    layout.report.type = getAttribute(root, xml::kType);
    layout.report.showsMasterShapes = !isOff(getAttribute(root, xml::kShowMasterSp));
    layout.report.hasBackground = findChild(data, xml::kBg) != nullptr;
    layout.placeholders = surveyPlaceholders(*layout.document.get(), kin);
    builder_.charge(opc::kShapeCost * (1 + layout.placeholders.size()));
    for (const SurveyedPlaceholder& placeholder : layout.placeholders)
        layout.report.placeholders.push_back(placeholder.report);
    addNameFindings(layout.report.name, layout.report.part, {}, report_.findings);
    addLayoutFindings(layout.report, layout.placeholders, report_.findings);
    noteFonts(*layout.document.get());
    noteMedia(part);
    if (visit_)
        visit_(layout, master);
    master.layouts.push_back(std::move(layout.report));
}

void TemplateSurvey::readTableStyles(const opc::Part& presentation) {
    const std::wstring target = builder_.getRelationshipTarget(presentation, relationship::kTableStyles);
    if (target.empty())
        return;
    const OwnedDocument document(builder_.getDocument(builder_.getPart(target)));
    for (const DOMElement* style : getElementsByName(document.get(), xml::kATblStyle))
        report_.tableStyles.push_back(
            {getAttribute(style, xml::kStyleName), getAttribute(style, xml::kStyleId)});
}

// What parts have in common

// A name such as "+mn-lt" stands for a font of the theme.
void TemplateSurvey::noteFonts(DOMDocument& document) {
    for (const DOMElement* font : getElementsByName(&document, xml::kALatin)) {
        const std::wstring name = getAttribute(font, xml::kTypeface);
        if (!name.empty() && name.front() != L'+')
            fonts_.insert(name);
    }
}

namespace {

constexpr unsigned long long kMegabyte = 1024ULL * 1024;
constexpr unsigned long long kHugeBytes = 5 * kMegabyte;
constexpr unsigned long long kMostMediaRead =
    256 * kMegabyte; // of all together: small files can hold large ones

bool isOfMedia(const opc::Relationship& row) {
    return !row.isExternal() &&
           std::any_of(std::begin(kMediaKinds), std::end(kMediaKinds),
                       [&](const wchar_t* kind) { return endsWith(row.getType(), kind); });
}

} // namespace

void TemplateSurvey::noteMedia(const opc::Part& part) {
    for (const opc::Relationship& row : part.getRelationships()) {
        if (!isOfMedia(row))
            continue;
        const std::wstring target = row.getTargetURI().toString();
        if (!builder_.hasPart(target))
            continue;
        const opc::Part media = builder_.getPart(target);
        const std::wstring name = media.getName().toString();
        if (knownMedia_.insert(name).second && isHuge(media))
            add(doctor::kHugeMedia, name, std::to_wstring(kHugeBytes / kMegabyte));
    }
}

bool TemplateSurvey::isHuge(opc::Part part) {
    opc::InputStream& stream = part.getInputStream();
    std::array<unsigned char, 65536> block;
    unsigned long long size = 0;
    while (size <= kHugeBytes && mediaRead_ <= kMostMediaRead) {
        const auto count = stream.read(block.data(), block.size());
        if (count == 0)
            break;
        size += count;
        mediaRead_ += count;
    }
    return size > kHugeBytes;
}

// By which the profile "office" finds them, and what of that classic doesn't.
void TemplateSurvey::nameAll() {
    const OfficeRules office;
    Rules::Names masters;
    for (const MasterReport& master : report_.masters)
        masters.push_back(master.name);
    const Rules::Names masterHandles = office.nameMasters(masters);
    bool hasLayouts = false;
    for (std::size_t i = 0; i < report_.masters.size(); ++i) {
        MasterReport& master = report_.masters[i];
        master.handle = masterHandles[i];
        if (master.handle != master.name)
            add(doctor::kDuplicateMasterName, master.part, master.name);
        Rules::Names layouts;
        for (const LayoutReport& layout : master.layouts)
            layouts.push_back(layout.name);
        const Rules::Names handles = office.nameLayouts(layouts);
        for (std::size_t j = 0; j < handles.size(); ++j) {
            master.layouts[j].handle = handles[j];
            if (handles[j] != layouts[j])
                add(doctor::kDuplicateLayoutName, master.layouts[j].part, layouts[j]);
        }
        hasLayouts = hasLayouts || !handles.empty();
    }
    if (!hasLayouts)
        add(doctor::kNoLayouts, mainPart_);
}

void TemplateSurvey::judgeFonts() {
    const InstalledFonts installed;
    for (const std::wstring& font : fonts_) {
        report_.fonts.push_back({font, installed.has(font)});
        if (report_.fonts.back().isInstalled == false)
            add(doctor::kMissingFont, {}, font);
    }
}

} // namespace vellox::ppt
