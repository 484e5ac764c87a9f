#include "vellox/ppt/tree/MergedCells.h"

namespace vellox::ppt {

const CellRange* MergedCells::find(unsigned int row, unsigned int column) const {
    const auto found = places_.find({row, column});
    return found == places_.end() ? nullptr : &ranges_[found->second];
}

const CellRange* MergedCells::findOverlap(const CellRange& range) const {
    for (unsigned int row = range.row; row <= range.lastRow; ++row) {
        const auto first = places_.lower_bound({row, range.column});
        if (first != places_.end() && first->first <= std::make_pair(row, range.lastColumn))
            return &ranges_[first->second];
    }
    return nullptr;
}

void MergedCells::add(const CellRange& range) {
    for (unsigned int row = range.row; row <= range.lastRow; ++row)
        for (unsigned int column = range.column; column <= range.lastColumn; ++column)
            places_.emplace(std::make_pair(row, column), ranges_.size());
    ranges_.push_back(range);
}

} // namespace vellox::ppt
