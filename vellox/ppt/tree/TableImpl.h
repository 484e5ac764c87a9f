/// @file
/// The state behind Table. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEIMPL_H
#define VELLOX_PPT_TREE_TABLEIMPL_H

#include <array>
#include <map>
#include <utility>

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/tree/MergedCells.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class TableImpl : public NodeOf<NodeType::Table, TableImpl, Table, ShapeImpl> {
public:
    TableImpl();
    explicit TableImpl(unsigned int nCols);
    explicit TableImpl(const std::wstring& name);
    TableImpl(const std::wstring& name, const Record& record);
    /// The table in the place of another shape.
    TableImpl(const ShapeImpl& former, TakeName takeName, const TableImpl& table);
    TableImpl(const TableImpl& other);
    ~TableImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    void replace(const HvContentPtr& content) override;

    unsigned int getNCols() const { return nCols_; }
    /// The count follows the widest row and never shrinks.
    void growTo(std::size_t entries);
    const BaseAttribute<std::wstring>& getStyleName() const { return styleName_; }
    /// That of the table which was put in another shape's place, of which this one was made. Setting a name or
    /// unsetting it makes it count for nothing.
    const BaseAttribute<std::wstring>& getBroughtStyleName() const { return broughtStyleName_; }
    void setStyleName(const std::wstring& styleName);
    void unsetStyleName();
    /// Which parts the style is to show in their own way.
    TableParts getParts() const;
    BaseAttribute<bool>& part(TablePart part) { return parts_[static_cast<std::size_t>(part)]; }
    const BaseAttribute<bool>& part(TablePart part) const { return parts_[static_cast<std::size_t>(part)]; }
    const Table::ColSpecs& getColSpecs() const { return colSpecs_; }
    void setColSpecs(const Table::ColSpecs& colSpecs) { colSpecs_ = colSpecs; }
    BaseAttribute<unsigned int>& headerRows() { return headerRows_; }
    const BaseAttribute<unsigned int>& getHeaderRows() const { return headerRows_; }
    /// As many as there are, whether anybody has said so or not.
    unsigned int countHeaderRows() const;
    BaseAttribute<Dimension>& rowHeight() { return rowHeight_; }
    const BaseAttribute<Dimension>& getRowHeight() const { return rowHeight_; }
    void merge(const CellRange& range);
    const MergedCells& getMerged() const { return merged_; }
    void setMerged(const MergedCells& merged) { merged_ = merged; }
    void append(const Child& row);
    /// Appends a row for each of the content's.
    /// @throws invalidObjectForTable for content that no cell can show
    void appendContent(const HvTable& content);
    boost::shared_ptr<TableRow> row(unsigned int i) const;
    boost::shared_ptr<TableEntry> entry(unsigned int r, unsigned int c) const;
    /// A row and a column, from 0.
    using CellPlace = std::pair<unsigned int, unsigned int>;
    using TemplateCells = std::map<CellPlace, boost::shared_ptr<TableEntry>>;
    /// Entries that were asked for and stand for what the template has in this table.
    const TemplateCells& getTemplateCells() const { return templateCells_; }
    Table replace(const Table& table);
    /// @throws tableCannotBeReplaced if this table stands nowhere
    virtual void checkReplaceable() const;

private:
    void appendContentRow(const HvTable& content, unsigned int r);
    boost::shared_ptr<TableEntry> templateEntry(const CellPlace& place) const;

    unsigned int nCols_ = 0;
    BaseAttribute<std::wstring> styleName_;
    BaseAttribute<std::wstring> broughtStyleName_;
    std::array<BaseAttribute<bool>, kTablePartCount> parts_; // by their numbers
    BaseAttribute<unsigned int> headerRows_;
    BaseAttribute<Dimension> rowHeight_;
    MergedCells merged_;
    Table::ColSpecs colSpecs_;            // in column order; no children, and without parents
    mutable TemplateCells templateCells_; // likewise; made when they are asked for
};

} // namespace vellox::ppt

#endif
