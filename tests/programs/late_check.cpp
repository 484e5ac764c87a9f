// What lives longer than main() still works: a deck that is closed by a static object, one that is closed by an
// atexit function, and formats and messages in between.
//
//     late_check <folder for the decks>

#include "tests/support/DeckTest.h"

#include <vellox/vellox.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

using namespace vellox;
using namespace vellox::ppt;

namespace {

std::wstring& folder() {
    static std::wstring& path = *new std::wstring;
    return path;
}

void finish(Presentation& deck, const std::wstring& output) {
    Slide slide = deck.add(L"Title and Content");
    Paragraph paragraph(L"late");
    paragraph.setHAlign(L"center");
    paragraph.append(ExternalLink(L"http://example.org/[late]", L"link"));
    static_cast<void>(Underline(L"double")); // its spelling is looked up
    TextBox box(L"late");
    box.add(paragraph);
    box.setFontColor(L"tomato");
    box.setFontSize(L"12pt");
    slide.add(box);
    Table table(2);
    table.append(TableRow());
    table.setStyleName(L"No such style");
    slide.add(table);
    if (!deck.close() || !test::findFaults(output).empty()) {
        std::puts("a late deck isn't sound");
        _exit(1);
    }
}

void makeLateDeck() {
    Presentation deck(folder() + L"/atexit.pptx");
    finish(deck, deck.getOutputPath());
}

/// Dies after all that main() has used for the first time.
struct Last {
    Presentation* deck = nullptr;
    ~Last() {
        finish(*deck, deck->getOutputPath());
        Presentation other(folder() + L"/other.pptx");
        finish(other, other.getOutputPath());
        delete deck;
        std::puts("closed late");
    }
};

Last last;

} // namespace

int main(int, char** argv) {
    std::filesystem::create_directories(argv[1]);
    folder() = fromUtf8(argv[1]);
    std::atexit(makeLateDeck);
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    MessageFilter filter = dispatcher.getMessageFilter();
    filter.setDebugMessagesPass(true);
    dispatcher.addListener([](const MessageEventData& event) { event.getMessage().formatAsText(); });
    last.deck = new Presentation(folder() + L"/static.pptx");
    last.deck->add(L"Title Slide").replace(L"Title", L"begun in time");
    return 0;
}
