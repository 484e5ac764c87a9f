#include "cli/Command.h"

#include <iterator>

namespace vellox::cli {

const StatusRow kStatuses[] = {
    {kDone, "all went well"},
    {kFound, "a deck or template has errors, two decks differ, or a deck of several couldn't be made"},
    {kFailed, "nothing came of it: a wrong option, a file that can't be read or written"},
    {kInterrupted, "Ctrl-C ended a batch; the decks that were made are whole"},
};
const std::size_t kStatusCount = std::size(kStatuses);

Commands makeCommands() {
    Commands commands;
    commands.push_back(makeFillCommand());
    commands.push_back(makeInspectCommand());
    commands.push_back(makeDoctorCommand());
    commands.push_back(makeCheckCommand());
    commands.push_back(makeTextCommand());
    commands.push_back(makeDiffCommand());
    commands.push_back(makeNewCommand());
    return commands;
}

std::unique_ptr<CLI::App> makeApp(const Commands& commands, bool& isVerbose) {
    auto app =
        std::make_unique<CLI::App>("PowerPoint decks from templates and data, and what is in them", "vellox");
    app->set_version_flag("--version", "vellox " VELLOX_VERSION, "Say which version this is");
    app->set_help_flag("-h,--help", "Say how it is used");
    app->add_flag("-v,--verbose", isVerbose, "Tell the identifiers of errors, and whatever else there is");
    app->require_subcommand(1);
    for (const auto& command : commands) {
        CLI::App* sub = app->add_subcommand(command->getName(), command->getSummary());
        sub->fallthrough();
        command->declare(*sub);
    }
    return app;
}

} // namespace vellox::cli
