/// @file
/// Tables.

#ifndef VELLOX_PPT_TREE_TABLE_H
#define VELLOX_PPT_TREE_TABLE_H

#include <string>
#include <type_traits>
#include <vector>

#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/formats/CellProperties.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/Shape.h"
#include "vellox/ppt/tree/TableEntry.h"
#include "vellox/ppt/tree/TableRow.h"

namespace vellox::ppt {

class TableImpl;

/// Rows of entries. Its formats are those of all cells that have none of their kind, nor their rows and columns. A
/// handle: copies share one table. Rows and columns count from 0 here.
///
///     Table table(2);
///     TableRow row;
///     row.append(TableEntry(L"Sample"));
///     row.append(TableEntry(L"Value"));
///     table.append(row);
///     slide.add(table);
class VELLOX_API Table : public Shape, public CellProperties<Table> {
public:
    using ColSpecs = std::vector<boost::shared_ptr<ColSpec>>;

    Table();
    /// @{ @param nCols the number of columns; no row or entry is made
    explicit Table(unsigned int nCols);
    template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
    explicit Table(Integer nCols) : Table(static_cast<unsigned int>(nCols)) {} // or 0 could be a pointer
    /// @}
    explicit Table(const std::wstring& name);
    /// With rows and entries for all that a table of content holds. Numbers and texts become text, a
    /// Paragraph goes in itself, or as a copy if it already has a parent; anything else, truth values among
    /// it, leaves its entry empty.
    /// @throws invalidConstructorArg for an empty pointer
    explicit Table(const boost::shared_ptr<HvTable>& content);

    /// The number of entries in the widest row so far, at least what was given to the constructor.
    unsigned int getNCols() const;

    /// @{ The name of a table style of the template, or, with the profile "office", of one that office programs have
    /// built in, such as "Light Style 1 - Accent 2". Whether there is one is seen when the presentation is closed;
    /// where there is none, an ErrorMessage says so, and the table is as without a name.
    const BaseAttribute<std::wstring>& getStyleName() const;
    void setStyleName(const std::wstring& styleName);
    void unsetStyleName();
    /// @}
    /// @{ Whether the style shows a part of the table in its own way: the first row as a header, the last one as that of
    /// totals, the first and the last column, rows or columns in turns. What isn't set is off; with the profile
    /// "office" a new table has a header row and banded rows, and one in another's place has that one's.
    const BaseAttribute<bool>& getHeaderRow() const;
    void setHeaderRow(bool isOn);
    template <class T> void setHeaderRow(const T*) = delete; ///< a text is no truth value
    void unsetHeaderRow();
    const BaseAttribute<bool>& getTotalRow() const;
    void setTotalRow(bool isOn);
    template <class T> void setTotalRow(const T*) = delete;
    void unsetTotalRow();
    const BaseAttribute<bool>& getFirstColumn() const;
    void setFirstColumn(bool isOn);
    template <class T> void setFirstColumn(const T*) = delete;
    void unsetFirstColumn();
    const BaseAttribute<bool>& getLastColumn() const;
    void setLastColumn(bool isOn);
    template <class T> void setLastColumn(const T*) = delete;
    void unsetLastColumn();
    const BaseAttribute<bool>& getBandedRows() const;
    void setBandedRows(bool isOn);
    template <class T> void setBandedRows(const T*) = delete;
    void unsetBandedRows();
    const BaseAttribute<bool>& getBandedColumns() const;
    void setBandedColumns(bool isOn);
    template <class T> void setBandedColumns(const T*) = delete;
    void unsetBandedColumns();
    /// @}
    /// @{ How many rows the header has, 1 unless told otherwise, 0 for none: formats of values that columns and the table
    /// have act below, and a table that goes on on further slides repeats them there.
    const BaseAttribute<unsigned int>& getHeaderRows() const;
    void setHeaderRows(unsigned int count);
    void unsetHeaderRows();
    /// @}
    /// @{ A length: the least height of rows that have none of their own.
    /// @throws invalidPropertyValue for what isn't a length, a share, or a negative one
    const BaseAttribute<Dimension>& getRowHeight() const;
    void setRowHeight(const std::wstring& length);
    void unsetRowHeight();
    /// @}
    /// @{ Widths and formats of columns, in column order. The vector is copied, the objects in it are shared.
    const ColSpecs& getColSpecs() const;
    void setColSpecs(const ColSpecs& colSpecs);
    /// @}

    /// Appends this very row. Rows may have fewer entries than the table has columns.
    /// @throws failedToAppendChild if the row already has a parent
    TableRow append(const TableRow& row);
    /// @return an empty pointer if there is no such row
    boost::shared_ptr<TableRow> row(unsigned int i);
    /// An entry, or, for a table of the template whose rows are still those, what stands for the template's cell: its
    /// text can be read and set, and formats that it gets come on top of those that the cell has.
    /// @return an empty pointer if there is no such entry
    /// @throws entriesColumnsMismatch if the row has more or fewer entries than the table has columns
    boost::shared_ptr<TableEntry> entry(unsigned int r, unsigned int c);

    /// Makes one cell of those from one corner to another, whose rows and columns are in it. It shows the entry at its
    /// top left; what the others hold isn't shown.
    /// @throws invalidCellRange if there are no such cells, or only one
    /// @throws cellsAlreadyMerged if one of them is in a merged cell
    void merge(unsigned int row, unsigned int column, unsigned int lastRow, unsigned int lastColumn);

    using Shape::replace;
    /// Puts a new table, made of copies of the given one's rows, in this table's place and under its name. It
    /// has the given one's formats, column specifications, merged cells and properties of parts, and no table style until one is
    /// set on it; with the profile "office" the given one's style, or else this one's.
    /// @return a handle on the new table, or the argument if this table doesn't stand directly on a slide,
    ///         in which case nothing changes
    /// @throws tableCannotBeReplaced if this table stands nowhere (any more)
    Table replace(const Table& table);

    /// The node as a Table, or an empty pointer.
    static boost::shared_ptr<Table> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit Table(TableImpl* impl);
    TableImpl* pimpl();
    const TableImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
