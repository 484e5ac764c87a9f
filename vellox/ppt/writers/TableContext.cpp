#include "vellox/ppt/writers/TableContext.h"

#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/TableLook.h"

#include <algorithm>

namespace vellox::ppt {

TableContext::TableContext(const TableImpl& table)
    : rowCount(static_cast<unsigned int>(table.getChildren().size())),
      colCount(table.getNCols()),
      colWidths(table.getNCols()) {
    for (const auto& spec : table.getColSpecs()) {
        const std::size_t column = colFormats.size();
        colFormats.push_back(spec ? spec->getStyle() : Formats());
        const boost::shared_ptr<ColWidth> width = spec ? spec->getWidth() : boost::shared_ptr<ColWidth>();
        if (width && column < colWidths.size())
            colWidths[column] = std::max(0, width->getDimension().getEMUNumber());
    }
}

void TableContext::nextRow() {
    ++row;
    col = 0;
}

const Formats& TableContext::getColumnFormats() const {
    static const Formats& none = *new const Formats;
    return col < colCount && col < colFormats.size() ? colFormats[col] : none;
}

void TableContext::setColumnWidth(int widthEmu) {
    if (col >= colWidths.size())
        return;
    std::optional<int>& width = colWidths[col];
    width = std::max(width.value_or(0), widthEmu);
}

const CellLook* TableContext::getCellLook() const {
    return look ? look->find(row, col, rowCount, hasTotalRow) : nullptr;
}

int TableContext::getRowHeight() const {
    return look ? look->getRowHeight(row, rowCount, hasTotalRow) : 0;
}

} // namespace vellox::ppt
