/// @file
/// Data files as one tree of values, with the line of each, so that whatever is wrong can be found.

#ifndef CLI_DATA_H
#define CLI_DATA_H

#include <string>
#include <utility>
#include <vector>

#include "cli/Console.h"

namespace vellox::cli {

struct Data {
    enum class Kind { Nothing, Logical, Number, Text, List, Record };
    using Member = std::pair<std::string, Data>;

    Kind kind = Kind::Nothing;
    std::string text;            ///< of a text; a number or logical value as it is spelled
    std::vector<Data> items;     ///< of a list
    std::vector<Member> members; ///< of a record, in the order of the file
    unsigned line = 0;           ///< from 1; 0 if it isn't known

    const Data* find(const std::string& name) const;
    bool isScalar() const { return kind != Kind::List && kind != Kind::Record; }
};

/// "a list", "a text" and so on.
const char* toString(Data::Kind kind);

/// Where a value stands: the file, and the way to it, such as "slides[2].contents.Plot".
struct DataPlace {
    std::string file;
    std::string path;
    unsigned line = 0;

    DataPlace member(const std::string& name, const Data& value) const;
    DataPlace item(std::size_t i, const Data& value) const; ///< from 0; it is shown from 1
};

/// Something is wrong with a value: "report.yaml:12: slides[2].layout: ...".
class DataFailure : public Failure {
public:
    DataFailure(const DataPlace& place, const std::string& text, std::string id = {});
};
std::string describe(const DataPlace& place);

/// How deep values may stand in one another: far above any honest file.
constexpr unsigned kMaxDataDepth = 100;

/// What all values of a file take together, which is far above any honest file at the most. With aliases, a short text
/// can be a huge tree.
class DataSize {
public:
    /// A value, or a name, with a text of so many bytes.
    /// @return false if that is too much
    bool add(std::size_t bytes) { return (size_ += sizeof(Data) + bytes) <= kMost; }

private:
    static constexpr std::size_t kMost = std::size_t(256) << 20;

    std::size_t size_ = 0;
};

/// @{ @throws Failure for what can't be parsed, with file, line and reason
Data parseJson(const std::string& text, const std::string& file);
Data parseYaml(const std::string& text, const std::string& file);
/// @}

/// Reads a file by its extension: .json, .yaml, .yml, or .csv with one row of values below one of names,
/// which is a record of tokens.
/// @throws Failure
Data readDataFile(const std::string& file);

/// The names nearest to a wrong one, as words to append: "; there is a, b and c". Empty where there are none.
std::string describeNearest(const std::string& name, const std::vector<std::string>& names);

} // namespace vellox::cli

#endif
