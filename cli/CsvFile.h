/// @file
/// Tables as CSV: RFC 4180, with a comma, a semicolon or a tab between cells.

#ifndef CLI_CSVFILE_H
#define CLI_CSVFILE_H

#include <string>
#include <vector>

namespace vellox::cli {

struct CsvRow {
    std::vector<std::string> cells;
    unsigned line = 0; ///< that it begins in, from 1
};

struct CsvFile {
    std::vector<std::string> names; ///< the first row
    std::vector<CsvRow> rows;       ///< the others; blank lines are none
};

/// The separator is the one of "," ";" and tab that the first row has most of. Cells may stand in quotation
/// marks, in which two are one.
/// @param isRecords rows are records: each name stands once and isn't empty, and all rows have as many cells
/// @throws Failure with file and line
CsvFile readCsvFile(const std::string& file, bool isRecords = true);

} // namespace vellox::cli

#endif
