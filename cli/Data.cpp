#include "cli/Data.h"

#include "cli/CsvFile.h"
#include "cli/Files.h"

#include <algorithm>
#include <filesystem>
#include <numeric>

namespace vellox::cli {

const Data* Data::find(const std::string& name) const {
    for (const Member& member : members)
        if (member.first == name)
            return &member.second;
    return nullptr;
}

const char* toString(Data::Kind kind) {
    constexpr const char* kWords[] = {"nothing", "a truth value", "a number", "a text", "a list", "a record"};
    return kWords[static_cast<std::size_t>(kind)];
}

DataPlace DataPlace::member(const std::string& name, const Data& value) const {
    return {file, path + (path.empty() ? "" : ".") + name, value.line > 0 ? value.line : line};
}

DataPlace DataPlace::item(std::size_t i, const Data& value) const {
    return {file, path + "[" + std::to_string(i + 1) + "]", value.line > 0 ? value.line : line};
}

std::string describe(const DataPlace& place) {
    std::string text = place.file;
    if (place.line > 0)
        text += ":" + std::to_string(place.line);
    return text + ": " + (place.path.empty() ? "" : place.path + ": ");
}

DataFailure::DataFailure(const DataPlace& place, const std::string& text, std::string id)
    : Failure(describe(place) + text, std::move(id)) {}

Data readDataFile(const std::string& file) {
    std::string extension = std::filesystem::path(file).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    if (extension == ".json")
        return parseJson(readTextFile(file), file);
    if (extension == ".yaml" || extension == ".yml")
        return parseYaml(readTextFile(file), file);
    if (extension != ".csv")
        throw Failure(file + ": data is .json, .yaml or .csv");
    const CsvFile csv = readCsvFile(file);
    if (csv.rows.size() != 1)
        throw Failure(file + ": it has " + std::to_string(csv.rows.size()) +
                      " rows of values, and one deck takes one; --each makes a deck of every row");
    Data tokens, data;
    tokens.kind = data.kind = Data::Kind::Record;
    for (std::size_t i = 0; i < csv.names.size(); ++i) {
        Data value;
        value.kind = Data::Kind::Text;
        value.text = csv.rows[0].cells[i];
        value.line = csv.rows[0].line;
        tokens.members.emplace_back(csv.names[i], std::move(value));
    }
    data.members.emplace_back("tokens", std::move(tokens));
    return data;
}

namespace {

/// How many letters must change, be added or be dropped.
std::size_t getDistance(const std::string& one, const std::string& other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t corner = row[0]++;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t change = corner + (one[i] == other[j] ? 0 : 1);
            corner = row[j + 1];
            row[j + 1] = std::min({change, row[j] + 1, corner + 1});
        }
    }
    return row.back();
}

} // namespace

std::string describeNearest(const std::string& name, const std::vector<std::string>& names) {
    constexpr std::size_t kMaxNames = 3, kMaxLength = 200;
    std::vector<std::pair<std::size_t, std::string>> sorted;
    for (const std::string& candidate : names)
        sorted.emplace_back(getDistance(name.substr(0, kMaxLength), candidate.substr(0, kMaxLength)),
                            candidate);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::string text;
    const std::size_t count = std::min(sorted.size(), kMaxNames);
    for (std::size_t i = 0; i < count; ++i)
        text += (i == 0 ? "; there is \"" : i + 1 < count ? ", \"" : " and \"") + sorted[i].second + "\"";
    return text;
}

} // namespace vellox::cli
