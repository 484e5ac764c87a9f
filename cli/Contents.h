/// @file
/// Values of data files as the library's content.

#ifndef CLI_CONTENTS_H
#define CLI_CONTENTS_H

#include <functional>

#include "cli/Data.h"

namespace vellox::cli {

/// What becomes of each text on its way.
using TextOf = std::function<std::wstring(const std::string&, const DataPlace&)>;

/// The items as paragraphs, those of lists in it one level deeper.
HvContentPtr makeList(const Data& list, const DataPlace& place, const TextOf& textOf);

/// The value of a token: a text, a list, a record, or a list of these. Texts stay as they are; numbers have the digits
/// that they have in the file.
ppt::Content makeValue(const Data& value);
/// The rows of a CSV file as records, for tokens such as "{rows.name}".
/// @throws Failure
ppt::Content makeRecords(const std::string& file);

/// A table of a list of rows. Short ones are filled up with cells.
ppt::Table makeTable(const Data& rows, const DataPlace& place, const TextOf& textOf);
/// Lets columns of nothing but numbers and missing ones stand at the right, where nothing is said of that. Numbers are
/// texts here, since these keep their digits.
void alignNumbers(ppt::Table& table);
/// A table of a CSV file, in which the names are the first row. Numbers keep the digits that they have there.
/// @throws Failure
ppt::Table makeTable(const std::string& file);

} // namespace vellox::cli

#endif
