#include "cli/Command.h"
#include "cli/Files.h"

#include <nlohmann/json.hpp>
#include <optional>

namespace vellox::cli {

namespace {

using Json = nlohmann::ordered_json;
using namespace ppt;

/// What somebody can do about a finding, by its code.
struct Advice {
    const char* code;
    const char* text;
    bool isMended; ///< by --heal
};

constexpr char kNothing[] = "nothing is to be done for the profile office";
constexpr Advice kAdvices[] = {
    {"strictForm", "save it as an ordinary presentation or template", false},
    {"macros", "save it without macros, unless decks are to have them", false},
    {"unusualPrefixes", "open it in an office program and save it again", false},
    {"sampleSlides", "delete them, unless decks are to begin with them", false},
    {"duplicateMasterName", "give one of them another name", true},
    {"duplicateLayoutName", "give one of them another name", true},
    {"duplicateName", "give one of them another name in the selection pane of the layout", true},
    {"emptyName", "give it a name in the selection pane of the layout", true},
    {"paddedName", "take the blanks off", true},
    {"multilineName", "write it on one line", true},
    {"hiddenFromClassic", kNothing, false},
    {"unfilledByClassic", kNothing, false},
    {"hidesMasterShapes", kNothing, false},
    {"noPlace", "move it on the layout, which gives it a place", true},
    {"inheritedPlace", kNothing, true},
    {"equalPlaceholders", "delete one and insert it again", true},
    {"fixedDate", "replace it with a date field, or delete it", false},
    {"missingFont", "install it where decks are drawn, or choose another one", false},
    {"hugeMedia", "make it smaller, or take it out", false},
    {"noLayouts", "add a layout in the slide master view", false},
};

const Advice* findAdvice(const std::string& code) {
    for (const Advice& advice : kAdvices)
        if (code == advice.code)
            return &advice;
    return nullptr;
}

std::string describeAdvice(const std::string& code) {
    const Advice* advice = findAdvice(code);
    if (!advice)
        return {};
    return std::string("; ") + advice->text + (advice->isMended ? ", or use --heal" : "");
}

class DoctorCommand : public Command {
public:
    const char* getName() const override { return "doctor"; }
    const char* getSummary() const override { return "Are these templates fit for decks by program?"; }
    const char* getManual() const override {
        return "Tells what stands in the way of programs: names that several placeholders have or that "
               "nobody can type, "
               "placeholders without a place, dates that stay, huge media, and more, the worst first, each "
               "with what can be "
               "done about it. What is only worth knowing is told with --verbose.\n"
               "With --heal, a copy of the template is written in which names are unique and speak, and "
               "whatever else can "
               "be mended without changing the look is mended; a line tells each change.\n"
               "The status is 1 if a template has an error, or with --strict a warning, and 2 if one can't "
               "be read.";
    }
    void declare(CLI::App& app) override {
        app.add_option("TEMPLATE", templates_, "The templates to look at")->required()->expected(1, -1);
        app.add_option("--heal", healed_, "Write a mended copy of the template to this file")
            ->type_name("FILE");
        app.add_flag("--strict", isStrict_, "Let warnings count as errors");
        app.add_flag("--json", isJson_, "Write the findings of each template as JSON");
    }

    int run(Console& console) override {
        if (healed_ && templates_.size() > 1)
            throw Failure("--heal mends one template at a time");
        if (healed_)
            healed_ = makeOutput(*healed_, kTemplateOutput, {findTemplate(templates_[0])});
        int status = kDone;
        Json all = Json::array();
        for (const std::string& file : templates_) {
            try {
                status = std::max(status, inspect(file, console, all));
            } catch (...) {
                console.printError(describeCurrentError());
                status = kFailed;
            }
        }
        if (isJson_)
            console.print(all.dump(2, ' ', false, Json::error_handler_t::replace));
        return status;
    }

private:
    int inspect(const std::string& file, Console& console, Json& all) {
        const std::wstring path = toPath(findTemplate(file));
        const std::vector<Finding> findings = inspectTemplate(path).findings;
        const std::vector<Finding> changes =
            healed_ ? healTemplate(path, toPath(*healed_)) : std::vector<Finding>();
        int status = kDone;
        Json rows = Json::array(), mended = Json::array();
        for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Info})
            for (const Finding& finding : findings)
                if (finding.severity == severity) {
                    rows.push_back(toJson(finding));
                    if (severity == Severity::Error || (isStrict_ && severity == Severity::Warning))
                        status = kFound;
                    if (!isJson_ && (severity != Severity::Info || console.isVerbose()))
                        console.print(makePrintable(file) + ": " + toString(severity) + ": " +
                                      describe(finding) + describeAdvice(finding.code) + " (" + finding.code +
                                      ")");
                }
        for (const Finding& change : changes) {
            mended.push_back(toJson(change));
            if (!isJson_)
                console.print(makePrintable(*healed_) + ": mended: " + describe(change));
        }
        all.push_back({{"template", file}, {"findings", std::move(rows)}, {"changes", std::move(mended)}});
        return status;
    }

    static Json toJson(const Finding& finding) {
        const Advice* advice = findAdvice(finding.code);
        return {{"severity", toString(finding.severity)}, {"code", finding.code},
                {"part", toUtf8(finding.part)},           {"shape", toUtf8(finding.shape)},
                {"text", toUtf8(finding.text)},           {"advice", advice ? advice->text : ""}};
    }

    std::vector<std::string> templates_;
    std::optional<std::string> healed_;
    bool isStrict_ = false;
    bool isJson_ = false;
};

} // namespace

std::unique_ptr<Command> makeDoctorCommand() {
    return std::make_unique<DoctorCommand>();
}

} // namespace vellox::cli
