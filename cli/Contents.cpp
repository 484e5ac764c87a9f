#include "cli/Contents.h"

#include "cli/CsvFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vellox::cli {

namespace {

/// What a program's own list is to the library.
class Items : public HvList {
public:
    void append(HvContentPtr item) { items_.push_back(std::move(item)); }
    HvContentPtr getItem(unsigned int i) const override { return items_[i]; }
    bool isEmptyItem(unsigned int i) const override { return !items_[i]; }
    unsigned int getSize() const override { return static_cast<unsigned int>(items_.size()); }

private:
    std::vector<HvContentPtr> items_;
};

class Cells : public HvTable {
public:
    void append(std::vector<std::wstring> row) {
        columns_ = std::max(columns_, row.size());
        rows_.push_back(std::move(row));
    }
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override {
        if (isEmptyEntry(r, c))
            return {};
        return boost::make_shared<StringContent>(rows_[r][c]);
    }
    bool isEmptyEntry(unsigned int r, unsigned int c) const override {
        return c >= rows_[r].size() || rows_[r][c].empty();
    }
    unsigned int getNRows() const override { return static_cast<unsigned int>(rows_.size()); }
    unsigned int getNCols() const override { return static_cast<unsigned int>(columns_); }

private:
    std::vector<std::vector<std::wstring>> rows_;
    std::size_t columns_ = 0;
};

std::vector<std::wstring> widen(const std::vector<std::string>& cells) {
    std::vector<std::wstring> row;
    for (const std::string& cell : cells)
        row.push_back(fromUtf8(cell));
    return row;
}

} // namespace

HvContentPtr makeList(const Data& list, const DataPlace& place, const TextOf& textOf) {
    const auto items = boost::make_shared<Items>();
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        const Data& item = list.items[i];
        const DataPlace at = place.item(i, item);
        if (item.kind == Data::Kind::List)
            items->append(makeList(item, at, textOf));
        else
            items->append(boost::make_shared<StringContent>(textOf(item.text, at)));
    }
    return boost::make_shared<ListContent>(items);
}

ppt::Content makeValue(const Data& value) {
    if (value.kind == Data::Kind::Nothing)
        return {};
    if (value.isScalar())
        return fromUtf8(value.text);
    if (value.kind == Data::Kind::List) {
        const auto items = boost::make_shared<Items>();
        for (const Data& item : value.items)
            items->append(makeValue(item));
        return boost::make_shared<ListContent>(items);
    }
    std::vector<ppt::Contents::Row> fields;
    for (const Data::Member& member : value.members)
        fields.emplace_back(fromUtf8(member.first), makeValue(member.second));
    return boost::make_shared<ppt::RecordContent>(ppt::Contents(std::move(fields)));
}

ppt::Content makeRecords(const std::string& file) {
    const CsvFile csv = readCsvFile(file);
    const auto items = boost::make_shared<Items>();
    for (const CsvRow& row : csv.rows) {
        std::vector<ppt::Contents::Row> fields;
        for (std::size_t i = 0; i < csv.names.size(); ++i)
            fields.emplace_back(fromUtf8(csv.names[i]), fromUtf8(row.cells[i]));
        items->append(boost::make_shared<ppt::RecordContent>(ppt::Contents(std::move(fields))));
    }
    return boost::make_shared<ListContent>(items);
}

ppt::Table makeTable(const Data& rows, const DataPlace& place, const TextOf& textOf) {
    const auto cells = boost::make_shared<Cells>();
    for (std::size_t r = 0; r < rows.items.size(); ++r) {
        const Data& row = rows.items[r];
        std::vector<std::wstring> texts;
        for (std::size_t c = 0; c < row.items.size(); ++c)
            texts.push_back(textOf(row.items[c].text, place.item(r, row).item(c, row.items[c])));
        cells->append(std::move(texts));
    }
    return ppt::Table(cells);
}

namespace {

/// What data frames write where nothing was measured.
bool isMissing(const std::wstring& text) {
    constexpr const wchar_t* kTexts[] = {L"", L"nan", L"NaN", L"NaT", L"<NA>", L"None"};
    return std::find(std::begin(kTexts), std::end(kTexts), text) != std::end(kTexts);
}

bool isNumber(const std::wstring& text) {
    const std::string digits = toUtf8(text);
    double number = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return end.ec == std::errc() && end.ptr == digits.data() + digits.size() && std::isfinite(number);
}

bool hasOnlyNumbers(ppt::Table& table, unsigned column) {
    const auto header = table.getHeaderRows();
    bool hasNumber = false;
    for (unsigned r = header.isSet() ? std::max(header.get(), 1U) : 1; r < table.getNChildren(); ++r) {
        const std::wstring text = table.entry(r, column)->getText();
        if (!isMissing(text) && !isNumber(text))
            return false;
        hasNumber = hasNumber || !isMissing(text);
    }
    return hasNumber;
}

} // namespace

void alignNumbers(ppt::Table& table) {
    if (table.getHAlign())
        return;
    ppt::Table::ColSpecs columns = table.getColSpecs();
    columns.resize(std::max<std::size_t>(columns.size(), table.getNCols()));
    for (std::size_t c = 0; c < columns.size(); ++c) {
        if (!columns[c])
            columns[c] = boost::make_shared<ppt::ColSpec>();
        if (c < table.getNCols() && !columns[c]->getHAlign() &&
            hasOnlyNumbers(table, static_cast<unsigned>(c)))
            columns[c]->setHAlign(L"right");
    }
    table.setColSpecs(columns);
}

ppt::Table makeTable(const std::string& file) {
    const CsvFile csv = readCsvFile(file, false);
    const auto cells = boost::make_shared<Cells>();
    cells->append(widen(csv.names));
    for (const CsvRow& row : csv.rows)
        cells->append(widen(row.cells));
    return ppt::Table(cells);
}

} // namespace vellox::cli
