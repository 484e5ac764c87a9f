/// @file
/// Rows of tables.

#ifndef VELLOX_PPT_TREE_TABLEROW_H
#define VELLOX_PPT_TREE_TABLEROW_H

#include "vellox/ppt/formats/FormatProperties.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class TableEntry;
class TableRowImpl;

/// A row of entries. A handle: copies share one row.
class VELLOX_API TableRow : public Element,
                            public FontProperties<TableRow>,
                            public BackgroundColorProperty<TableRow> {
public:
    TableRow();

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
