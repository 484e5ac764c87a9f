#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/TemplatePage.h"

#include <cstdio>
#include <optional>

namespace vellox::cli {

namespace {

using namespace ppt;

std::string describeBox(const PlaceholderReport& placeholder) {
    if (!placeholder.box)
        return "no place";
    constexpr double kEmuPerCentimeter = 360000;
    const BoxEmu& box = *placeholder.box;
    char text[128];
    std::snprintf(
        text, sizeof text, "%.1f x %.1f cm at %.1f, %.1f", static_cast<double>(box.cx) / kEmuPerCentimeter,
        static_cast<double>(box.cy) / kEmuPerCentimeter, static_cast<double>(box.x) / kEmuPerCentimeter,
        static_cast<double>(box.y) / kEmuPerCentimeter);
    return text;
}

class InspectCommand : public Command {
public:
    const char* getName() const override { return "inspect"; }
    const char* getSummary() const override { return "What does a template offer?"; }
    const char* getManual() const override {
        return "Tells masters, layouts in their order, and of each the placeholders that can be filled: the "
               "name to "
               "fill it by, its class, its size and its place on the slide. Names are those of the profile "
               "office, which "
               "fill goes by.\n"
               "With --html it writes a page that draws each layout to scale, with colours, fonts and table "
               "styles; it "
               "needs nothing but a browser.";
    }
    void declare(CLI::App& app) override {
        app.add_option("TEMPLATE", template_, "The template; \"default\" is the one that comes along")
            ->required();
        app.add_flag("--json", isJson_, "Write all that is known, as JSON");
        app.add_option("--html", html_, "Write a page to this file")->type_name("FILE");
    }

    int run(Console& console) override {
        const std::string source = findTemplate(template_);
        const std::string page = html_ ? makeOutput(*html_, kPageOutput, {source}) : std::string();
        const TemplateReport report = inspectTemplate(toPath(source));
        if (html_)
            writeFile(page, makeTemplatePage(report));
        if (isJson_)
            console.print(toJson(report));
        else if (!html_)
            write(report, console);
        return kDone;
    }

private:
    static void write(const TemplateReport& report, Console& console) {
        for (const MasterReport& master : report.masters) {
            console.print("Master " + makePrintable(master.handle));
            std::size_t number = 0;
            for (const LayoutReport& layout : master.layouts) {
                console.print("  " + std::to_string(++number) + ". " + makePrintable(layout.handle));
                for (const PlaceholderReport& placeholder : layout.placeholders)
                    if (!placeholder.handle.empty())
                        console.print("       " + makePrintable(placeholder.handle) + ": " +
                                      placeholder.kind + ", " + describeBox(placeholder));
            }
        }
    }

    std::string template_;
    std::optional<std::string> html_;
    bool isJson_ = false;
};

} // namespace

std::unique_ptr<Command> makeInspectCommand() {
    return std::make_unique<InspectCommand>();
}

} // namespace vellox::cli
