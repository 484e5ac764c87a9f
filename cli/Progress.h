/// @file
/// How far a batch has come: a bar on a terminal, a line for each deck elsewhere.

#ifndef CLI_PROGRESS_H
#define CLI_PROGRESS_H

#include <string>

#include "cli/Console.h"

namespace vellox::cli {

class Progress {
public:
    /// @param isQuiet neither bar nor lines for what went well
    Progress(Console& console, std::size_t count, bool isQuiet);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void tellDone(const std::string& output);
    void tellFailed(const ErrorText& error);
    void warn(const std::string& text);

private:
    void draw() const;
    void clear() const;

    Console& console_;
    std::size_t count_;
    std::size_t done_ = 0, failed_ = 0;
    bool hasBar_;
    bool hasLines_;
};

} // namespace vellox::cli

#endif
