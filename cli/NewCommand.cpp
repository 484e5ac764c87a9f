#include <filesystem>

#include "cli/Command.h"
#include "cli/Files.h"

namespace vellox::cli {

namespace fs = std::filesystem;

namespace {

class NewCommand : public Command {
public:
    const char* getName() const override { return "new"; }
    const char* getSummary() const override { return "Begin a template of one's own"; }
    const char* getManual() const override {
        return "Writes the default template to a file, to be given fonts, colours, logos and further layouts "
               "in an office "
               "program. Its layouts and placeholders keep the names that they have there.";
    }
    void declare(CLI::App& app) override {
        app.add_option("FILE", file_, "The file to write; without an extension it gets .pptx")->required();
        app.add_flag("-f,--force", isForced_, "Replace a file of that name");
    }

    int run(Console&) override {
        fs::path file(file_);
        if (!file.has_filename())
            throw Failure(file_ + ": it is no name of a file");
        if (!file.has_extension())
            file += ".pptx";
        if (file.extension() != ".pptx")
            throw Failure(file_ + ": the template is a .pptx and can't have another extension");
        std::error_code ignored;
        if (!isForced_ && fs::exists(fs::symlink_status(file, ignored)))
            throw Failure(file.string() + ": there is a file of that name; --force replaces it");
        copyFile(ppt::Template().getPath(), file.string());
        return kDone;
    }

private:
    std::string file_;
    bool isForced_ = false;
};

} // namespace

std::unique_ptr<Command> makeNewCommand() {
    return std::make_unique<NewCommand>();
}

} // namespace vellox::cli
