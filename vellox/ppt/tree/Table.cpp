#include "vellox/ppt/tree/Table.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/NodeText.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/xml/BodyText.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

// TableImpl

TableImpl::TableImpl() {
    announceCreated(*this);
}

TableImpl::TableImpl(unsigned int nCols) : nCols_(nCols) {
    announceCreated(*this);
}

TableImpl::TableImpl(const std::wstring& name) : NodeOf(name) {
    announceCreated(*this);
}

TableImpl::TableImpl(const std::wstring& name, const Record& record) : NodeOf(name, record) {
    announceCreated(*this);
}

TableImpl::TableImpl(const ShapeImpl& former, TakeName takeName, const TableImpl& table)
    : NodeOf(former, takeName),
      nCols_(table.nCols_),
      broughtStyleName_(table.styleName_.isSet() ? table.styleName_ : table.broughtStyleName_),
      parts_(table.parts_),
      headerRows_(table.headerRows_),
      rowHeight_(table.rowHeight_),
      merged_(table.merged_),
      colSpecs_(table.colSpecs_) {
    setStyle(table.getStyle());
    announceCreated(*this);
}

TableImpl::TableImpl(const TableImpl& other)
    : NodeOf(other),
      nCols_(other.nCols_),
      styleName_(other.styleName_),
      broughtStyleName_(other.broughtStyleName_),
      parts_(other.parts_),
      headerRows_(other.headerRows_),
      rowHeight_(other.rowHeight_),
      merged_(other.merged_),
      colSpecs_(other.colSpecs_) {
    for (const auto& [place, cell] : other.templateCells_)
        templateCells_.emplace(place, TableEntry::cast(cell->clone()));
    announceCreated(*this);
}

TableImpl::~TableImpl() {
    announceDestroyed(*this);
}

namespace {

// The paragraph node for a cell. It is that of a list's item, but for what would be described there: here it leaves
// the cell empty.
PPTNodeImpl::Child cellToParagraph(const HvContentPtr& content) {
    const HvContent::ContentType type = content ? content->getContentType() : HvContent::Empty;
    const bool isOtherObject = type == HvContent::Object && !getParagraphObject(content);
    return isOtherObject || type == HvContent::Unknown ? makeParagraph() : contentToParagraph(content);
}

} // namespace

void TableImpl::appendContent(const HvTable& content) {
    for (unsigned int r = 0; r < content.getNRows(); ++r)
        appendContentRow(content, r);
}

void TableImpl::appendContentRow(const HvTable& content, unsigned int r) {
    TableRow row;
    for (unsigned int c = 0; c < nCols_; ++c) {
        const Child node = cellToParagraph(content.getEntry(r, c));
        TableEntry entry;
        if (!node && !content.isEmptyEntry(r, c))
            raise(ppt_error::invalidObjectForTable(num2str(r + 1), num2str(c + 1)));
        if (node) {
            const bool isTaken = implOf<PPTNodeImpl>(*node)->getParent() != nullptr;
            entry.append(static_cast<const Paragraph&>(isTaken ? *node->clone() : *node));
        }
        row.append(entry);
    }
    append(row.makeInterface());
}

void TableImpl::setStyleName(const std::wstring& styleName) {
    styleName_.set(styleName);
    broughtStyleName_.unset();
}

void TableImpl::unsetStyleName() {
    styleName_.unset();
    broughtStyleName_.unset();
}

TableParts TableImpl::getParts() const {
    TableParts parts;
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts_[i].isSet())
            parts[i] = parts_[i].get();
    return parts;
}

unsigned int TableImpl::countHeaderRows() const {
    if (headerRows_.isSet())
        return headerRows_.get();
    const BaseAttribute<bool>& hasHeader = part(TablePart::HeaderRow);
    return !hasHeader.isSet() || hasHeader.get() ? 1 : 0;
}

void TableImpl::merge(const CellRange& range) {
    const bool isOrdered = range.row <= range.lastRow && range.column <= range.lastColumn;
    bool isThere =
        isOrdered && !range.isOneCell() && range.lastRow < getChildren().size() && range.lastColumn < nCols_;
    for (unsigned int r = range.row; isThere && r <= range.lastRow; ++r)
        isThere = range.lastColumn < getChildren()[r]->getNChildren();
    const auto count = [](unsigned int i) { return num2str(i + 1.0); };
    if (!isThere)
        raise(ppt_error::invalidCellRange(count(range.row), count(range.column), count(range.lastRow),
                                          count(range.lastColumn)));
    if (const CellRange* other = merged_.findOverlap(range))
        raise(ppt_error::cellsAlreadyMerged(count(other->row), count(other->column), count(other->lastRow),
                                            count(other->lastColumn)));
    merged_.add(range);
}

void TableImpl::growTo(std::size_t entries) {
    nCols_ = std::max(nCols_, static_cast<unsigned int>(entries));
}

void TableImpl::append(const Child& row) {
    appendChild(row);
    growTo(row->getNChildren());
}

boost::shared_ptr<TableRow> TableImpl::row(unsigned int i) const {
    return i < getChildren().size() ? TableRow::cast(getChildren()[i]) : boost::shared_ptr<TableRow>();
}

boost::shared_ptr<TableEntry> TableImpl::entry(unsigned int r, unsigned int c) const {
    if (getChildren().empty())
        return templateEntry({r, c});
    const boost::shared_ptr<TableRow> found = row(r);
    if (!found)
        return {};
    const unsigned int entries = found->getNChildren();
    if (entries != nCols_)
        raise(dom_error::entriesColumnsMismatch(num2str(r + 1), num2str(entries), num2str(nCols_)));
    return c < entries ? TableEntry::cast(found->getChildren()[c]) : boost::shared_ptr<TableEntry>();
}

boost::shared_ptr<TableEntry> TableImpl::templateEntry(const CellPlace& place) const {
    const auto source = findSource(*this);
    const xercesc::DOMElement* cell =
        source ? findCell(source->find(getTemplateUid()), place.first, place.second) : nullptr;
    if (!cell)
        return {};
    boost::shared_ptr<TableEntry>& entry = templateCells_[place];
    if (!entry)
        entry = boost::make_shared<TableEntry>();
    implOf<TableEntryImpl>(*entry)->setTemplateCell(source, *cell);
    return entry;
}

void TableImpl::checkReplaceable() const {
    if (!getParent())
        raise(ppt_error::tableCannotBeReplaced());
}

void TableImpl::replace(const HvContentPtr& content) {
    checkReplaceable();
    if (auto* table = getObjectImpl<TableImpl>(content))
        replace(static_cast<const Table&>(*table->makeInterface()));
    else
        ShapeImpl::replace(content);
}

Table TableImpl::replace(const Table& table) {
    checkReplaceable();
    return giveWayTo<TableImpl>(table, TakeName::Always);
}

// Table

namespace {

TableImpl* makeForContent(const boost::shared_ptr<HvTable>& content) {
    if (!content)
        raise(ppt_error::invalidConstructorArg());
    return new TableImpl(content->getNCols());
}

} // namespace

Table::Table() : Table(new TableImpl) {}
Table::Table(unsigned int nCols) : Table(new TableImpl(nCols)) {}
Table::Table(const std::wstring& name) : Table(new TableImpl(name)) {}
Table::Table(const boost::shared_ptr<HvTable>& content) : Table(makeForContent(content)) {
    // Content may fail. The table is whole by then, so that a listener that has heard of it holds no ruin.
    pimpl()->appendContent(*content);
}
Table::Table(TableImpl* impl) : Shape(impl) {}

TableImpl* Table::pimpl() {
    return implOf<TableImpl>(*this);
}

const TableImpl* Table::pimpl() const {
    return implOf<TableImpl>(*this);
}

unsigned int Table::getNCols() const {
    return pimpl()->getNCols();
}

const BaseAttribute<std::wstring>& Table::getStyleName() const {
    return pimpl()->getStyleName();
}

void Table::setStyleName(const std::wstring& styleName) {
    pimpl()->setStyleName(styleName);
}

void Table::unsetStyleName() {
    pimpl()->unsetStyleName();
}

const BaseAttribute<bool>& Table::getHeaderRow() const {
    return pimpl()->part(TablePart::HeaderRow);
}

void Table::setHeaderRow(bool isOn) {
    pimpl()->part(TablePart::HeaderRow).set(isOn);
}

void Table::unsetHeaderRow() {
    pimpl()->part(TablePart::HeaderRow).unset();
}

const BaseAttribute<bool>& Table::getTotalRow() const {
    return pimpl()->part(TablePart::TotalRow);
}

void Table::setTotalRow(bool isOn) {
    pimpl()->part(TablePart::TotalRow).set(isOn);
}

void Table::unsetTotalRow() {
    pimpl()->part(TablePart::TotalRow).unset();
}

const BaseAttribute<bool>& Table::getFirstColumn() const {
    return pimpl()->part(TablePart::FirstColumn);
}

void Table::setFirstColumn(bool isOn) {
    pimpl()->part(TablePart::FirstColumn).set(isOn);
}

void Table::unsetFirstColumn() {
    pimpl()->part(TablePart::FirstColumn).unset();
}

const BaseAttribute<bool>& Table::getLastColumn() const {
    return pimpl()->part(TablePart::LastColumn);
}

void Table::setLastColumn(bool isOn) {
    pimpl()->part(TablePart::LastColumn).set(isOn);
}

void Table::unsetLastColumn() {
    pimpl()->part(TablePart::LastColumn).unset();
}

const BaseAttribute<bool>& Table::getBandedRows() const {
    return pimpl()->part(TablePart::BandedRows);
}

void Table::setBandedRows(bool isOn) {
    pimpl()->part(TablePart::BandedRows).set(isOn);
}

void Table::unsetBandedRows() {
    pimpl()->part(TablePart::BandedRows).unset();
}

const BaseAttribute<bool>& Table::getBandedColumns() const {
    return pimpl()->part(TablePart::BandedColumns);
}

void Table::setBandedColumns(bool isOn) {
    pimpl()->part(TablePart::BandedColumns).set(isOn);
}

void Table::unsetBandedColumns() {
    pimpl()->part(TablePart::BandedColumns).unset();
}

const BaseAttribute<unsigned int>& Table::getHeaderRows() const {
    return pimpl()->getHeaderRows();
}

void Table::setHeaderRows(unsigned int count) {
    pimpl()->headerRows().set(count);
}

void Table::unsetHeaderRows() {
    pimpl()->headerRows().unset();
}

const BaseAttribute<Dimension>& Table::getRowHeight() const {
    return pimpl()->getRowHeight();
}

void Table::setRowHeight(const std::wstring& length) {
    pimpl()->rowHeight().set(requireExtent(length, length));
}

void Table::unsetRowHeight() {
    pimpl()->rowHeight().unset();
}

const Table::ColSpecs& Table::getColSpecs() const {
    return pimpl()->getColSpecs();
}

void Table::setColSpecs(const ColSpecs& colSpecs) {
    pimpl()->setColSpecs(colSpecs);
}

TableRow Table::append(const TableRow& row) {
    pimpl()->append(row.makeInterface());
    return row;
}

boost::shared_ptr<TableRow> Table::row(unsigned int i) {
    return pimpl()->row(i);
}

boost::shared_ptr<TableEntry> Table::entry(unsigned int r, unsigned int c) {
    return pimpl()->entry(r, c);
}

void Table::merge(unsigned int row, unsigned int column, unsigned int lastRow, unsigned int lastColumn) {
    pimpl()->merge({row, column, lastRow, lastColumn});
}

Table Table::replace(const Table& table) {
    return pimpl()->replace(table);
}

boost::shared_ptr<Table> Table::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Table>(node);
}

} // namespace vellox::ppt
