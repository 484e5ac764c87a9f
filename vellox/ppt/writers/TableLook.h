/// @file
/// How a table of the template looks, for one that takes its place.

#ifndef VELLOX_PPT_WRITERS_TABLELOOK_H
#define VELLOX_PPT_WRITERS_TABLELOOK_H

#include <cstddef>
#include <vector>

#include "vellox/ppt/writers/TextLook.h"

namespace vellox::ppt {

struct CellLook {
    PropertyElement tcPr{xml::kATcPr};
    TextLook text;
};

/// The looks of cells by their places. Of the rows only three count: the first, the second, which stands for all
/// between, and the last.
///
///     first row      +--------+-------+-- ... --+       where the new table has more columns, the former
///     rows between   |  0,0   |  0,1  |         |       last one stands for them
///     last row       +--------+-------+-- ... --+
class TableLook {
public:
    explicit TableLook(const xercesc::DOMElement& tbl);

    /// @param rowCount of the new table, in which the place is
    /// @param hasTotalRow whether its last row is one of totals, and that of the former was
    /// @return null if the former table has no cells there
    const CellLook* find(unsigned int row, unsigned int column, unsigned int rowCount,
                         bool hasTotalRow) const;
    /// The height of a row in EMU. Rows aren't higher together than those of the former table were; readers make
    /// them as high as their texts.
    int getRowHeight(unsigned int row, unsigned int rowCount, bool hasTotalRow) const;
    /// In EMU.
    const std::vector<double>& getColumnWidths() const { return widths_; }
    double getWidth() const;

private:
    struct Row {
        double height = 0;
        std::vector<CellLook> looks;
        std::vector<std::size_t> cells; // which of the looks each has
    };

    static Row readRow(const xercesc::DOMElement& row);
    const Row* findRow(unsigned int row, unsigned int rowCount, bool hasTotalRow) const;

    std::vector<double> widths_;
    std::vector<Row> rows_; // first, second, last, as far as they are there
    double height_ = 0;
};

} // namespace vellox::ppt

#endif
