#include "cli/CsvFile.h"

#include "cli/Data.h"
#include "cli/Files.h"

#include <algorithm>
#include <unordered_set>

namespace vellox::cli {

namespace {

class CsvReader {
public:
    CsvReader(const std::string& text, const std::string& file)
        : text_(text),
          file_(file),
          separator_(findSeparator(text)) {}

    std::vector<CsvRow> run() {
        std::vector<CsvRow> rows;
        while (at_ < text_.size()) {
            CsvRow row = readRow();
            if (row.cells.size() > 1 || !row.cells[0].empty())
                rows.push_back(std::move(row));
        }
        return rows;
    }

private:
    static char findSeparator(const std::string& text) {
        constexpr char kSeparators[] = {',', ';', '\t'};
        std::size_t counts[] = {0, 0, 0};
        bool isQuoted = false;
        for (const char c : text) {
            if (c == '"')
                isQuoted = !isQuoted;
            if (isQuoted)
                continue;
            if (c == '\n' || c == '\r')
                break;
            for (std::size_t i = 0; i < 3; ++i)
                if (c == kSeparators[i])
                    ++counts[i];
        }
        return kSeparators[std::max_element(counts, counts + 3) - counts];
    }

    CsvRow readRow() {
        CsvRow row;
        row.line = line_;
        do
            row.cells.push_back(readCell());
        while (takes(separator_));
        if (at_ < text_.size() && !takesLineEnd())
            fail("there is text behind a cell in quotation marks");
        ++line_;
        return row;
    }

    std::string readCell() {
        if (takes('"'))
            return readQuotedCell();
        std::string cell;
        while (at_ < text_.size() && text_[at_] != separator_ && text_[at_] != '\n' && text_[at_] != '\r')
            cell += text_[at_++];
        return cell;
    }

    std::string readQuotedCell() {
        const unsigned line = line_;
        std::string cell;
        while (at_ < text_.size()) {
            if (takes('"') && !takes('"', 0))
                return cell;
            if (at_ >= text_.size())
                break;
            if (text_[at_] == '\n')
                ++line_;
            cell += text_[at_++];
        }
        line_ = line;
        fail("a quotation mark has no end");
    }

    /// "\n", "\r\n", or "\r" alone.
    bool takesLineEnd() {
        const bool isReturn = takes('\r');
        return takes('\n') || isReturn;
    }

    /// Goes past a character if it stands here. With no step it only looks.
    bool takes(char c, std::size_t step = 1) {
        if (at_ >= text_.size() || text_[at_] != c)
            return false;
        at_ += step;
        return true;
    }

    [[noreturn]] void fail(const std::string& text) const { throw DataFailure({file_, {}, line_}, text); }

    const std::string& text_;
    const std::string& file_;
    char separator_;
    std::size_t at_ = 0;
    unsigned line_ = 1;
};

void checkRecords(const CsvFile& csv, const std::string& file) {
    std::unordered_set<std::string> names;
    for (std::size_t i = 0; i < csv.names.size(); ++i) {
        if (csv.names[i].empty())
            throw DataFailure({file, {}, 1}, "column " + std::to_string(i + 1) + " has no name");
        if (!names.insert(csv.names[i]).second)
            throw DataFailure({file, {}, 1}, "two columns have the name \"" + csv.names[i] + "\"");
    }
    for (const CsvRow& row : csv.rows)
        if (row.cells.size() != csv.names.size())
            throw DataFailure({file, {}, row.line}, "the row has " + std::to_string(row.cells.size()) +
                                                        " cells, and there are " +
                                                        std::to_string(csv.names.size()) + " columns");
}

} // namespace

CsvFile readCsvFile(const std::string& file, bool isRecords) {
    const std::string text = readTextFile(file);
    std::vector<CsvRow> rows = CsvReader(text, file).run();
    if (rows.empty())
        throw Failure(file + ": it has no rows");
    CsvFile csv;
    csv.names = std::move(rows.front().cells);
    csv.rows.assign(std::make_move_iterator(rows.begin() + 1), std::make_move_iterator(rows.end()));
    if (isRecords)
        checkRecords(csv, file);
    return csv;
}

} // namespace vellox::cli
