#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/values/HvViews.h"

namespace vellox::ppt::hostbind {

namespace {

/// The entries of a table of one column.
class ColumnList : public HvList {
public:
    explicit ColumnList(boost::shared_ptr<HvTable> table) : table_(std::move(table)) {}
    HvContentPtr getItem(unsigned int i) const override { return table_->getEntry(i, 0); }
    bool isEmptyItem(unsigned int i) const override { return table_->isEmptyEntry(i, 0); }
    unsigned int getSize() const override { return table_->getNRows(); }

private:
    boost::shared_ptr<HvTable> table_;
};

boost::shared_ptr<HvList> toList(const HvContentPtr& content) {
    const boost::shared_ptr<HvTable> table = TableContent::getValue(content);
    if (table && table->getNCols() == 1)
        return boost::make_shared<ColumnList>(table);
    return ListContent::getValue(content, false);
}

void setColumns(Chart& chart, const hvArray& categories, const hvArray& series) {
    chart.setData(toList(HvCell(&categories).getContent()),
                  TableContent::getValue(HvCell(&series).getContent()));
}

void setTable(Chart& chart, const hvArray& table) {
    chart.setData(TableContent::getValue(HvCell(&table).getContent()));
}

BoundClass describeChart() {
    BoundClass bound = describeAbstract<Chart>("Chart", "Object", "A chart of the template on a slide.");
    bound.properties = {readOnlyProperty<Chart, &Chart::getName>("Name", "What the template calls it.")};
    bound.methods = {
        Method<Chart, void(const hvArray&, const hvArray&)>::row<&setColumns>(
            "setData", {"categories", "series"},
            "Gives the chart categories, a list, and series, a table whose first row are their names."),
        Method<Chart, void(const hvArray&)>::row<&setTable>(
            "setData", {"table"}, "The same of one table, whose first column are the categories."),
    };
    return bound;
}

} // namespace

std::vector<BoundClass> describeCharts() {
    return {describeChart()};
}

} // namespace vellox::ppt::hostbind
