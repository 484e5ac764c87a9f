/// @file
/// Charts that the template holds.

#ifndef VELLOX_PPT_TREE_CHART_H
#define VELLOX_PPT_TREE_CHART_H

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class ChartImpl;

/// A chart on a slide of the template, which gets other data: bars, columns, lines, areas, a pie, a doughnut, points
/// (scatter) or a radar. How it looks stays the template's. Slide::chart() gives one. A handle: copies share one chart.
///
///     slide.chart(L"Sales").setData({L"Spring", L"Summer"}, {{L"North", {3.5, 4}}, {L"South", {2, 1.5}}});
///
/// When the presentation is closed, both the chart and the workbook in it get the data. A series keeps the look of the
/// template's series of the same name, or else of one that is left; further ones go on with the colours of the theme.
class VELLOX_API Chart : public PPTObject {
public:
    /// Names and values of series.
    using Series = std::vector<std::pair<std::wstring, std::vector<double>>>;

    /// What the chart is called in the template.
    const std::wstring getName() const;
    /// @{ Gives the chart these categories, and a value of each series for each of them. What is not a number is
    /// missing. Of points the categories are where they stand across. What was set before is forgotten.
    /// @throws chartDataEmpty without categories, or without series
    /// @throws chartDataRagged for a series of more or fewer values than there are categories
    /// @throws chartDataTooLarge for more than a workbook holds
    /// @throws chartValueNoNumber for an infinite value
    void setData(const std::vector<std::wstring>& categories, const Series& series);
    void setData(const std::vector<double>& categories, const Series& series);
    void setData(std::initializer_list<std::wstring> categories, const Series& series) {
        setData(std::vector<std::wstring>(categories), series); // or two texts could be the ends of a range
    }
    void setData(std::initializer_list<double> categories, const Series& series) {
        setData(std::vector<double>(categories), series);
    }
    /// The same from content: items of a list, and a table whose first row are the names of the series.
    /// @throws chartValueNoNumber also for a value that is no number; an empty one is missing
    /// @throws invalidChartData for an empty pointer
    void setData(const boost::shared_ptr<HvList>& categories, const boost::shared_ptr<HvTable>& series);
    /// The same from one table, whose first column are the categories.
    void setData(const boost::shared_ptr<HvTable>& table);
    /// @}

protected:
    friend struct ObjectAccess;
    explicit Chart(ChartImpl* impl);
};

} // namespace vellox::ppt

#endif
