/// @file
/// The charts that a slide of the template holds, and the data that they are to show.

#ifndef VELLOX_PPT_TEMPLATE_CHARTRECORDS_H
#define VELLOX_PPT_TEMPLATE_CHARTRECORDS_H

#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

struct ChartCategory {
    std::wstring text;
    std::optional<double> number; ///< of one that is a number
};

struct ChartSeries {
    std::wstring name;
    std::vector<double> values; ///< one for each category; not a number where one is missing
};

struct ChartData {
    std::vector<ChartCategory> categories;
    std::vector<ChartSeries> series;

    bool hasNumbersAsCategories() const {
        for (const ChartCategory& category : categories)
            if (!category.number)
                return false;
        return true;
    }
};

struct ChartRecord {
    std::wstring name;
    std::wstring relationshipId;               ///< from the slide to the chart's part
    boost::shared_ptr<const ChartData> data{}; ///< empty for a chart that stays as it is
};

/// The charts of a slide, those in groups too, in the order of its document; none for a slide of a layout.
std::vector<ChartRecord> findCharts(const TemplateSlide& slide);

} // namespace vellox::ppt

#endif
