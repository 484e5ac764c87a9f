/// @file
/// A deck as a data file describes it: slides by layout, and what goes into their placeholders.

#ifndef CLI_DECKDESCRIPTION_H
#define CLI_DECKDESCRIPTION_H

#include <functional>
#include <map>
#include <string>

#include "cli/Data.h"

namespace vellox::cli {

/// One row of a table of decks: values by column.
using Record = std::map<std::string, std::string>;

/// A text in which "{column}" stands for the record's value of the name, and "{{" and "}}" for braces.
/// @throws DataFailure for a column that doesn't exist, and for a brace alone
std::string fillIn(const std::string& text, const Record& record, const DataPlace& place);

class DeckDescription {
public:
    /// Checks the form of it all; files that it names are looked at when a deck is made.
    /// @throws DataFailure for what isn't as the schema has it
    DeckDescription(Data data, const std::string& file);

    /// Makes the slides of one deck.
    /// @param record in whose values texts are filled in; null if they stay as they are
    /// @param report takes what was found with the place that it came of
    /// @throws DataFailure for layouts and files that don't exist
    using Report = std::function<void(const DataPlace&, const ppt::Finding&)>;
    void make(ppt::Presentation& deck, const Record* record, const Report& report) const;

private:
    Data data_;
    DataPlace root_;
};

} // namespace vellox::cli

#endif
