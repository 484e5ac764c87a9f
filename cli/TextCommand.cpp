#include "cli/Command.h"
#include "cli/Files.h"

#include <nlohmann/json.hpp>

namespace vellox::cli {

namespace {

using Json = nlohmann::ordered_json;
using namespace ppt;

constexpr const char* kKinds[] = {"text", "table", "picture", "chart", "diagram", "object"};

const char* getKindName(const DeckShape& shape) {
    return kKinds[static_cast<std::size_t>(shape.kind)];
}

// As JSON

Json toJson(const std::vector<DeckParagraph>& paragraphs) {
    Json rows = Json::array();
    for (const DeckParagraph& paragraph : paragraphs)
        rows.push_back({{"level", paragraph.level}, {"text", toUtf8(paragraph.text)}});
    return rows;
}

Json toJson(const DeckShape& shape) {
    Json row{{"kind", getKindName(shape)}, {"name", toUtf8(shape.name)}};
    if (!shape.placeholder.empty())
        row["placeholder"] = toUtf8(shape.placeholder);
    if (!shape.altText.empty())
        row["altText"] = toUtf8(shape.altText);
    if (shape.kind == DeckShape::Kind::Text || shape.kind == DeckShape::Kind::Diagram)
        row["paragraphs"] = toJson(shape.paragraphs);
    if (shape.kind == DeckShape::Kind::Table || shape.kind == DeckShape::Kind::Chart) {
        row["rows"] = Json::array();
        for (const auto& cells : shape.rows) {
            Json texts = Json::array();
            for (const std::wstring& cell : cells)
                texts.push_back(toUtf8(cell));
            row["rows"].push_back(std::move(texts));
        }
    }
    if (shape.kind == DeckShape::Kind::Picture) {
        row["picture"] = toUtf8(shape.picture);
        row["bytes"] = shape.bytes;
        row["sha1"] = shape.digest;
    }
    return row;
}

Json toJson(const DeckSlide& slide) {
    Json row{{"number", slide.number}, {"layout", toUtf8(slide.layout)}};
    if (slide.isHidden)
        row["hidden"] = true;
    row["shapes"] = Json::array();
    for (const DeckShape& shape : slide.shapes)
        row["shapes"].push_back(toJson(shape));
    if (!slide.notes.empty())
        row["notes"] = toJson(slide.notes);
    return row;
}

// As text

class TextWriter {
public:
    explicit TextWriter(Console& console) : console_(console) {}

    void write(const DeckSlide& slide) {
        console_.print((isFirst_ ? "== Slide " : "\n== Slide ") + std::to_string(slide.number) + ": " +
                       makePrintable(slide.layout) + (slide.isHidden ? " (hidden)" : ""));
        isFirst_ = false;
        for (const DeckShape& shape : slide.shapes)
            write(shape);
        if (!slide.notes.empty())
            writeParagraphs("Notes", slide.notes);
    }

private:
    void write(const DeckShape& shape) {
        const std::string name = makePrintable(shape.name);
        switch (shape.kind) {
        case DeckShape::Kind::Table:
        case DeckShape::Kind::Chart:
            console_.print(name + ": (" + getKindName(shape) + ")" + describeAltText(shape));
            writeRows(shape.rows);
            break;
        case DeckShape::Kind::Picture:
            console_.print(name + ": (picture" + describePicture(shape) + ")" + describeAltText(shape));
            break;
        case DeckShape::Kind::Other:
            console_.print(name + ": (object)" + describeAltText(shape));
            break;
        default:
            // Drawn shapes mostly have no text; a placeholder without one is worth a line.
            if (!shape.paragraphs.empty())
                writeParagraphs(name, shape.paragraphs);
            else if (!shape.placeholder.empty())
                console_.print(name + ": (empty)");
        }
    }

    static std::string describePicture(const DeckShape& shape) {
        constexpr std::size_t kDigits = 10;
        if (shape.digest.empty())
            return shape.picture.empty() ? "" : " at " + makePrintable(shape.picture);
        return ", " + std::to_string(shape.bytes) + " bytes, " + shape.digest.substr(0, kDigits);
    }

    static std::string describeAltText(const DeckShape& shape) {
        return shape.altText.empty() ? "" : " " + makePrintable(shape.altText);
    }

    void writeParagraphs(const std::string& name, const std::vector<DeckParagraph>& paragraphs) {
        if (paragraphs.size() == 1 && paragraphs[0].level == 0)
            return console_.print(name + ": " + makePrintable(paragraphs[0].text));
        console_.print(name + ":");
        for (const DeckParagraph& paragraph : paragraphs)
            console_.print(std::string(4 + 2 * paragraph.level, ' ') + makePrintable(paragraph.text));
    }

    // Not filled up with blanks: one long cell would change all lines.
    void writeRows(const std::vector<std::vector<std::wstring>>& rows) {
        for (const auto& row : rows) {
            std::string line = "   ";
            for (const std::wstring& cell : row)
                line += " | " + makePrintable(cell);
            console_.print(line + " |");
        }
    }

    Console& console_;
    bool isFirst_ = true;
};

class TextCommand : public Command {
public:
    const char* getName() const override { return "text"; }
    const char* getSummary() const override { return "What is on the slides of a deck?"; }
    const char* getManual() const override {
        return "Writes the slides of a deck, template or slide show, one after the other: texts by their "
               "shapes' names, "
               "tables and charts row by row, pictures by a digest of their bytes, and notes. The lines stay "
               "the same as "
               "long as the deck shows the same, whichever program saved it last, so that they serve to "
               "compare decks.\n"
               "A line break within a text is shown as \\n.\n"
               "With git, this shows what has changed in decks:\n"
               "$ git config diff.pptx.textconv \"vellox text\"\n"
               "$ echo '*.pptx diff=pptx' >> .gitattributes\n"
               "What can't be read of a damaged deck is told on the standard error stream, and the status is "
               "1.";
    }
    void declare(CLI::App& app) override {
        app.add_option("DECK", deck_, "The deck to read")->required();
        app.add_flag("--json", isJson_, "Write JSON");
    }

    int run(Console& console) override {
        requireFile(deck_);
        const DeckContents contents = readDeck(toPath(deck_));
        if (isJson_) {
            Json slides = Json::array();
            for (const DeckSlide& slide : contents.slides)
                slides.push_back(toJson(slide));
            console.print(slides.dump(2, ' ', false, Json::error_handler_t::replace));
        } else {
            TextWriter writer(console);
            for (const DeckSlide& slide : contents.slides)
                writer.write(slide);
        }
        for (const Finding& finding : contents.findings)
            console.printError({deck_ + ": " + describe(finding), finding.code});
        return contents.findings.empty() ? kDone : kFound;
    }

private:
    std::string deck_;
    bool isJson_ = false;
};

} // namespace

std::unique_ptr<Command> makeTextCommand() {
    return std::make_unique<TextCommand>();
}

} // namespace vellox::cli
