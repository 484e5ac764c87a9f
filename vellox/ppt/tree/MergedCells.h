/// @file
/// Cells of a table that are one. Internal.

#ifndef VELLOX_PPT_TREE_MERGEDCELLS_H
#define VELLOX_PPT_TREE_MERGEDCELLS_H

#include <map>
#include <utility>
#include <vector>

namespace vellox::ppt {

/// From one corner to another, rows and columns counted from 0.
struct CellRange {
    unsigned int row = 0, column = 0, lastRow = 0, lastColumn = 0;

    bool isOneCell() const { return row == lastRow && column == lastColumn; }
};

/// Ranges that don't overlap. Which one a cell is in is found in no time that counts, however many there are.
class MergedCells {
public:
    bool isEmpty() const { return ranges_.empty(); }
    const std::vector<CellRange>& getRanges() const { return ranges_; }
    /// The range that a cell is in, or null.
    const CellRange* find(unsigned int row, unsigned int column) const;
    /// The range that has some cell of this one, or null.
    const CellRange* findOverlap(const CellRange& range) const;
    void add(const CellRange& range);

private:
    std::vector<CellRange> ranges_;
    std::map<std::pair<unsigned int, unsigned int>, std::size_t>
        places_; // of all cells, to numbers of ranges
};

} // namespace vellox::ppt

#endif
