/// @file
/// The state of a table that is being written.

#ifndef VELLOX_PPT_WRITERS_TABLECONTEXT_H
#define VELLOX_PPT_WRITERS_TABLECONTEXT_H

#include <optional>
#include <vector>

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/writers/ColumnMeter.h"
#include "vellox/ppt/writers/ValueTexts.h"

namespace vellox::ppt {

class MergedCells;
class ParagraphImpl;
class TableImpl;
class TableLook;
class TableRowImpl;
class TextImpl;
struct CellLook;
struct CellRange;

/// Where the writing of a table is, and what its columns have to say. It belongs to the writer of the table; those
/// of the rows move it on, and those of the entries widen its columns.
struct TableContext {
    /// Of no table.
    TableContext() = default;
    explicit TableContext(const TableImpl& table);

    void nextEntry() { ++col; }
    void nextRow();
    /// The formats of the column that the table is at; none for a column that it doesn't have.
    const Formats& getColumnFormats() const { return getColumnFormats(col); }
    const Formats& getColumnFormats(unsigned int column) const;
    /// Widens that column. A column that the table doesn't have is passed over.
    void setColumnWidth(int widthEmu);
    /// How the cell that the table is at is to look; null where nothing stood before.
    const CellLook* getCellLook() const;
    /// In EMU; 0 for as high as its text.
    int getRowHeight(const TableRowImpl& row) const;
    /// Whether the row that the table is at is one of its header.
    bool isInHeader() const { return row < headerRows; }
    /// The merged cell that the table is at a part of, as far as there are rows and columns; nothing if there is none.
    std::optional<CellRange> findMerged() const;
    /// Whether a paragraph of the cell that the table is at stands where numbers do: a number below the header, or what
    /// the header has above nothing but numbers, and so what stands for a missing one.
    bool isAmongNumbers(const ParagraphImpl& paragraph) const;

    /// Whether a paragraph stands for a missing value, if there is a text for these.
    bool isLeftOut(const ParagraphImpl& paragraph) const;

    unsigned int rowCount = 0;
    unsigned int colCount = 0;
    unsigned int row = 0;                      ///< from 0
    unsigned int col = 0;                      ///< of the entry within its row, from 0
    std::vector<Formats> colFormats;           ///< one for each column specification
    std::vector<std::optional<int>> colWidths; ///< colCount of them, in EMU
    std::vector<bool> numberColumns;           ///< those of numbers, if anybody wants to know
    std::optional<ColumnMeter> meter;          ///< if anybody wants to know the lengths of texts
    const TableImpl* table = nullptr;
    unsigned int headerRows = 0;
    int rowHeight = 0;                   ///< of rows that have none, in EMU
    const MergedCells* merged = nullptr; ///< if there are any
    bool isWide = false;                 ///< whether the cell that the table is at has several columns
    ValueLook values;                    ///< of the cell that the table is at
    const TableLook* look = nullptr;     ///< of the table whose place this one takes, if it counts
    bool hasTotalRow = false;            ///< whether both have one
};

/// The run of a paragraph that has one and nothing else, which must be no link; else null.
const TextImpl* findOnlyText(const ParagraphImpl& paragraph);

/// For each column whether there is a number below its header, and nothing else but empty cells.
std::vector<bool> findNumberColumns(const TableImpl& table);

} // namespace vellox::ppt

#endif
