#include "vellox/ppt/writers/ChartDocument.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/NumberText.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/writers/ChartLooks.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr std::u16string_view kKinds[] = {u"barChart",   u"bar3DChart",    u"lineChart",    u"line3DChart",
                                          u"areaChart",  u"area3DChart",   u"pieChart",     u"pie3DChart",
                                          u"ofPieChart", u"doughnutChart", u"scatterChart", u"radarChart"};

// What stands in a series, in the order of the schema, of all kinds together.
constexpr std::u16string_view kSequence[] = {
    u"idx",    u"order",     u"tx",  u"spPr",  u"invertIfNegative", u"pictureOptions",
    u"marker", u"explosion", u"dPt", u"dLbls", u"trendline",        u"errBars",
    u"cat",    u"xVal",      u"val", u"yVal",  u"smooth",           u"shape",
    u"extLst"};

// What stands in a group of series ahead of them.
constexpr std::u16string_view kAhead[] = {u"barDir",     u"grouping",     u"varyColors",
                                          u"radarStyle", u"scatterStyle", u"ofPieType"};

template <std::size_t kCount>
std::size_t findRank(const std::u16string_view (&list)[kCount], std::u16string_view name) {
    return static_cast<std::size_t>(std::find(std::begin(list), std::end(list), name) - std::begin(list));
}

template <std::size_t kCount> bool isIn(const std::u16string_view (&list)[kCount], std::u16string_view name) {
    return findRank(list, name) < kCount;
}

// Groups are told by the end of their names: others than those above can't be filled.
bool isGroup(std::u16string_view local) {
    constexpr std::u16string_view kEnd = u"Chart";
    return local.size() > kEnd.size() && local.substr(local.size() - kEnd.size()) == kEnd;
}

std::wstring toColumn(std::size_t index) {
    constexpr std::size_t kLetters = 26;
    std::wstring letters;
    for (++index; index > 0; index = (index - 1) / kLetters)
        letters.insert(letters.begin(), static_cast<wchar_t>(L'A' + (index - 1) % kLetters));
    return letters;
}

// "'A sheet'!$B$2:$B$5". The quotes are for names such as "Q1", which a cell has, too.
std::wstring toFormula(const std::wstring& sheet, std::size_t column, std::size_t first, std::size_t last) {
    std::wstring quoted = sheet;
    replaceAll(quoted, L"'", L"''");
    const std::wstring place = L"$" + toColumn(column) + L"$";
    const std::wstring start = L"'" + quoted + L"'!" + place + std::to_wstring(first);
    return first == last ? start : start + L":" + place + std::to_wstring(last);
}

bool canBeSheet(const std::wstring& name) {
    constexpr std::size_t kLongest = 31;
    return !name.empty() && name.size() <= kLongest &&
           name.find_first_of(L"[]:*?/\\") == std::wstring::npos && name.front() != L'\'' &&
           name.back() != L'\'' && opc::dropForbiddenCharacters(name) == name;
}

std::wstring readText(const DOMElement* element) {
    return element ? opc::toWideString(element->getTextContent()) : std::wstring();
}

} // namespace

ChartDocument::ChartDocument(DOMDocument& document)
    : document_(document),
      root_(document.getDocumentElement()) {
    const std::u16string_view name = root_->getNodeName();
    const std::size_t colon = name.find(u':');
    prefix_ =
        colon == std::u16string_view::npos ? std::u16string() : std::u16string(name.substr(0, colon + 1));
    plotArea_ = findLocal(findLocal(root_, u"chart"), u"plotArea");
}

std::wstring ChartDocument::findUnsupportedKind() const {
    bool hasGroup = false;
    for (const DOMElement* child : getChildElements(plotArea_)) {
        const std::u16string_view local = getLocalName(*child);
        if (isGroup(local) && !isIn(kKinds, local))
            return opc::toWideString(child->getNodeName());
        hasGroup = hasGroup || isGroup(local);
    }
    return hasGroup ? std::wstring() : std::wstring(opc::toWideString(root_->getNodeName()));
}

std::wstring ChartDocument::findSheetName() const {
    for (const Series& series : readSeries())
        for (const DOMElement* child : getChildElements(series.element))
            for (const DOMElement* reference : getChildElements(child)) {
                std::wstring formula = readText(findLocal(reference, u"f"));
                const std::size_t end = formula.rfind(L'!');
                if (end == std::wstring::npos)
                    continue;
                formula.erase(end);
                if (formula.size() > 1 && formula.front() == L'\'' && formula.back() == L'\'')
                    formula = formula.substr(1, formula.size() - 2);
                replaceAll(formula, L"''", L"'");
                formula.erase(0, formula.rfind(L']') + 1); // a workbook of somewhere else
                if (canBeSheet(formula))
                    return formula;
            }
    return L"Sheet1";
}

// Series

std::vector<ChartDocument::Series> ChartDocument::readSeries() const {
    std::vector<Series> series;
    for (DOMElement* group : getChildElements(plotArea_))
        for (DOMElement* element :
             isGroup(getLocalName(*group)) ? getChildElements(group) : std::vector<DOMElement*>()) {
            if (getLocalName(*element) != u"ser")
                continue;
            const DOMElement* text = findLocal(element, u"tx");
            const DOMElement* cache = findLocal(findLocal(text, u"strRef"), u"strCache");
            const DOMElement* value =
                cache ? findLocal(findLocal(cache, u"pt"), u"v") : findLocal(text, u"v");
            series.push_back({group, element, str2uint(getAttribute(findLocal(element, u"order"), xml::kVal)),
                              readText(value)});
        }
    std::stable_sort(series.begin(), series.end(),
                     [](const Series& a, const Series& b) { return a.order < b.order; });
    return series;
}

// A series goes to that of its name, or else to the first that nobody asks for by name; there may be too few.
std::vector<ChartDocument::Series> ChartDocument::matchSeries(const ChartData& data) {
    const std::vector<Series> present = readSeries();
    std::vector<const Series*> chosen(data.series.size());
    std::set<const Series*> taken;
    for (std::size_t i = 0; i < chosen.size(); ++i)
        for (const Series& each : present)
            if (!chosen[i] && each.name == data.series[i].name && taken.insert(&each).second)
                chosen[i] = &each;
    auto next = present.begin();
    std::vector<Series> matched;
    for (const Series* choice : chosen) {
        while (!choice && next != present.end() && taken.count(&*next) > 0)
            ++next;
        if (!choice && next != present.end())
            choice = &*next++;
        matched.push_back(choice ? *choice : addSeries(present, matched.size()));
    }
    for (const Series& each : present)
        removeNode(each.element);
    return matched;
}

// The look of the last one, in the colours that come next.
ChartDocument::Series ChartDocument::addSeries(const std::vector<Series>& present, unsigned long index) {
    if (present.empty()) {
        for (DOMElement* group : getChildElements(plotArea_))
            if (isIn(kKinds, getLocalName(*group)))
                return {group, make(u"ser"), index, {}};
    }
    const Series& last = present.back();
    auto* element = static_cast<DOMElement*>(last.element->cloneNode(true));
    continueLook(element, index);
    setValue(element, u"idx", index);
    return {last.group, element, index, {}};
}

// Behind what has to stand ahead of them, in their own order.
void ChartDocument::arrangeSeries(const std::vector<Series>& series) const {
    for (const Series& each : series) {
        DOMElement* place = each.group->getFirstElementChild();
        while (place && (isIn(kAhead, getLocalName(*place)) || getLocalName(*place) == u"ser"))
            place = place->getNextElementSibling();
        each.group->insertBefore(each.element, place);
    }
}

void ChartDocument::setData(const ChartData& data, const std::wstring& sheetName) {
    const std::vector<Series> series = matchSeries(data);
    arrangeSeries(series);
    std::set<std::wstring> indices; // colours go by them
    for (std::size_t i = 0; i < series.size(); ++i) {
        DOMElement* index = findLocal(series[i].element, u"idx");
        std::wstring value = index ? getAttribute(index, xml::kVal) : std::wstring();
        for (std::size_t next = i; value.empty() || !indices.insert(value).second; ++next)
            value = std::to_wstring(next);
        setValue(series[i].element, u"idx", str2uint(value));
        writeSeries(series[i], i, data, sheetName);
    }
}

void ChartDocument::writeSeries(const Series& target, std::size_t position, const ChartData& data,
                                const std::wstring& sheetName) {
    const ChartSeries& source = data.series[position];
    const std::size_t column = position + 1, last = data.categories.size() + 1;
    const bool isScatter = getLocalName(*target.group) == u"scatterChart";
    const std::u16string_view categories = isScatter ? u"xVal" : u"cat",
                              values = isScatter ? u"yVal" : u"val";
    DOMElement* series = target.element;
    const DOMElement* former = findLocal(findLocal(findLocal(series, values), u"numRef"), u"numCache");
    const std::wstring formatCode = readText(findLocal(former, u"formatCode"));

    setValue(series, u"order", position);
    writeReference(renew(series, u"tx"), toFormula(sheetName, column, 1, 1), {source.name}, false, {});
    std::vector<std::wstring> texts;
    const bool areNumbers = data.hasNumbersAsCategories();
    for (const ChartCategory& category : data.categories)
        texts.push_back(areNumbers ? toShortest(*category.number) : category.text);
    writeReference(renew(series, categories), toFormula(sheetName, 0, 2, last), texts, areNumbers,
                   L"General");
    texts.clear();
    for (const double value : source.values)
        texts.push_back(std::isfinite(value) ? toShortest(value) : std::wstring());
    writeReference(renew(series, values), toFormula(sheetName, column, 2, last), texts, true,
                   formatCode.empty() ? L"General" : formatCode);
    limitPoints(series, data.categories.size());
}

void ChartDocument::writeReference(DOMElement* parent, const std::wstring& formula,
                                   const std::vector<std::wstring>& values, bool areNumbers,
                                   const std::wstring& formatCode) {
    DOMElement* reference = append(parent, areNumbers ? u"numRef" : u"strRef");
    appendText(append(reference, u"f"), formula);
    DOMElement* cache = append(reference, areNumbers ? u"numCache" : u"strCache");
    if (areNumbers)
        appendText(append(cache, u"formatCode"), formatCode);
    setAttribute(append(cache, u"ptCount"), xml::kVal, std::to_wstring(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (areNumbers && values[i].empty())
            continue; // a gap
        DOMElement* point = append(cache, u"pt");
        setAttribute(point, xml::kIdx, std::to_wstring(i));
        appendText(append(point, u"v"), values[i]);
    }
}

// The workbook

std::wstring ChartDocument::getWorkbookId() const {
    return getAttribute(findLocal(root_, u"externalData"), xml::kRId);
}

void ChartDocument::setWorkbookId(const std::wstring& relationshipId) {
    DOMElement* data = findLocal(root_, u"externalData");
    if (!data) {
        data = make(u"externalData");
        DOMElement* place = findLocal(root_, u"chart");
        constexpr std::u16string_view kBehindChart[] = {u"spPr", u"txPr"};
        do {
            place = place->getNextElementSibling();
        } while (place && isIn(kBehindChart, getLocalName(*place)));
        root_->insertBefore(data, place);
    }
    root_->setAttribute(xml::kXmlnsR, xml::kRelationshipsUri);
    setAttribute(data, xml::kRId, relationshipId);
}

// Elements

DOMElement* ChartDocument::make(std::u16string_view local) const {
    return document_.createElement(makeName(local).c_str());
}

DOMElement* ChartDocument::append(DOMElement* parent, std::u16string_view local) const {
    DOMElement* child = make(local);
    parent->appendChild(child);
    return child;
}

DOMElement* ChartDocument::renew(DOMElement* series, std::u16string_view local) const {
    removeLocal(series, local);
    DOMElement* child = make(local);
    insertInSequence(series, child);
    return child;
}

void ChartDocument::setValue(DOMElement* series, std::u16string_view local, unsigned long value) const {
    DOMElement* child = findLocal(series, local);
    if (!child) {
        child = make(local);
        insertInSequence(series, child);
    }
    setAttribute(child, xml::kVal, std::to_wstring(value));
}

void ChartDocument::insertInSequence(DOMElement* series, DOMElement* child) const {
    const std::size_t rank = findRank(kSequence, getLocalName(*child));
    DOMElement* former = nullptr;
    for (DOMElement* each = series->getFirstElementChild();
         each && findRank(kSequence, getLocalName(*each)) <= rank; each = each->getNextElementSibling())
        former = each;
    // Right behind it, so that white space and other text keep their place, too.
    series->insertBefore(child, former ? former->getNextSibling() : series->getFirstChild());
}

} // namespace vellox::ppt
