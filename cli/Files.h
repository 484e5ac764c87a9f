/// @file
/// Files as the command needs them.

#ifndef CLI_FILES_H
#define CLI_FILES_H

#include <array>
#include <string>
#include <vector>

namespace vellox::cli {

/// A path as the library takes it.
/// @throws Failure for one that isn't in UTF-8, which would become that of another file
std::wstring toPath(const std::string& path);

/// Refuses a file that can't be read, before anything is made of it.
/// @throws Failure
void requireFile(const std::string& path);

/// @throws Failure if it can't be read, or isn't UTF-8
std::string readTextFile(const std::string& path);

/// The path of a template: "default" is the one that comes along, unless there is a file of that name.
/// @throws Failure if it can't be read
std::string findTemplate(const std::string& name);

/// What a command writes.
struct OutputKind {
    const char* name; ///< in words: "a deck"
    std::array<const char*, 6> extensions;
    const char* addition; ///< what a name without an extension gets
};
inline constexpr OutputKind kDeckOutput{
    "a deck", {".pptx", ".potx", ".ppsx", ".pptm", ".potm", ".ppsm"}, ".pptx"};
inline constexpr OutputKind kTemplateOutput{"a template", kDeckOutput.extensions, ""};
inline constexpr OutputKind kPageOutput{"a page", {".html", ".htm"}, ""};

/// The path of an output, with its extension.
/// @param inputs the files that it is made of
/// @throws Failure for no name, a folder, the extension of something else, and for one of the inputs
std::string makeOutput(const std::string& path, const OutputKind& kind,
                       const std::vector<std::string>& inputs);

/// @{ Writes a whole file or none: bytes, or a copy of another file. One that is replaced gives its mode and, as far as the
/// system allows, its owner; one that is read-only, or no regular file, isn't.
/// @throws Failure
void writeFile(const std::string& path, const std::string& bytes);
void copyFile(const std::wstring& source, const std::string& path);
/// @}

/// Where a path leads that stands in a file: it counts from the file's folder.
std::string resolve(const std::string& path, const std::string& fromFile);

} // namespace vellox::cli

#endif
