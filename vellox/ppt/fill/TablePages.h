/// @file
/// A long table in parts.

#ifndef VELLOX_PPT_FILL_TABLEPAGES_H
#define VELLOX_PPT_FILL_TABLEPAGES_H

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <vector>

#include "vellox/ppt/tree/TableImpl.h"

namespace vellox::ppt {

/// Each part has the rows of the header and some of the others:
///
///     table   header  1 2 3 | 4 5 6 | 7 8          parts   header 1 2 3,  header 4 5 6,  header 7 8
class TablePages {
public:
    /// All rows in one part, until it is split.
    explicit TablePages(const Table& table);

    /// @param rows of each part beside its header; not 0
    void splitByCount(unsigned int rows);
    /// Into as many parts as it takes; each has a row beside its header.
    /// @param heights of the rows of the table
    void splitByHeight(const std::vector<double>& heights, double room);

    /// None for a table without rows.
    std::size_t getCount() const { return ends_.size(); }
    /// A new table with copies of the rows.
    Table makePage(std::size_t page) const;

private:
    std::size_t findFirst(std::size_t page) const { return page == 0 ? header_ : ends_[page - 1]; }
    void findMerged();
    void takeMerged(TableImpl& made, std::size_t page) const;

    boost::intrusive_ptr<TableImpl> table_, bare_; // which has no merged cells
    std::size_t header_;                           // rows of it
    std::vector<std::size_t> ends_;                // for each part the row behind its last
    std::vector<std::vector<CellRange>> merged_;   // for each part those of the table that reach into it
};

} // namespace vellox::ppt

#endif
