// Writes what goes with the program, from the program's own table of commands, so that they never disagree.
//
//     vellox_pages man|bash|zsh|fish|markdown > page
//     vellox_pages --check FILE        says whether a page of the documents ends with what is written here

#include "cli/Command.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using namespace vellox::cli;
using std::string;

/// The program, as its own parser knows it.
class Pages {
public:
    Pages() : commands_(makeCommands()), app_(makeApp(commands_, isVerbose_)) {}

    void writeMan(std::ostream& page) const;
    void writeMarkdown(std::ostream& page) const;
    void writeBash(std::ostream& page) const;
    void writeZsh(std::ostream& page) const;
    void writeFish(std::ostream& page) const;

private:
    const CLI::App& getApp(const Command& command) const { return *app_->get_subcommand(command.getName()); }

    Commands commands_;
    bool isVerbose_ = false;
    std::unique_ptr<CLI::App> app_;
};

string replaceAll(string text, const string& from, const string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

std::vector<string> splitLines(const string& text) {
    std::vector<string> lines;
    std::istringstream stream(text);
    for (string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

bool isSession(const string& line) {
    return line.compare(0, 2, "$ ") == 0;
}

bool takesValue(const CLI::Option& option) {
    return option.get_items_expected_max() > 0;
}

std::vector<string> getFlags(const CLI::Option& option) {
    std::vector<string> flags;
    for (const string& name : option.get_snames())
        flags.push_back("-" + name);
    for (const string& name : option.get_lnames())
        flags.push_back("--" + name);
    return flags;
}

string join(const std::vector<string>& words, const string& between) {
    string text;
    for (const string& word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

/// The word for an option's value, without the range that it is checked for.
string getValueName(const CLI::Option& option) {
    const string type = option.get_type_name();
    return type.substr(0, type.find(':'));
}

string getTitle(const CLI::Option& option) {
    if (option.get_positional())
        return option.get_name(true);
    return join(getFlags(option), ", ") + (takesValue(option) ? " " + getValueName(option) : "");
}

/// "[--json] DECK..."
string getUsage(const CLI::App& app) {
    string usage, positionals;
    for (const CLI::Option* option : app.get_options()) {
        string word;
        if (option->get_positional())
            word = option->get_name(true) + (option->get_items_expected_max() > 1 ? "..." : "");
        else if (option->get_lnames().front() == "help")
            continue;
        else
            word = getFlags(*option).front() + (takesValue(*option) ? " " + getValueName(*option) : "");
        if (!option->get_required())
            word = "[" + word + "]";
        (option->get_positional() ? positionals : usage) += " " + word;
    }
    return usage + positionals;
}

// The manual page

string toRoff(const string& text) {
    string roff = replaceAll(replaceAll(text, "\\", "\\e"), "-", "\\-");
    if (!roff.empty() && (roff[0] == '.' || roff[0] == '\''))
        roff = "\\&" + roff;
    return roff;
}

void writeManOptions(const CLI::App& app, std::ostream& page) {
    for (const CLI::Option* option : app.get_options())
        page << ".TP\n\\fB" << toRoff(getTitle(*option)) << "\\fR\n"
             << toRoff(option->get_description()) << "\n";
}

void Pages::writeMan(std::ostream& page) const {
    page << ".TH VELLOX 1 \"\" \"vellox " VELLOX_VERSION "\" \"User Commands\"\n"
         << ".SH NAME\nvellox \\- " << toRoff(app_->get_description()) << "\n.SH SYNOPSIS\n";
    for (const auto& command : commands_)
        page << ".B vellox " << command->getName() << "\n"
             << toRoff(getUsage(getApp(*command)).substr(1)) << "\n.br\n";
    page << ".SH OPTIONS\n";
    writeManOptions(*app_, page);
    page << ".SH COMMANDS\n";
    for (const auto& command : commands_) {
        page << ".SS \"vellox " << command->getName() << "\"\n" << toRoff(command->getSummary()) << "\n";
        for (const string& line : splitLines(command->getManual()))
            page << (isSession(line) ? ".PP\n.in +4n\n.nf\n" : ".PP\n")
                 << toRoff(isSession(line) ? line.substr(2) : line)
                 << (isSession(line) ? "\n.fi\n.in\n" : "\n");
        writeManOptions(getApp(*command), page);
    }
    page << ".SH EXIT STATUS\n";
    for (std::size_t i = 0; i < kStatusCount; ++i)
        page << ".TP\n.B " << kStatuses[i].status << "\n" << toRoff(kStatuses[i].meaning) << "\n";
}

// The page of the documents

void Pages::writeMarkdown(std::ostream& page) const {
    for (const auto& command : commands_) {
        page << "### vellox " << command->getName() << "\n\n"
             << command->getSummary() << "\n\n```\nvellox " << command->getName()
             << getUsage(getApp(*command)) << "\n```\n\n";
        bool isCode = false;
        for (const string& line : splitLines(command->getManual())) {
            if (isSession(line) != isCode)
                page << (isCode ? "```\n\n" : "```sh\n");
            isCode = isSession(line);
            page << (isCode ? line.substr(2) + "\n" : line + "\n\n");
        }
        page << (isCode ? "```\n\n" : "") << "| | |\n|---|---|\n";
        for (const CLI::Option* option : getApp(*command).get_options())
            page << "| `" << getTitle(*option) << "` | " << option->get_description() << " |\n";
        page << "\n";
    }
    page << "### How it ends\n\n| status | |\n|---|---|\n";
    for (std::size_t i = 0; i < kStatusCount; ++i)
        page << "| " << kStatuses[i].status << " | " << kStatuses[i].meaning << " |\n";
}

// Completions

std::vector<string> getAllFlags(const CLI::App& app) {
    std::vector<string> all;
    for (const CLI::Option* option : app.get_options())
        if (!option->get_positional())
            for (const string& flag : getFlags(*option))
                all.push_back(flag);
    return all;
}

void Pages::writeBash(std::ostream& page) const {
    std::vector<string> names;
    for (const auto& command : commands_)
        names.push_back(command->getName());
    page << "# Completion of vellox for bash.\n\n_vellox()\n{\n"
            "    local current=${COMP_WORDS[COMP_CWORD]} command= flags= word\n"
            "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
            "        case $word in\n            -*) ;;\n            *) command=$word; break ;;\n        "
            "esac\n    done\n"
            "    COMPREPLY=()\n    case $command in\n";
    for (const auto& command : commands_)
        page << "        " << command->getName() << ") flags='" << join(getAllFlags(getApp(*command)), " ")
             << " --verbose' ;;\n";
    page << "        '') flags='" << join(names, " ") << " " << join(getAllFlags(*app_), " ")
         << "' ;;\n    esac\n"
         << "    if [[ -z $command || $current == -* ]]; then\n"
            "        mapfile -t COMPREPLY < <(compgen -W \"$flags\" -- \"$current\")\n"
            "    else\n        compopt -o filenames\n"
            "        mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n    fi\n}\n\n"
            "complete -F _vellox vellox\n";
}

string quoteZsh(const string& text) {
    string quoted = text;
    for (const char* c : {"\\", "[", "]", ":"})
        quoted = replaceAll(quoted, c, string("\\") + c);
    return replaceAll(quoted, "'", "'\\''");
}

void writeZshOptions(const CLI::App& app, const string& indent, std::ostream& page) {
    for (const CLI::Option* option : app.get_options()) {
        const string value = takesValue(*option) ? ":" + quoteZsh(getValueName(*option)) + ":_files" : "";
        if (option->get_positional())
            page << " \\\n"
                 << indent << "'" << (option->get_items_expected_max() > 1 ? "*" : "") << ":"
                 << quoteZsh(option->get_name(true)) << ":_files'";
        else
            for (const string& flag : getFlags(*option))
                page << " \\\n"
                     << indent << "'" << flag << "[" << quoteZsh(option->get_description()) << "]" << value
                     << "'";
    }
}

void Pages::writeZsh(std::ostream& page) const {
    page << "#compdef vellox\n# Completion of vellox for zsh.\n\n_vellox() {\n    local context state line\n"
            "    local -a commands=(\n";
    for (const auto& command : commands_)
        page << "        '" << command->getName() << ":" << quoteZsh(command->getSummary()) << "'\n";
    page << "    )\n    _arguments -C";
    writeZshOptions(*app_, "        ", page);
    page << " \\\n        '1: :->command' '*:: :->arguments'\n    case $state in\n"
            "        command) _describe command commands ;;\n        arguments)\n            case $line[1] "
            "in\n";
    for (const auto& command : commands_) {
        page << "                " << command->getName() << ") _arguments";
        writeZshOptions(getApp(*command), "                    ", page);
        page << " ;;\n";
    }
    page << "            esac\n            ;;\n    esac\n}\n\n_vellox \"$@\"\n";
}

void writeFishOptions(const CLI::App& app, const string& condition, std::ostream& page) {
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_positional())
            continue;
        page << "complete -c vellox -n '" << condition << "'";
        for (const string& name : option->get_snames())
            page << " -s " << name;
        for (const string& name : option->get_lnames())
            page << " -l " << name;
        page << (takesValue(*option) ? " -r" : "") << " -d '"
             << replaceAll(option->get_description(), "'", "\\'") << "'\n";
    }
}

void Pages::writeFish(std::ostream& page) const {
    page << "# Completion of vellox for fish.\n\n";
    for (const auto& command : commands_)
        page << "complete -c vellox -f -n __fish_use_subcommand -a " << command->getName() << " -d '"
             << replaceAll(command->getSummary(), "'", "\\'") << "'\n";
    writeFishOptions(*app_, "__fish_use_subcommand", page);
    for (const auto& command : commands_)
        writeFishOptions(getApp(*command), string("__fish_seen_subcommand_from ") + command->getName(), page);
}

/// A page of the documents ends with what is written here.
int check(const string& file, const Pages& pages) {
    std::ifstream stream(file);
    std::ostringstream present, wanted;
    present << stream.rdbuf();
    pages.writeMarkdown(wanted);
    const string text = present.str(), end = wanted.str();
    if (text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0)
        return 0;
    std::cerr << file << " doesn't end with what vellox_pages markdown writes\n";
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const Pages pages;
    const string what = argc > 1 ? argv[1] : "";
    if (what == "--check" && argc == 3)
        return check(argv[2], pages);
    if (what == "man")
        pages.writeMan(std::cout);
    else if (what == "markdown")
        pages.writeMarkdown(std::cout);
    else if (what == "bash")
        pages.writeBash(std::cout);
    else if (what == "zsh")
        pages.writeZsh(std::cout);
    else if (what == "fish")
        pages.writeFish(std::cout);
    else {
        std::cerr << "vellox_pages man|bash|zsh|fish|markdown, or --check FILE\n";
        return 2;
    }
    return 0;
}
