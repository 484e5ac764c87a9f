// Makes the decks that scripts/check-classic compares: every kind over every template, with UUIDs that are
// counted.
//
//     classic_decks <folder for the decks>

#include "tests/programs/classic/Decks.h"
#include "tests/programs/classic/Templates.h"

#include "vellox/foundation/UuidSource.h"
#include "vellox/host/services/Utf8.h"

#include <cstdio>
#include <filesystem>
#include <iostream>

using namespace vellox;
using namespace vellox::test;

namespace {

unsigned uuidCount = 0;

std::wstring countUuid() {
    char text[37];
    std::snprintf(text, sizeof text, "00000000-0000-4000-8000-%012x", ++uuidCount);
    return fromUtf8(text);
}

class DeckFolder {
public:
    explicit DeckFolder(const std::string& path) : path_(fromUtf8(path) + L"/"), images_(scratch_ / L"") {}

    void make(const Template& source, const DeckKind& kind) {
        const std::wstring file = scratch_ / source.name + L"." + source.extension;
        writeParts(file, source.parts);
        Images images = images_; // each deck begins with the first
        // What is opened and closed alone keeps the kind of its file, the others become presentations.
        const bool isPlain = kind.name == std::wstring(L"open");
        const std::wstring name =
            source.name + L"-" + kind.name + L"." + (isPlain ? source.extension : L"pptx");
        ppt::Presentation deck(path_ + name, file);
        deck.open();
        uuidCount = 0; // files in between have drawn some
        kind.fill(deck, images);
        deck.close();
    }

private:
    TempFolder scratch_;
    std::wstring path_;
    Images images_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: classic_decks <folder for the decks>\n";
        return 2;
    }
    try {
        std::filesystem::create_directories(argv[1]);
        uuidSource = countUuid;
        DeckFolder folder(argv[1]);
        const std::vector<Template> templates = makeTemplates();
        for (const Template& source : templates)
            for (const DeckKind& kind : kAnyDecks)
                folder.make(source, kind);
        for (const DeckKind& kind : kDefaultDecks)
            folder.make(templates.back(), kind);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "classic_decks: " << failure.what() << "\n";
        return 1;
    }
}
