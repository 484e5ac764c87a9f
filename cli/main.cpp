// The program: its arguments to a command, and what comes of it to lines and a status.

#include "cli/Command.h"

namespace {

using namespace vellox::cli;

/// Findings become lines of the command's own, which know more of the place; other warnings are lines here.
class Host : public vellox::host::HostServices {
public:
    explicit Host(Console& console) : console_(console) {}
    void raiseWarning(const vellox::MsgID& id, const std::wstring& text) override {
        if (id.catalog != vellox::ppt_finding::kCatalog)
            console_.warn(vellox::toUtf8(text));
    }

private:
    Console& console_;
};

/// What is wrong with the arguments, in one line; or the help or version that was asked for.
int answer(const CLI::App& app, const CLI::ParseError& error, Console& console) {
    if (error.get_exit_code() == 0) {
        const int status = app.exit(error);
        console.flush();
        return status;
    }
    const auto used = app.get_subcommands();
    const std::string name = used.empty() ? "vellox" : "vellox " + used.front()->get_name();
    const std::vector<std::string> rest = app.remaining();
    std::string text = error.what();
    if (used.empty() && !rest.empty()) // of which the text knows nothing
        text = (rest.front()[0] == '-' ? "there is no option " : "there is no command ") + rest.front();
    console.printError({text + " (see " + name + " --help)", {}});
    return kFailed;
}

int run(int argc, char** argv, Console& console) {
    bool isVerbose = false;
    const Commands commands = makeCommands();
    const auto app = makeApp(commands, isVerbose);
    try {
        app->parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return answer(*app, error, console);
    }
    console.setVerbose(isVerbose);
    Host host(console);
    vellox::host::setHostServices(&host);
    int status = kFailed;
    for (const auto& command : commands)
        if (app->got_subcommand(command->getName()))
            status = command->run(console);
    console.flush();
    vellox::host::setHostServices(nullptr);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    Console console;
    try {
        return run(argc, argv, console);
    } catch (...) {
        vellox::host::setHostServices(nullptr);
        console.printError(describeCurrentError());
        return kFailed;
    }
}
