#include "vellox/ppt/template/ChartRecords.h"

#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

/// Charts of the later kind, which only some programs know, have another.
constexpr wchar_t kChartUri[] = L"http://schemas.openxmlformats.org/drawingml/2006/chart";

} // namespace

std::vector<ChartRecord> findCharts(const TemplateSlide& slide) {
    std::vector<ChartRecord> charts;
    if (!slide.source)
        return charts;
    for (const DOMElement* frame : getElementsByName(slide.source->get(), xml::kGraphicFrame)) {
        const DOMElement* properties = findDescendant(frame, {xml::kNvGraphicFramePr, xml::kCNvPr});
        const DOMElement* data = findDescendant(frame, {xml::kAGraphic, xml::kAGraphicData});
        const DOMElement* chart = data ? data->getFirstElementChild() : nullptr;
        if (properties && chart && getAttribute(data, xml::kUri) == kChartUri)
            charts.push_back({getAttribute(properties, xml::kName), getAttribute(chart, xml::kRId)});
    }
    return charts;
}

} // namespace vellox::ppt
