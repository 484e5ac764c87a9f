#include "vellox/ppt/tree/Chart.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NumberText.h"
#include "vellox/ppt/tree/ChartImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <boost/make_shared.hpp>
#include <cmath>
#include <limits>

namespace vellox::ppt {

namespace {

constexpr std::size_t kMostCategories = 1048575; // the rows of a sheet but one
constexpr std::size_t kMostSeries = 255;

void check(const ChartData& data) {
    if (data.categories.empty() || data.series.empty())
        raise(ppt_error::chartDataEmpty());
    if (data.categories.size() > kMostCategories || data.series.size() > kMostSeries)
        raise(ppt_error::chartDataTooLarge(std::to_wstring(data.categories.size()),
                                           std::to_wstring(data.series.size())));
    for (const ChartSeries& series : data.series) {
        if (series.values.size() != data.categories.size())
            raise(ppt_error::chartDataRagged(series.name, std::to_wstring(series.values.size()),
                                             std::to_wstring(data.categories.size())));
        for (std::size_t i = 0; i < series.values.size(); ++i)
            if (std::isinf(series.values[i]))
                raise(ppt_error::chartValueNoNumber(series.name, std::to_wstring(i + 1),
                                                    toShortest(series.values[i])));
    }
}

} // namespace

// ChartImpl

ChartImpl::ChartImpl(boost::intrusive_ptr<SlideImpl> slide, std::wstring name)
    : slide_(std::move(slide)),
      name_(std::move(name)) {}

ChartImpl::~ChartImpl() = default;

const char* ChartImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Chart";
}

boost::shared_ptr<PPTObject> ChartImpl::makeHandle() {
    return ObjectAccess::makeFacade<Chart>(this);
}

void ChartImpl::setData(ChartData data) {
    check(data);
    slide_->requireChart(name_).data = boost::make_shared<const ChartData>(std::move(data));
}

// Content

namespace {

std::wstring toText(const HvContentPtr& content) {
    switch (content ? content->getContentType() : HvContent::Empty) {
    case HvContent::String:
        return StringContent::getValue(content);
    case HvContent::Integer:
        return num2str(IntegerContent::getValue(content));
    case HvContent::Double:
        return toShortest(DoubleContent::getValue(content));
    case HvContent::Boolean:
        return BooleanContent::getValue(content) ? L"true" : L"false";
    default:
        return {};
    }
}

std::optional<double> toNumber(const HvContentPtr& content) {
    switch (content ? content->getContentType() : HvContent::Empty) {
    case HvContent::Integer:
        return IntegerContent::getValue(content);
    case HvContent::Double:
        return DoubleContent::getValue(content);
    case HvContent::Boolean:
        return BooleanContent::getValue(content) ? 1 : 0;
    default:
        return {};
    }
}

ChartCategory toCategory(const HvContentPtr& content) {
    const std::optional<double> number = toNumber(content);
    return {toText(content), number && std::isfinite(*number) ? number : std::optional<double>()};
}

bool isMissing(const HvContentPtr& content) {
    return !content || content->getContentType() == HvContent::Empty ||
           (StringContent::cast(content) && StringContent::getValue(content).empty());
}

// One column of a table: its name, then its values.
ChartSeries readColumn(const HvTable& table, unsigned int column) {
    ChartSeries series;
    series.name = toText(table.getEntry(0, column));
    for (unsigned int row = 1; row < table.getNRows(); ++row) {
        const HvContentPtr content =
            table.isEmptyEntry(row, column) ? HvContentPtr() : table.getEntry(row, column);
        const std::optional<double> number = toNumber(content);
        if (!number && !isMissing(content))
            raise(ppt_error::chartValueNoNumber(series.name, std::to_wstring(row), toText(content)));
        series.values.push_back(number.value_or(std::numeric_limits<double>::quiet_NaN()));
    }
    return series;
}

ChartData toData(std::vector<ChartCategory> categories, const Chart::Series& series) {
    ChartData data;
    data.categories = std::move(categories);
    for (const auto& [name, values] : series)
        data.series.push_back({name, values});
    return data;
}

} // namespace

// Chart

Chart::Chart(ChartImpl* impl) : PPTObject(impl) {}

const std::wstring Chart::getName() const {
    return implOf<ChartImpl>(*this)->getName();
}

void Chart::setData(const std::vector<std::wstring>& categories, const Series& series) {
    std::vector<ChartCategory> all;
    all.reserve(categories.size());
    for (const std::wstring& text : categories)
        all.push_back({text, {}});
    implOf<ChartImpl>(*this)->setData(toData(std::move(all), series));
}

void Chart::setData(const std::vector<double>& categories, const Series& series) {
    std::vector<ChartCategory> all;
    all.reserve(categories.size());
    for (const double number : categories)
        all.push_back({toShortest(number), std::isfinite(number) ? number : std::optional<double>()});
    implOf<ChartImpl>(*this)->setData(toData(std::move(all), series));
}

void Chart::setData(const boost::shared_ptr<HvList>& categories, const boost::shared_ptr<HvTable>& series) {
    if (!categories || !series)
        raise(ppt_error::invalidChartData());
    ChartData data;
    for (unsigned int i = 0; i < categories->getSize(); ++i)
        data.categories.push_back(
            toCategory(categories->isEmptyItem(i) ? HvContentPtr() : categories->getItem(i)));
    for (unsigned int column = 0; column < series->getNCols(); ++column)
        data.series.push_back(readColumn(*series, column));
    implOf<ChartImpl>(*this)->setData(std::move(data));
}

void Chart::setData(const boost::shared_ptr<HvTable>& table) {
    if (!table)
        raise(ppt_error::invalidChartData());
    ChartData data;
    for (unsigned int row = 1; row < table->getNRows(); ++row)
        data.categories.push_back(
            toCategory(table->isEmptyEntry(row, 0) ? HvContentPtr() : table->getEntry(row, 0)));
    for (unsigned int column = 1; column < table->getNCols(); ++column)
        data.series.push_back(readColumn(*table, column));
    implOf<ChartImpl>(*this)->setData(std::move(data));
}

} // namespace vellox::ppt
