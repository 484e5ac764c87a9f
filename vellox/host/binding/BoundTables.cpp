#include "vellox/foundation/Conversions.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/binding/FormatRows.h"
#include "vellox/host/binding/ParagraphRows.h"

namespace vellox::ppt::hostbind {

namespace {

ObjectPtr makeTableOfContent(const Arguments& arguments) {
    const boost::shared_ptr<HvTable> content = TableContent::getValue(&arguments[0], true);
    if (!content)
        raise(ppt_error::invalidConstructorArg());
    return boost::make_shared<Table>(content);
}

HostResult getColSpecs(const Table& table) {
    const Table::ColSpecs& columns = table.getColSpecs();
    return ObjectArray(columns.begin(), columns.end());
}

void setColSpecs(Table& table, const hvArray& value) {
    Table::ColSpecs columns;
    const boost::shared_ptr<HvList> list = ListContent::getValue(&value, true);
    if (!list && value.getNElements() > 0)
        raise(ppt_error::invalidPropertyValue(describeValue(value)));
    for (unsigned int i = 0; list && i < list->getSize(); ++i) {
        const HvContentPtr item = list->getItem(i);
        const auto object = ObjectContent::getValue(item);
        const auto column = boost::dynamic_pointer_cast<ColSpec>(object ? object->getProxy() : ObjectPtr());
        if (!column)
            raise(ppt_error::invalidPropertyValue(describeValue(item)));
        columns.push_back(boost::make_shared<ColSpec>(*column)); // the host's own handle may be let go
    }
    table.setColSpecs(columns);
}

// Subscripts count from 1 here, and from 0 in the facades.

boost::shared_ptr<TableRow> getRow(Table& table, unsigned int i) {
    if (i == 0)
        raise(ppt_error::positiveSubscript());
    const boost::shared_ptr<TableRow> row = table.row(i - 1);
    if (!row)
        raise(ppt_error::badRowSubscript(num2str(i), num2str(table.getNChildren())));
    return row;
}

boost::shared_ptr<TableEntry> getEntry(Table& table, unsigned int r, unsigned int c) {
    if (r == 0 || c == 0)
        raise(ppt_error::positiveSubscript());
    const boost::shared_ptr<TableEntry> entry = table.entry(r - 1, c - 1);
    if (entry)
        return entry;
    if (r > table.getNChildren())
        raise(ppt_error::badRowSubscript(num2str(r), num2str(table.getNChildren())));
    raise(ppt_error::badColSubscript(num2str(c), num2str(table.row(r - 1)->getNChildren())));
}

void mergeCells(Table& table, unsigned int row, unsigned int column, unsigned int lastRow,
                unsigned int lastColumn) {
    if (row == 0 || column == 0 || lastRow == 0 || lastColumn == 0)
        raise(ppt_error::positiveSubscript());
    table.merge(row - 1, column - 1, lastRow - 1, lastColumn - 1);
}

// The setter of a truth value, picked from the overloads that refuse texts.
template <auto kGet, void (Table::*kSet)(bool), auto kUnset>
BoundProperty partRow(const char* name, const char* doc) {
    return optionalProperty<Table, kGet, kSet, kUnset>(name, doc);
}

BoundClass describeTable() {
    BoundClass bound = describe<Table>("Table", "Shape", "Rows of entries.");
    bound.constructors = {make<Table>(),
                          make<Table, unsigned int>({"nCols"}),
                          {{{"content", SignatureWord("any")}}, makeTableOfContent}};
    bound.properties = makeCellRows<Table>();
    append(bound.properties,
           {optionalProperty<Table, &Table::getStyleName, &Table::setStyleName, &Table::unsetStyleName>(
                "StyleName", "The name of a table style of the template, or of the office programs."),
            partRow<&Table::getHeaderRow, &Table::setHeaderRow, &Table::unsetHeaderRow>(
                "HeaderRow", "Whether the style shows the first row as a header."),
            partRow<&Table::getTotalRow, &Table::setTotalRow, &Table::unsetTotalRow>(
                "TotalRow", "Whether the style shows the last row as one of totals."),
            partRow<&Table::getFirstColumn, &Table::setFirstColumn, &Table::unsetFirstColumn>(
                "FirstColumn", "Whether the style shows the first column in its own way."),
            partRow<&Table::getLastColumn, &Table::setLastColumn, &Table::unsetLastColumn>(
                "LastColumn", "Whether the style shows the last column in its own way."),
            partRow<&Table::getBandedRows, &Table::setBandedRows, &Table::unsetBandedRows>(
                "BandedRows", "Whether the style shows rows in turns."),
            partRow<&Table::getBandedColumns, &Table::setBandedColumns, &Table::unsetBandedColumns>(
                "BandedColumns", "Whether the style shows columns in turns."),
            optionalProperty<Table, &Table::getHeaderRows, &Table::setHeaderRows, &Table::unsetHeaderRows>(
                "HeaderRows", "How many rows the header has, 1 unless told otherwise."),
            optionalProperty<Table, &Table::getRowHeight, &Table::setRowHeight, &Table::unsetRowHeight>(
                "RowHeight", "The least height of rows that have none of their own: a length."),
            BoundProperty{"ColSpecs", SignatureWord("list of ColSpec"), false,
                          AdaptedClassGetter<Table, getColSpecs>::get,
                          AdaptedClassSetter<Table, setColSpecs>::set,
                          "Widths and formats of the columns, in their order."},
            readOnlyProperty<Table, &Table::getNCols>("NCols", "The number of entries of the widest row.")});
    bound.methods = {
        Method<Table, TableRow(const TableRow&)>::row<&Table::append>(
            "append", {"row"}, "Appends this very row, which must not stand anywhere yet."),
        makeReplaceRow<Table, Table>("table"),
        Method<Table, boost::shared_ptr<TableEntry>(unsigned int, unsigned int)>::row<&getEntry>(
            "entry", {"row", "column"}, "The entry at a row and a column, which count from 1."),
        Method<Table, void(unsigned int, unsigned int, unsigned int, unsigned int)>::row<&mergeCells>(
            "merge", {"row", "column", "lastRow", "lastColumn"},
            "Makes one cell of those from one corner to another, which count from 1."),
        Method<Table, boost::shared_ptr<TableRow>(unsigned int)>::row<&getRow>(
            "row", {"row"}, "The row of a number, which counts from 1."),
    };
    return bound;
}

BoundClass describeTableRow() {
    BoundClass bound = describe<TableRow>("TableRow", "Element", "A row of a table.");
    bound.constructors = {make<TableRow>()};
    bound.properties = makeCellRows<TableRow>();
    bound.properties.push_back(
        optionalProperty<TableRow, &TableRow::getHeight, &TableRow::setHeight, &TableRow::unsetHeight>(
            "Height", "The least height: a length."));
    bound.methods = {Method<TableRow, TableEntry(const TableEntry&)>::row<&TableRow::append>(
        "append", {"entry"}, "Appends this very entry, which must not stand anywhere yet.")};
    return bound;
}

BoundClass describeTableEntry() {
    BoundClass bound = describe<TableEntry>("TableEntry", "Element", "One cell of a table, with paragraphs.");
    bound.constructors = {make<TableEntry>(), make<TableEntry, std::wstring>({"text"}),
                          make<TableEntry, Paragraph>({"paragraph"})};
    bound.properties = makeCellRows<TableEntry>();
    bound.properties.push_back(property<TableEntry, &TableEntry::getText, &TableEntry::setText>(
        "Text", "What the cell shows, as text. A cell of the template's keeps its look."));
    bound.methods = {
        Method<TableEntry, Paragraph(const Paragraph&)>::row<&TableEntry::append>(
            "append", {"paragraph"}, "Appends this very paragraph, which must not stand anywhere yet."),
        Method<TableEntry, Paragraph(Wide)>::row<&TableEntry::append>("append", {"text"},
                                                                      "Appends a new paragraph."),
    };
    return bound;
}

BoundClass describeColSpec() {
    BoundClass bound = describe<ColSpec>("ColSpec", "Element", "Width and formats of a table's column.");
    bound.constructors = {make<ColSpec>(), make<ColSpec, std::wstring>({"width"})};
    bound.properties = makeCellRows<ColSpec>();
    bound.properties.push_back(
        formatProperty<ColSpec, &ColSpec::getWidth, &ColWidth::getValue, &ColSpec::setWidth,
                       &ColSpec::unsetWidth>("Width", "A length."));
    return bound;
}

} // namespace

std::vector<BoundClass> describeTables() {
    return {describeTable(), describeTableRow(), describeTableEntry(), describeColSpec()};
}

} // namespace vellox::ppt::hostbind
