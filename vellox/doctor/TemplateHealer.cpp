#include "vellox/doctor/TemplateHealer.h"

#include "vellox/doctor/SpeakingNames.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/rules/OfficeRules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <deque>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

TemplateHealer::TemplateHealer(boost::shared_ptr<OPCPackage> package, std::wstring path)
    : package_(std::move(package)),
      path_(std::move(path)),
      builder_(*package_),
      writer_(package_),
      survey_(builder_, path_) {}

std::vector<Finding> TemplateHealer::heal() {
    std::deque<Patient> patients;
    const auto keep = [&](SurveyedLayout& layout, const MasterReport&) {
        patients.push_back({{layout.report, std::move(layout.document), layout.placeholders}});
    };
    if (!survey_.run(keep) || survey_.getMainPart().empty())
        raise(ppt_error::invalidTemplate(path_));
    renameMasters();
    auto next = patients.begin(); // they came master by master
    for (const MasterReport& master : survey_.getReport().masters) {
        std::vector<Patient*> own;
        for (std::size_t i = 0; i < master.layouts.size(); ++i)
            own.push_back(&*next++);
        healMaster(master, own);
    }
    PPTPartWriter(package_).alignMainType(survey_.getMainPart(), ClassicRules());
    return std::move(changes_);
}

void TemplateHealer::healMaster(const MasterReport& master, const std::vector<Patient*>& patients) {
    Rules::Names names;
    for (const LayoutReport& layout : master.layouts) {
        const std::wstring name = cleanName(layout.name);
        names.push_back(name.empty() ? getLayoutWord(layout.type) : name);
    }
    names = OfficeRules().nameLayouts(names);
    for (std::size_t i = 0; i < patients.size(); ++i) {
        Patient& patient = *patients[i];
        renameLayout(patient, names[i]);
        dropUsualTypes(patient);
        renamePlaceholders(patient);
        givePlaces(patient);
        giveIndexes(patient);
        if (patient.isChanged)
            writer_.writeDocument(patient.layout.report.part, patient.layout.document.get());
    }
}

void TemplateHealer::note(Patient& patient, const DoctorCode& code, const std::wstring& shape,
                          std::initializer_list<std::wstring> words) {
    patient.isChanged = true;
    changes_.push_back(makeDoctorFinding(code, patient.layout.report.part, shape, words));
}

// Names

// A master bears the name of its theme.
void TemplateHealer::renameMasters() {
    const std::vector<MasterReport>& masters = survey_.getReport().masters;
    Rules::Names names;
    for (const MasterReport& master : masters)
        names.push_back(cleanName(master.name));
    names = OfficeRules().nameMasters(names);
    std::set<std::wstring> done;
    for (std::size_t i = 0; i < masters.size(); ++i) {
        const std::wstring& part = survey_.getThemeParts()[i];
        if (part.empty() || !done.insert(part).second || names[i] == masters[i].name)
            continue;
        const OwnedDocument document(builder_.getDocument(part));
        setAttribute(document->getDocumentElement(), xml::kName, names[i]);
        writer_.writeDocument(part, document.get());
        changes_.push_back(
            makeDoctorFinding(doctor::kRenamedMaster, masters[i].part, {}, {masters[i].name, names[i]}));
    }
}

void TemplateHealer::renameLayout(Patient& patient, const std::wstring& name) {
    const std::wstring former = patient.layout.report.name;
    DOMElement* data = findChild(patient.layout.document->getDocumentElement(), xml::kCSld);
    if (name == former || !data)
        return;
    setAttribute(data, xml::kName, name);
    note(patient, doctor::kRenamedLayout, {}, {former, name});
}

namespace {

// Some programs write placeholders without id and name, which readers overlook in a layout.
DOMElement* requireIdentity(DOMElement& shape) {
    DOMElement* nonVisual = findNonVisual(shape);
    DOMElement* properties = findChild(nonVisual, xml::kCNvPr);
    if (properties)
        return properties;
    DOMDocument* document = shape.getOwnerDocument();
    properties = document->createElement(xml::kCNvPr);
    setAttribute(properties, xml::kId, num2str(findGreatestId(document) + 1));
    nonVisual->insertBefore(properties, nonVisual->getFirstChild());
    return properties;
}

} // namespace

void TemplateHealer::renamePlaceholders(Patient& patient) {
    std::vector<PlaceholderReport> reports;
    std::vector<SurveyedPlaceholder*> open;
    for (SurveyedPlaceholder& placeholder : patient.layout.placeholders) {
        if (!placeholder.isOpen())
            continue;
        reports.push_back(placeholder.report);
        open.push_back(&placeholder);
    }
    const std::vector<std::wstring> names = makeSpeakingNames(reports);
    for (std::size_t i = 0; i < open.size(); ++i) {
        PlaceholderReport& report = open[i]->report;
        if (names[i] == report.name)
            continue;
        setAttribute(requireIdentity(*open[i]->element), xml::kName, names[i]);
        note(patient, doctor::kRenamedPlaceholder, names[i], {report.name, names[i]});
        report.name = names[i];
    }
}

// Places

namespace {

DOMElement* requireProperties(DOMElement& shape) {
    DOMElement* properties = findChild(&shape, xml::kSpPr);
    if (properties)
        return properties;
    const DOMElement* nonVisual = findNonVisual(shape);
    properties = shape.getOwnerDocument()->createElement(xml::kSpPr);
    shape.insertBefore(properties, nonVisual->getNextSibling());
    return properties;
}

// Behind what stands there already: a:off comes first, and then a:ext.
void writePlace(DOMElement& shape, const PlaceText& place) {
    DOMElement* properties = requireProperties(shape);
    DOMElement* xfrm = findChild(properties, xml::kAXfrm);
    if (!xfrm) {
        xfrm = shape.getOwnerDocument()->createElement(xml::kAXfrm);
        properties->insertBefore(xfrm, properties->getFirstChild());
    }
    for (DOMElement* child : getChildElements(xfrm))
        xfrm->removeChild(child);
    DOMElement* off = appendElement(xfrm, xml::kAOff);
    setAttribute(off, xml::kX, place.x);
    setAttribute(off, xml::kY, place.y);
    DOMElement* ext = appendElement(xfrm, xml::kAExt);
    setAttribute(ext, xml::kCx, place.cx);
    setAttribute(ext, xml::kCy, place.cy);
}

DOMElement* findPh(const DOMElement& shape) {
    return findDescendant(findNonVisual(shape), {xml::kNvPr, xml::kPh});
}

} // namespace

// A place that is turned or mirrored stays with the master: it is more than its four numbers.
void TemplateHealer::givePlaces(Patient& patient) {
    for (SurveyedPlaceholder& placeholder : patient.layout.placeholders) {
        const Place& inherited = placeholder.inherited;
        const bool isOwn = placeholder.own && placeholder.own->isWhole;
        if (!placeholder.isOpen() || isOwn || !inherited || !inherited->isWhole ||
            survey_.isTurned(*inherited))
            continue;
        writePlace(*placeholder.element, *inherited);
        note(patient, doctor::kGivenPlace, placeholder.report.name, {});
    }
}

// What a slide has is tied to its layout by the index.
void TemplateHealer::giveIndexes(Patient& patient) {
    if (survey_.isLayoutUsed(patient.layout.report.part))
        return;
    constexpr unsigned kLeastFree = 10; // below are those of the usual placeholders
    unsigned free = kLeastFree;
    for (const SurveyedPlaceholder& placeholder : patient.layout.placeholders) {
        const unsigned index = str2uint(placeholder.report.index);
        if (index < 1000000)
            free = std::max(free, index + 1);
    }
    std::set<std::pair<std::wstring, std::wstring>> known;
    for (SurveyedPlaceholder& placeholder : patient.layout.placeholders) {
        PlaceholderReport& report = placeholder.report;
        if (known.insert({report.type, report.index.empty() ? L"0" : report.index}).second)
            continue;
        report.index = num2str(free++);
        known.insert({report.type, report.index});
        setAttribute(findPh(*placeholder.element), xml::kIdx, report.index);
        note(patient, doctor::kGivenIndex, report.name, {report.index});
    }
}

void TemplateHealer::dropUsualTypes(Patient& patient) {
    for (SurveyedPlaceholder& placeholder : patient.layout.placeholders) {
        if (placeholder.report.type != L"obj")
            continue;
        findPh(*placeholder.element)->removeAttribute(xml::kType);
        placeholder.report.type.clear();
        note(patient, doctor::kUsualType, placeholder.report.name, {});
    }
}

} // namespace vellox::ppt
