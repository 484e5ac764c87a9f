/// @file
/// Entries of table rows.

#ifndef VELLOX_PPT_TREE_TABLEENTRY_H
#define VELLOX_PPT_TREE_TABLEENTRY_H

#include <string>

#include "vellox/ppt/formats/CellProperties.h"
#include "vellox/ppt/object/Element.h"
#include "vellox/ppt/tree/Paragraph.h"

namespace vellox::ppt {

class TableEntryImpl;

/// One cell of a table, holding paragraphs. Its formats are those of paragraphs and texts in it that have none of their
/// kind. A handle: copies share one entry.
class VELLOX_API TableEntry : public Element, public CellProperties<TableEntry> {
public:
    TableEntry();
    /// With one new paragraph.
    explicit TableEntry(const std::wstring& text);
    /// With this very paragraph, not a copy.
    /// @throws failedToAppendChild if the paragraph already has a parent
    explicit TableEntry(const Paragraph& paragraph);

    /// Appends a new paragraph.
    Paragraph append(const std::wstring& text);
    /// Appends this very paragraph, not a copy.
    /// @throws failedToAppendChild if the paragraph already has a parent
    Paragraph append(const Paragraph& paragraph);

    /// @{ What the cell shows; "\n" ends a paragraph. A cell of a template's table keeps its look when it gets another
    /// text.
    std::wstring getText() const;
    void setText(const std::wstring& text);
    /// @}

    /// The node as a TableEntry, or an empty pointer.
    static boost::shared_ptr<TableEntry> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit TableEntry(TableEntryImpl* impl);
    TableEntryImpl* pimpl();
    const TableEntryImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
