/// @file
/// The commands, each with its words and what it does. From this table come the program, its man page, the
/// completions of shells, and a page of the documents.

#ifndef CLI_COMMAND_H
#define CLI_COMMAND_H

#include <CLI/CLI.hpp>
#include <memory>
#include <vector>

#include "cli/Console.h"

namespace vellox::cli {

class Command {
public:
    virtual ~Command() = default;

    virtual const char* getName() const = 0;
    virtual const char* getSummary() const = 0;
    /// Paragraphs for the manual, one a line; "$ " begins a line of a session.
    virtual const char* getManual() const = 0;
    /// Declares its arguments.
    virtual void declare(CLI::App& app) = 0;
    /// @return a Status
    /// @throws anything, which ends the program with a line
    virtual int run(Console& console) = 0;
};

using Commands = std::vector<std::unique_ptr<Command>>;

/// All of them, in the order of the manual.
Commands makeCommands();

std::unique_ptr<Command> makeCheckCommand();
std::unique_ptr<Command> makeDiffCommand();
std::unique_ptr<Command> makeDoctorCommand();
std::unique_ptr<Command> makeFillCommand();
std::unique_ptr<Command> makeInspectCommand();
std::unique_ptr<Command> makeNewCommand();
std::unique_ptr<Command> makeTextCommand();

/// The program with its commands, ready to parse.
std::unique_ptr<CLI::App> makeApp(const Commands& commands, bool& isVerbose);

/// The words of all the program's ends.
struct StatusRow {
    Status status;
    const char* meaning;
};
extern const StatusRow kStatuses[];
extern const std::size_t kStatusCount;

} // namespace vellox::cli

#endif
