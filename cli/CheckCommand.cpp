#include "cli/Command.h"
#include "cli/Files.h"

#include <nlohmann/json.hpp>

namespace vellox::cli {

namespace {

using Json = nlohmann::ordered_json;

Json toJson(const ppt::Finding& finding) {
    return {{"severity", toString(finding.severity)}, {"code", finding.code},
            {"part", toUtf8(finding.part)},           {"slide", finding.slide},
            {"shape", toUtf8(finding.shape)},         {"text", toUtf8(finding.text)}};
}

class CheckCommand : public Command {
public:
    const char* getName() const override { return "check"; }
    const char* getSummary() const override { return "Would a strict reader want to repair these decks?"; }
    const char* getManual() const override {
        return "Checks decks, templates and slide shows: archive, content types, relationships, lists of "
               "slides, and "
               "each element against the format. Nothing is changed.\n"
               "A sound deck gives no line. Each finding is a line with the file, the severity, the place, "
               "the text, "
               "and the code that the documents explain. Findings that are only worth knowing are told with "
               "--verbose.\n"
               "The status is 1 if a deck has an error, or with --strict a warning, and 2 if one can't be "
               "read.";
    }
    void declare(CLI::App& app) override {
        app.add_option("DECK", decks_, "Files to check, or folders with the parts as files")
            ->required()
            ->expected(1, -1);
        app.add_flag("--strict", isStrict_, "Let warnings count as errors");
        app.add_flag("--json", isJson_, "Write the findings of each deck as JSON");
    }

    int run(Console& console) override {
        int status = kDone;
        Json all = Json::array();
        for (const std::string& deck : decks_)
            status = std::max(status, check(deck, console, all));
        if (isJson_)
            console.print(all.dump(2, ' ', false, Json::error_handler_t::replace));
        return status;
    }

private:
    int check(const std::string& deck, Console& console, Json& all) {
        try {
            requireFile(deck);
        } catch (const Failure& failure) {
            console.printError({failure.what(), {}});
            return kFailed;
        }
        int status = kDone;
        Json rows = Json::array();
        for (const ppt::Finding& finding : ppt::checkPackage(toPath(deck))) {
            if (finding.code == "cannotOpen")
                status = kFailed;
            else if (finding.severity == ppt::Severity::Error ||
                     (isStrict_ && finding.severity == ppt::Severity::Warning))
                status = std::max<int>(status, kFound);
            if (isJson_)
                rows.push_back(toJson(finding));
            else if (finding.severity != ppt::Severity::Info || console.isVerbose())
                console.print(makePrintable(deck) + ": " + toString(finding.severity) + ": " +
                              describe(finding) + " (" + finding.code + ")");
        }
        if (isJson_)
            all.push_back({{"deck", deck}, {"isSound", status == kDone}, {"findings", std::move(rows)}});
        return status;
    }

    std::vector<std::string> decks_;
    bool isStrict_ = false;
    bool isJson_ = false;
};

} // namespace

std::unique_ptr<Command> makeCheckCommand() {
    return std::make_unique<CheckCommand>();
}

} // namespace vellox::cli
