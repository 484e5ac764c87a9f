#include "cli/Batch.h"
#include "cli/Command.h"
#include "cli/CsvFile.h"
#include "cli/DeckDescription.h"
#include "cli/Files.h"
#include "cli/Progress.h"

#include <filesystem>

namespace vellox::cli {

namespace {

/// One deck that is to be made.
struct Task {
    std::string output;
    Record record;
    bool hasRecord = false;
};

class FillCommand : public Command {
public:
    const char* getName() const override { return "fill"; }
    const char* getSummary() const override { return "Make decks of a template and data"; }
    const char* getManual() const override {
        return "Makes a deck on a template from a description in JSON or YAML: slides by the names of "
               "layouts, and what goes into their placeholders, by name. A text is one paragraph a line, "
               "a list has a paragraph for each item, and lists within it stand a level deeper; "
               "{picture: FILE} and {table: FILE.csv} or {table: ROWS} take a placeholder's place. "
               "Beside these, and beside layouts, stand properties such as footer, bullet or "
               "numberFormat. Files are found from the folder of the description.\n"
               "With --each, a deck is made for every row of a table: \"{column}\" stands for the row's "
               "value, in the description and in the name of the output; \"{{\" is a brace. Values for "
               "all decks may stand in the description under \"tokens\". Decks are made in several "
               "processes; one that fails doesn't stop the others, and the last line lists them. Ctrl-C "
               "lets the decks end that have been begun.\n"
               "What is asked for and can't be had, such as a name that nothing bears, is told with its "
               "place in the data; with --strict, such a deck isn't written. The file at the output "
               "stays what it was until a new one is whole.\n"
               "The status is 0 if all decks were made, 1 if some were, and 2 if none was.\n"
               "$ vellox fill corporate.potx week47.yaml -o week47.pptx\n"
               "$ vellox fill corporate.potx letter.yaml --each customers.csv -o 'letter-{id}.pptx' --jobs 4";
    }
    void declare(CLI::App& app) override {
        app.add_option("TEMPLATE", template_, "The template; \"default\" is the one that comes along")
            ->required();
        app.add_option("DATA", data_, "The description: .json or .yaml, or .csv with one row of values");
        app.add_option("-o,--output", output_, "The deck to make; with --each with columns in its name")
            ->required()
            ->type_name("FILE");
        app.add_option("--each", each_, "Make a deck for every row of a .csv")->type_name("ROWS");
        app.add_option("--jobs", jobs_, "How many processes make decks; all processors without it")
            ->type_name("N")
            ->check(CLI::Range(1U, 1024U));
        app.add_flag("--strict", isStrict_, "Write no deck that isn't as it was asked for");
        app.add_flag("-q,--quiet", isQuiet_, "Tell of errors and warnings alone");
    }

    int run(Console& console) override {
        if (data_.empty() && each_.empty())
            throw Failure("fill needs data: a description, or --each with rows");
        const Data data = data_.empty() ? Data{Data::Kind::Record, {}, {}, {}, 0} : readDataFile(data_);
        const DeckDescription description(data, data_);
        const std::string source = findTemplate(template_);
        const std::vector<Task> tasks = listTasks(readTokens(data), data.find("tokens") != nullptr, source);
        return makeDecks(tasks, description, ppt::Template::forOffice(toPath(source)), console);
    }

private:
    /// The texts that all decks have.
    static Record readTokens(const Data& data) {
        Record record;
        if (const Data* tokens = data.find("tokens"))
            for (const Data::Member& member : tokens->members)
                if (member.second.isScalar())
                    record[member.first] = member.second.text;
        return record;
    }

    std::vector<Task> listTasks(const Record& tokens, bool hasTokens, const std::string& source) const {
        if (each_.empty())
            return {{makeOutput(output_, kDeckOutput, {source}), tokens, hasTokens}};
        const CsvFile csv = readCsvFile(each_);
        std::vector<Task> tasks;
        std::map<std::string, unsigned> lines; // of the rows that have an output, however its path is spelled
        for (const CsvRow& row : csv.rows) {
            const DataPlace place{each_, {}, row.line};
            Task task{{}, tokens, true};
            for (std::size_t i = 0; i < csv.names.size(); ++i)
                task.record[csv.names[i]] = row.cells[i];
            task.output = makeRowOutput(task.record, source, place);
            std::error_code failure; // of a path that leads nowhere, which is told when it is written to
            const auto whole = std::filesystem::weakly_canonical(task.output, failure);
            const std::string path = failure ? task.output : whole.string();
            const auto former = lines.emplace(path, row.line);
            if (!former.second)
                throw DataFailure(place, "the row's deck is " + task.output + ", and so is that of line " +
                                             std::to_string(former.first->second));
            tasks.push_back(std::move(task));
        }
        if (tasks.empty())
            throw Failure(each_ + ": it has no rows below the names of its columns");
        return tasks;
    }

    std::string makeRowOutput(const Record& record, const std::string& source, const DataPlace& place) const {
        const std::string output = fillIn(output_, makeSafe(record), place);
        if (output.find(kUnsafe) != output.npos)
            for (const auto& entry : record)
                if (!isPartOfName(entry.second) && output_.find("{" + entry.first + "}") != output_.npos)
                    throw DataFailure(place, entry.first + ": \"" + entry.second +
                                                 "\" can't be part of a file's name");
        try {
            return makeOutput(output, kDeckOutput, {source});
        } catch (const Failure& failure) {
            throw DataFailure(place, failure.what());
        }
    }

    /// A value is part of a name, and no way to elsewhere.
    static bool isPartOfName(const std::string& value) {
        return value != "." && value != ".." && value.find_first_of(std::string("/\\\0", 3)) == value.npos;
    }

    static constexpr char kUnsafe = '\0';
    static Record makeSafe(Record record) {
        for (auto& entry : record)
            if (!isPartOfName(entry.second))
                entry.second = kUnsafe;
        return record;
    }

    int makeDecks(const std::vector<Task>& tasks, const DeckDescription& description,
                  const ppt::Template& source, Console& console) const {
        std::vector<std::string> failed;
        std::size_t made = 0;
        bool isWhole = false;
        {
            Progress progress(console, tasks.size(), isQuiet_);
            const auto work = [&](std::size_t i) { return makeDeck(tasks[i], description, source); };
            const auto told = [&](std::size_t i, const JobResult& result) {
                const std::string prefix = tasks.size() > 1 ? tasks[i].output + ": " : "";
                for (const std::string& warning : result.warnings)
                    progress.warn(prefix + warning);
                if (result.isDone) {
                    ++made;
                    progress.tellDone(tasks[i].output);
                } else {
                    failed.push_back(tasks[i].output);
                    progress.tellFailed({prefix + result.text, result.id});
                }
            };
            isWhole = Batch(work, told).run(tasks.size(), jobs_ > 0 ? jobs_ : countProcessors());
        }
        if (tasks.size() > 1)
            summarize(tasks.size(), made, failed, console);
        if (!isWhole)
            return kInterrupted;
        return failed.empty() ? kDone : made > 0 ? kFound : kFailed;
    }

    JobResult makeDeck(const Task& task, const DeckDescription& description,
                       const ppt::Template& source) const {
        JobResult result;
        ppt::Presentation deck(toPath(task.output), source);
        deck.setProfile(L"office");
        deck.setStrict(isStrict_);
        const auto report = [&](const DataPlace& place, const ppt::Finding& finding) {
            if (finding.severity != ppt::Severity::Info)
                result.warnings.push_back(describe(place) + describe(finding));
        };
        deck.open();
        description.make(deck, task.hasRecord ? &task.record : nullptr, report);
        const std::size_t known = deck.getFindings().size();
        deck.close();
        for (const ppt::Finding& finding : deck.getFindings(known))
            if (finding.severity != ppt::Severity::Info)
                result.warnings.push_back(describe(finding));
        result.isDone = true;
        return result;
    }

    static void summarize(std::size_t count, std::size_t made, const std::vector<std::string>& failed,
                          Console& console) {
        constexpr std::size_t kMaxNames = 10;
        std::string text = std::to_string(made) + " of " + std::to_string(count) + " decks were made";
        for (std::size_t i = 0; i < std::min(failed.size(), kMaxNames); ++i)
            text += (i == 0 ? "; not made: " : ", ") + failed[i];
        if (failed.size() > kMaxNames)
            text += " and " + std::to_string(failed.size() - kMaxNames) + " more";
        if (made < count)
            console.printError({text, {}});
    }

    std::string template_, data_, output_, each_;
    unsigned jobs_ = 0;
    bool isStrict_ = false;
    bool isQuiet_ = false;
};

} // namespace

std::unique_ptr<Command> makeFillCommand() {
    return std::make_unique<FillCommand>();
}

} // namespace vellox::cli
