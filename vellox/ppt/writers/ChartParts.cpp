#include "vellox/ppt/writers/ChartParts.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/writers/ChartDocument.h"
#include "vellox/ppt/writers/ChartWorkbook.h"
#include "vellox/ppt/writers/PPTPartWriter.h"

#include <algorithm>

namespace vellox::ppt {

ChartParts::ChartParts(PPTPartWriter& partWriter)
    : partWriter_(partWriter),
      parser_(opc::XercesHelper::createParser()) {}

void ChartParts::write() {
    for (const Task& task : tasks_)
        write(task);
}

void ChartParts::write(const Task& task) {
    const ChartRecord& chart = task.chart;
    const std::wstring partName = findPart(task);
    if (partName.empty())
        raise(ppt_error::unsupportedChart(std::to_wstring(task.slideNumber), chart.name, L"-"));
    const opc::DocumentScope source = read(partName);
    ChartDocument document(*source);
    const std::wstring kind = document.findUnsupportedKind();
    if (!kind.empty())
        raise(ppt_error::unsupportedChart(std::to_wstring(task.slideNumber), chart.name, kind));
    const std::wstring sheet = document.findSheetName();
    document.setData(*chart.data, sheet);

    opc::Part part = partWriter_.getPart(partName);
    std::wstring workbook = findOwnWorkbook(part, document.getWorkbookId());
    if (workbook.empty()) {
        workbook = makeWorkbookPart();
        document.setWorkbookId(partWriter_.addRelationship(partName, relationship::kPackage, workbook));
    }
    workbooks_.insert(workbook);
    partWriter_.writeMarkup(workbook, makeChartWorkbook(chart.name, sheet, *chart.data));
    partWriter_.writeDocument(partName, source.get());
}

// What a template leads to needn't be there, and needn't be a chart.
std::wstring ChartParts::findPart(const Task& task) const {
    const opc::Part slide = partWriter_.getPart(task.slidePartName);
    for (const opc::Relationship& row : slide.getRelationships()) {
        if (row.getID() != task.chart.relationshipId || row.isExternal())
            continue;
        const std::wstring name = row.getTargetURI().toString();
        const bool isChart = partWriter_.hasPart(name) &&
                             partWriter_.getPart(name).getContentType().toString() == contenttype::kChart;
        return isChart ? name : std::wstring();
    }
    return {};
}

opc::DocumentScope ChartParts::read(const std::wstring& partName) {
    try {
        opc::Part part = partWriter_.getPart(partName);
        return opc::DocumentScope(
            opc::XercesHelper::readDocumentFromStream(parser_.get(), part.getInputStream(), false, {}, {}));
    } catch (const opc::Exception& failure) {
        raise(ppt_error::partDOMBuildError(partName, fromUtf8(failure.what())));
    }
}

// A workbook of another format, in another place, or of another chart as well, isn't written to.
std::wstring ChartParts::findOwnWorkbook(const opc::Part& part, const std::wstring& relationshipId) const {
    for (const opc::Relationship& row : part.getRelationships()) {
        if (row.getID() != relationshipId || row.isExternal())
            continue;
        const std::wstring name = row.getTargetURI().toString();
        const bool isOwn = partWriter_.hasPart(name) && workbooks_.count(name) == 0 &&
                           partWriter_.getPart(name).getContentType().toString() == contenttype::kWorkbook;
        return isOwn ? name : std::wstring();
    }
    return {};
}

std::wstring ChartParts::makeWorkbookPart() {
    std::wstring name;
    do {
        name = L"/ppt/embeddings/Workbook" + std::to_wstring(++counter_) + L".xlsx";
    } while (partWriter_.hasPart(name));
    return partWriter_.createStoredPart(name, contenttype::kWorkbook).getName().toString();
}

} // namespace vellox::ppt
