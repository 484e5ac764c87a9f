/// @file
/// Temporary files, and packages as plain text.

#ifndef VELLOX_TESTS_SUPPORT_FILES_H
#define VELLOX_TESTS_SUPPORT_FILES_H

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace vellox::test {

/// A folder that is removed with this object.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& getPath() const { return path_; }
    /// The path of a file in it.
    std::wstring operator/(const std::wstring& name) const;
    std::vector<std::string> list() const;

private:
    std::filesystem::path path_;
};

void writeFile(const std::wstring& path, const std::string& bytes);
std::string readFile(const std::wstring& path);

/// A PNG as far as anybody reads it: its header.
std::string makePng(unsigned width, unsigned height);

/// The entries of an archive, inflated, by name.
using Parts = std::map<std::string, std::string>;

Parts readParts(const std::wstring& package);

/// How an archive is written: as programs out there do.
struct ZipStyle {
    bool contentTypesLast = false;
    bool withFolders = false;
    bool stored = false;
    std::vector<std::string> twice; // entries that are written twice, under names that differ in case
};

void writeParts(const std::wstring& package, const Parts& parts, const ZipStyle& style = {});

/// The parts of the default template.
const Parts& getTemplateParts();

/// The same with some text in one part replaced.
/// @throws std::runtime_error if the text isn't there
Parts withChange(Parts parts, const std::string& part, const std::string& from, const std::string& to);

} // namespace vellox::test

#endif
