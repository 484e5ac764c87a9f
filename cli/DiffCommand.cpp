#include "cli/Command.h"
#include "cli/Files.h"

#include <nlohmann/json.hpp>

namespace vellox::cli {

namespace {

using Json = nlohmann::ordered_json;
using namespace ppt;
using Kind = DeckDifference::Kind;

/// What was and what is are lines of their own.
bool isLong(Kind kind) {
    return kind == Kind::TextChanged || kind == Kind::NotesChanged || kind == Kind::AltTextChanged ||
           kind == Kind::LayoutChanged || kind == Kind::KindChanged;
}

std::string describeSlide(const char* what, unsigned number, const std::wstring& title) {
    return what + std::to_string(number) + (title.empty() ? "" : ": " + makePrintable(title));
}

class DiffWriter {
public:
    explicit DiffWriter(Console& console) : console_(console) {}

    void write(const DeckDifference& difference) {
        switch (difference.kind) {
        case Kind::SlideRemoved:
            return console_.print(describeSlide("- slide ", difference.formerSlide, difference.former));
        case Kind::SlideAdded:
            return console_.print(describeSlide("+ slide ", difference.presentSlide, difference.present));
        case Kind::SlideMoved:
            return console_.print(describeSlide("> slide ", difference.presentSlide, difference.present) +
                                  " (was slide " + std::to_string(difference.formerSlide) + ")");
        default:
            break;
        }
        writeHeads(difference);
        if (difference.kind == Kind::ShapeRemoved)
            console_.print("    - (" + makePrintable(difference.former) + ")");
        else if (difference.kind == Kind::ShapeAdded)
            console_.print("    + (" + makePrintable(difference.present) + ")");
        else if (isLong(difference.kind))
            writeLines(difference);
        else
            console_.print("    " + (difference.place.empty() ? "" : makePrintable(difference.place) + ": ") +
                           makePrintable(difference.former) + " -> " + makePrintable(difference.present));
    }

private:
    /// The slide and the shape, once for all that follows about them.
    void writeHeads(const DeckDifference& difference) {
        if (difference.presentSlide != slide_) {
            slide_ = difference.presentSlide;
            head_.clear();
            console_.print("* slide " + std::to_string(slide_) +
                           (difference.formerSlide == slide_
                                ? ""
                                : " (was slide " + std::to_string(difference.formerSlide) + ")"));
        }
        const std::string head = getHead(difference);
        if (head != head_)
            console_.print("  " + head);
        head_ = head;
    }

    static std::string getHead(const DeckDifference& difference) {
        switch (difference.kind) {
        case Kind::LayoutChanged:
            return "layout:";
        case Kind::VisibilityChanged:
            return "visibility:";
        case Kind::NotesChanged:
            return "notes:";
        case Kind::AltTextChanged:
            return makePrintable(difference.shape) + ", described as:";
        default:
            return makePrintable(difference.shape) + ":";
        }
    }

    // Tabs in front stand for levels.
    static std::string indent(const std::wstring& text) {
        const std::size_t level = std::min(text.find_first_not_of(L'\t'), text.size());
        return std::string(2 * level, ' ') + makePrintable(text.substr(level));
    }

    void writeLines(const DeckDifference& difference) {
        if (!difference.former.empty())
            console_.print("    - " + indent(difference.former));
        if (!difference.present.empty())
            console_.print("    + " + indent(difference.present));
    }

    Console& console_;
    unsigned slide_ = 0;
    std::string head_;
};

Json toJson(const DeckDifference& difference) {
    Json row{{"kind", toString(difference.kind)}};
    row["formerSlide"] = difference.formerSlide > 0 ? Json(difference.formerSlide) : Json();
    row["presentSlide"] = difference.presentSlide > 0 ? Json(difference.presentSlide) : Json();
    row["shape"] = toUtf8(difference.shape);
    row["place"] = toUtf8(difference.place);
    row["former"] = toUtf8(difference.former);
    row["present"] = toUtf8(difference.present);
    return row;
}

class DiffCommand : public Command {
public:
    const char* getName() const override { return "diff"; }
    const char* getSummary() const override { return "What sets two decks apart?"; }
    const char* getManual() const override {
        return "Compares what two decks show: slides that were added, removed or moved, texts paragraph by "
               "paragraph, "
               "tables and charts cell by cell, pictures by their bytes, notes. How it is shown doesn't "
               "count: formats, "
               "places, names of parts.\n"
               "Lines begin with - for what was, + for what is now, > for a slide that has moved, and * for "
               "one that "
               "has changed. Decks that show the same give no line.\n"
               "The status is 0 if they show the same, 1 if they differ, and 2 if one of them can't be read.";
    }
    void declare(CLI::App& app) override {
        app.add_option("FORMER", former_, "The deck as it was")->required();
        app.add_option("PRESENT", present_, "The deck as it is")->required();
        app.add_flag("--json", isJson_, "Write JSON");
    }

    int run(Console& console) override {
        const DeckContents former = read(former_, console);
        const DeckContents present = read(present_, console);
        const std::vector<DeckDifference> differences = compareDecks(former, present);
        if (isJson_) {
            Json rows = Json::array();
            for (const DeckDifference& difference : differences)
                rows.push_back(toJson(difference));
            console.print(rows.dump(2, ' ', false, Json::error_handler_t::replace));
        } else {
            DiffWriter writer(console);
            for (const DeckDifference& difference : differences)
                writer.write(difference);
        }
        if (!former.findings.empty() || !present.findings.empty())
            return kFailed;
        return differences.empty() ? kDone : kFound;
    }

private:
    static DeckContents read(const std::string& path, Console& console) {
        requireFile(path);
        DeckContents contents = readDeck(toPath(path));
        for (const Finding& finding : contents.findings)
            console.printError({path + ": " + describe(finding), finding.code});
        return contents;
    }

    std::string former_, present_;
    bool isJson_ = false;
};

} // namespace

std::unique_ptr<Command> makeDiffCommand() {
    return std::make_unique<DiffCommand>();
}

} // namespace vellox::cli
