/// @file
/// What the command says, and where: results on the standard output, all else on the standard error stream.

#ifndef CLI_CONSOLE_H
#define CLI_CONSOLE_H

#include <stdexcept>
#include <string>

#include "vellox/vellox.h"

namespace vellox::cli {

/// How the process ends.
enum Status {
    kDone = 0,
    kFound = 1,        ///< a deck has errors, two decks differ, a deck of several couldn't be made
    kFailed = 2,       ///< nothing came of it: a wrong option, a file that can't be read or written
    kInterrupted = 130 ///< by Ctrl-C, as shells have it
};

/// An error of the command's own, in UTF-8 and in one line.
class Failure : public std::runtime_error {
public:
    explicit Failure(const std::string& text, std::string id = {})
        : runtime_error(text),
          id_(std::move(id)) {}
    /// Of the library's error that it tells of; empty for others.
    const std::string& getID() const { return id_; }

private:
    std::string id_;
};

/// An error in words, and its identifier; that is empty for errors without one.
struct ErrorText {
    std::string text;
    std::string id;
};

/// The error that is being handled. @pre within a catch clause
ErrorText describeCurrentError();

class Console {
public:
    void setVerbose(bool verbose) { isVerbose_ = verbose; }
    bool isVerbose() const { return isVerbose_; }

    /// A line of results. Control characters become "\xNN": a deck can't steer the terminal.
    void print(const std::string& line);
    /// The same, as it stands.
    void printRaw(const std::string& text);
    /// "vellox: " and the text, in one line; the identifier, too, if it was asked for.
    void printError(const ErrorText& error);
    void warn(const std::string& text);
    /// Sends all results off.
    /// @throws Failure if the standard output takes them not
    void flush();

private:
    void check();

    bool isVerbose_ = false;
};

/// In UTF-8, with line ends and other control characters visible.
std::string makePrintable(const std::wstring& text);
std::string makePrintable(const std::string& text);

/// "slide 3, "Title": text": where the finding is, and what.
std::string describe(const ppt::Finding& finding);

} // namespace vellox::cli

#endif
