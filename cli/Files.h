/// @file
/// Files as the command needs them.

#ifndef CLI_FILES_H
#define CLI_FILES_H

#include <string>

namespace vellox::cli {

/// Refuses a file that can't be read, before anything is made of it.
/// @throws Failure
void requireFile(const std::string& path);

/// @throws Failure if it can't be read, or isn't UTF-8
std::string readTextFile(const std::string& path);

/// The path of a template: "default" is the one that comes along, unless there is a file of that name.
/// @throws Failure if it can't be read
std::string findTemplate(const std::string& name);

/// @{ Writes a whole file or none: beside its place, and renamed once it is complete. What stands there is
/// replaced.
/// @throws Failure
void writeWhole(const std::string& path, const std::string& bytes);
void copyWhole(const std::string& from, const std::string& to);
/// @}

/// Where a path leads that stands in a file: it counts from the file's folder.
std::string resolve(const std::string& path, const std::string& fromFile);

} // namespace vellox::cli

#endif
