#include "vellox/doctor/LayoutSurvey.h"

#include "vellox/doctor/DoctorCodes.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Lines.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/rules/ClassicRules.h"
#include "vellox/ppt/rules/OfficeRules.h"
#include "vellox/ppt/template/Kin.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <map>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr char kPackageOfClasses[] = "vellox.ppt.";

std::string getClassName(NodeType type) {
    const std::string full = getNodeKind(type).hostName;
    const std::string head = kPackageOfClasses;
    return full.compare(0, head.size(), head) == 0 ? full.substr(head.size()) : full;
}

// No number that a place can have is larger.
long long toEmu(const std::wstring& text) {
    constexpr double kMost = 9e15;
    const double number = str2double(text);
    return std::isfinite(number) ? static_cast<long long>(std::clamp(number, -kMost, kMost)) : 0;
}

std::optional<BoxEmu> toBox(const Place& place) {
    if (!place || !place->isWhole)
        return {};
    return BoxEmu{toEmu(place->x), toEmu(place->y), toEmu(place->cx), toEmu(place->cy)};
}

bool isWhole(const Place& place) {
    return place && place->isWhole;
}

std::set<const DOMElement*> findFilledByClassic(DOMDocument& layout) {
    const ClassicRules classic;
    std::set<const DOMElement*> filled;
    const DOMElement* element = findFirstShape(&layout, classic.findsTree());
    for (; element; element = element->getNextElementSibling())
        if (classic.fateOf(readFacts(*element)) == Fate::Empty)
            filled.insert(element);
    return filled;
}

SurveyedPlaceholder survey(DOMElement& element, const ShapeFacts& facts, const TemplateMaster& master) {
    const OfficeRules office;
    SurveyedPlaceholder found{&element, facts, readPlace(element), {}, {}};
    found.inherited = findKinsPlace(master, facts, office.findsKin());
    PlaceholderReport& report = found.report;
    report.name = facts.name;
    report.type = facts.placeholderType;
    report.index = facts.placeholderIndex;
    if (office.fateOf(facts) == Fate::Empty)
        report.kind = getClassName(office.classify(facts));
    report.isBoxInherited = !isWhole(found.own);
    report.box = toBox(isWhole(found.own) ? found.own : found.inherited);
    return found;
}

void nameThem(std::vector<SurveyedPlaceholder>& placeholders) {
    std::vector<NamedShape> page;
    std::vector<SurveyedPlaceholder*> named;
    for (SurveyedPlaceholder& placeholder : placeholders) {
        if (!placeholder.isOpen())
            continue;
        const Place& place = isWhole(placeholder.own) ? placeholder.own : placeholder.inherited;
        page.push_back({placeholder.facts.name, place.get()});
        named.push_back(&placeholder);
    }
    const Rules::Names names = OfficeRules().nameShapes(page);
    for (std::size_t i = 0; i < named.size(); ++i)
        named[i]->report.handle = names[i];
}

} // namespace

std::vector<SurveyedPlaceholder> surveyPlaceholders(DOMDocument& layout, const TemplateMaster& master) {
    std::vector<SurveyedPlaceholder> placeholders;
    const std::set<const DOMElement*> filled = findFilledByClassic(layout);
    DOMElement* element = findFirstShape(&layout, TreePath::ByName);
    for (; element; element = element->getNextElementSibling()) {
        const ShapeFacts facts = readFacts(*element);
        if (facts.element != ShapeElement::Shape || !facts.isPlaceholder)
            continue;
        placeholders.push_back(survey(*element, facts, master));
        placeholders.back().report.isFilledInClassic = filled.count(element) > 0;
    }
    nameThem(placeholders);
    return placeholders;
}

// Findings

namespace {

bool isBlank(wchar_t c) {
    return std::iswspace(static_cast<std::wint_t>(c)) != 0 || c == L'\xA0';
}

} // namespace

std::wstring cleanName(const std::wstring& name) {
    std::wstring clean;
    for (const wchar_t c : name)
        if (!isBlank(c))
            clean += c;
        else if (!clean.empty() && clean.back() != L' ')
            clean += L' ';
    while (!clean.empty() && clean.back() == L' ')
        clean.pop_back();
    return clean;
}

bool addNameFindings(const std::wstring& name, const std::wstring& part, const std::wstring& shape,
                     std::vector<Finding>& findings) {
    const DoctorCode* code = nullptr;
    if (std::all_of(name.begin(), name.end(), isBlank))
        code = &doctor::kEmptyName;
    else if (std::any_of(name.begin(), name.end(), endsLine))
        code = &doctor::kMultilineName;
    else if (isBlank(name.front()) || isBlank(name.back()))
        code = &doctor::kPaddedName;
    if (code)
        findings.push_back(makeDoctorFinding(*code, part, shape, {name}));
    return code != nullptr;
}

void addLayoutFindings(const LayoutReport& layout, const std::vector<SurveyedPlaceholder>& placeholders,
                       std::vector<Finding>& findings) {
    const auto add = [&](const DoctorCode& code, const std::wstring& shape, const std::wstring& word) {
        findings.push_back(makeDoctorFinding(code, layout.part, shape, {word}));
    };
    std::map<std::wstring, unsigned> names;
    std::map<std::pair<std::wstring, std::wstring>, unsigned> identities;
    bool isAnyOpen = false, isAnyFilled = false;
    for (const SurveyedPlaceholder& placeholder : placeholders) {
        isAnyOpen = isAnyOpen || placeholder.isOpen();
        isAnyFilled = isAnyFilled || placeholder.report.isFilledInClassic;
    }
    const bool isHidden = isAnyOpen && layout.hasBackground && !isAnyFilled;
    if (isHidden)
        add(doctor::kHiddenFromClassic, {}, layout.name);
    if (!layout.showsMasterShapes)
        add(doctor::kHiddenMaster, {}, layout.name);
    for (const SurveyedPlaceholder& placeholder : placeholders) {
        const PlaceholderReport& report = placeholder.report;
        const ShapeFacts& facts = placeholder.facts;
        if (facts.placeholderType == L"dt" && !facts.movesOn && !facts.text.empty())
            add(doctor::kFixedDate, report.name, facts.text);
        if (!placeholder.isOpen())
            continue;
        addNameFindings(report.name, layout.part, report.name, findings);
        if (++names[report.name] == 2 && !report.name.empty())
            add(doctor::kDuplicateName, report.name, report.name);
        if (++identities[{report.type, report.index.empty() ? L"0" : report.index}] == 2)
            add(doctor::kEqualPlaceholders, report.name, {});
        if (!isHidden && !report.isFilledInClassic)
            add(doctor::kUnfilledByClassic, report.name, report.type);
        if (!report.box)
            add(doctor::kNoPlace, report.name, {});
        else if (report.isBoxInherited)
            add(doctor::kInheritedPlace, report.name, {});
    }
}

} // namespace vellox::ppt
