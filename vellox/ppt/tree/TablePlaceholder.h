/// @file
/// Placeholders for tables.

#ifndef VELLOX_PPT_TREE_TABLEPLACEHOLDER_H
#define VELLOX_PPT_TREE_TABLEPLACEHOLDER_H

#include "vellox/ppt/tree/BodyPlaceholder.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class TablePlaceholderImpl;

/// A placeholder for a table, which takes text too, but no picture. A handle: copies share one placeholder.
class VELLOX_API TablePlaceholder : public BodyPlaceholder {
public:
    TablePlaceholder();

    using BodyPlaceholder::replace;
    /// Puts a new table, made from the given one, in this placeholder's place and under its name; the given
    /// one stays a free object and can be used again.
    /// @return a handle on the new table, or the argument if the placeholder doesn't stand directly on a
    ///         slide, in which case nothing changes
    /// @throws placeholderWasReplacedByObject if the placeholder stands nowhere (any more)
    Table replace(const Table& table);

    /// The node as a TablePlaceholder, or an empty pointer.
    static boost::shared_ptr<TablePlaceholder> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit TablePlaceholder(TablePlaceholderImpl* impl);
    TablePlaceholderImpl* pimpl();
    const TablePlaceholderImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
