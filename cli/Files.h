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

/// Where a path leads that stands in a file: it counts from the file's folder.
std::string resolve(const std::string& path, const std::string& fromFile);

} // namespace vellox::cli

#endif
