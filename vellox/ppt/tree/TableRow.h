/// @file
/// Rows of tables.

#ifndef VELLOX_PPT_TREE_TABLEROW_H
#define VELLOX_PPT_TREE_TABLEROW_H

#include <string>

#include "vellox/foundation/Dimension.h"
#include "vellox/ppt/formats/CellProperties.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class TableEntry;
class TableRowImpl;

/// A row of entries. Its formats are those of its entries that have none of their kind. A handle: copies share one row.
class VELLOX_API TableRow : public Element, public CellProperties<TableRow> {
public:
    TableRow();

    /// @{ A length: the least height of the row, which is as high as its text. Unset means that of the table.
    /// @throws invalidPropertyValue for what isn't a length, a share, or a negative one
    const BaseAttribute<Dimension>& getHeight() const;
    void setHeight(const std::wstring& length);
    void unsetHeight();
    /// @}

    /// Appends this very entry. If the row stands in a table, the table has at least as many columns then.
    /// @throws failedToAppendChild if the entry already has a parent
    TableEntry append(const TableEntry& entry);

    /// The node as a TableRow, or an empty pointer.
    static boost::shared_ptr<TableRow> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit TableRow(TableRowImpl* impl);
    TableRowImpl* pimpl();
    const TableRowImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
