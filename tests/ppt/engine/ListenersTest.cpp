// Listeners run in the middle of things. Whatever they do there, nothing is lost and nothing dangles.

#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"

#include <functional>
#include <utility>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

class ListenersTest : public DeckTest {
protected:
    ListenersTest() {
        token_ = MessageDispatcher::getTheDispatcher().addListener([this](const MessageEventData& event) {
            if (!action || isActing_)
                return;
            isActing_ = true;
            const auto once = isRepeated ? action : std::exchange(action, nullptr);
            once(event.getMessage());
            isActing_ = false;
        });
    }
    ~ListenersTest() override {
        MessageDispatcher::getTheDispatcher().removeListener(token_);
        hearOfLives(false);
    }

    static void hearOfLives(bool value) {
        MessageDispatcher::getTheDispatcher().getMessageFilter().setDebugMessagesPass(value);
    }
    /// A slide with a table that is reported when it is written, and another shape behind that.
    Slide addReportedTable() {
        Slide slide = deck.add(L"Blank");
        Table table(1);
        TableRow row;
        row.append(TableEntry(L"cell"));
        table.append(row);
        table.setStyleName(L"No such style");
        table.setName(L"Table");
        slide.add(table);
        slide.add(TextBox(L"Behind")).add(L"behind");
        return slide;
    }

    std::function<void(const Message&)> action;
    bool isRepeated = false;

private:
    MessageDispatcher::ListenerToken token_;
    bool isActing_ = false;
};

TEST_F(ListenersTest, MayChangeADeckThatIsBeingClosed) {
    Slide slide = addReportedTable();
    deck.add(L"Blank");
    int heard = 0;
    action = [&](const Message&) {
        ++heard;
        EXPECT_FALSE(deck.close());
        EXPECT_FALSE(deck.open());
        for (int i = 0; i < 40; ++i) {
            deck.add(L"Blank");
            slide.add(TextBox(L"Late")).add(L"late");
        }
        boost::dynamic_pointer_cast<Table>(slide.find(L"Table").front())->replace(Table(3));
    };
    close();
    EXPECT_EQ(heard, 1);
    EXPECT_NE(findOne(slideXml(1), "a:tbl").find(">cell<"), std::string::npos);
    EXPECT_EQ(runsOf(slideXml(1)), "behind");
    EXPECT_EQ(deck.getNChildren(), 42u);
}

TEST_F(ListenersTest, MayLetGoOfTheDeckThatTheyHearOf) {
    const std::wstring path = folder / L"own.pptx";
    auto own = boost::make_shared<Presentation>(path);
    Table table(1);
    table.append(TableRow());
    table.setStyleName(L"No such style");
    own->add(L"Blank").add(table);
    bool isHeard = false;
    action = [&](const Message&) {
        isHeard = true;
        *own = deck; // the last handle on the other one
    };
    EXPECT_TRUE(own->close());
    EXPECT_TRUE(isHeard);
    EXPECT_TRUE(findFaults(path).empty());
}

TEST_F(ListenersTest, MayTakeAPlaceAheadOfAnother) {
    Slide slide = deck.add(L"Title and Content");
    auto content = ContentPlaceholder::cast(slide.find(L"Content").front());
    const Table table(1);
    const Picture picture;
    hearOfLives(true);
    action = [&](const Message&) { content->replace(picture); };
    content->replace(table);
    EXPECT_EQ(slide.getNChildren(), 2u);
    EXPECT_TRUE(Picture::cast(slide.getChildren().back()));
}

TEST_F(ListenersTest, MayChangeWhatIsBeingCopied) {
    Slide slide = deck.add(L"Title and Table");
    Table table(1);
    TableRow first;
    first.append(TableEntry(L"row"));
    table.append(first);
    TextBox box(L"Box");
    Paragraph paragraph = box.add(L"a");
    hearOfLives(true);
    action = [&](const Message&) {
        for (int i = 0; i < 40; ++i) {
            table.append(TableRow());
            paragraph.append(L"more");
        }
    };
    slide.replace(L"Table", object(table));
    TextBox(L"Other").replace(paragraph);
    hearOfLives(false);
    EXPECT_EQ(table.getNChildren(), 41u);
}

TEST_F(ListenersTest, MayReplaceWhatJustEnded) {
    TextBox box(L"Box");
    std::vector<Paragraph> held;
    for (int i = 0; i < 4; ++i)
        held.push_back(box.add(L"text"));
    box.replace(L"one");
    held.resize(2, held.front());
    hearOfLives(true);
    isRepeated = true;
    action = [&](const Message&) { box.replace(L"two"); };
    box.replace(L"three");
    held.clear();
    hearOfLives(false);
    EXPECT_EQ(box.getNChildren(), 1u);
}

TEST_F(ListenersTest, GetNoParentThatIsEnding) {
    auto box = boost::make_shared<TextBox>(L"Box");
    Paragraph paragraph = box->add(L"text");
    hearOfLives(true);
    int heard = 0;
    isRepeated = true;
    action = [&](const Message& message) {
        if (message.getText().find(L"TextBox") != std::wstring::npos) {
            ++heard;
            EXPECT_FALSE(paragraph.getParent());
        }
    };
    box.reset();
    hearOfLives(false);
    EXPECT_GT(heard, 0);
}

// A node whose former parent has ended holds nothing of it, whichever way it left.
TEST(FallenNodes, AreFreeWhenTheirParentEnds) {
    Paragraph fallen(L"fallen"), moved(L"moved");
    {
        TextBox box(L"Box");
        box.add(fallen);
        box.replace(L"other");
        EXPECT_TRUE(fallen.getParent());
        for (int i = 0; i < 1000; ++i)
            box.replace(list({object(moved), object(moved)}));
    }
    EXPECT_FALSE(fallen.getParent());
    EXPECT_FALSE(moved.getParent());
    TextBox next(L"Next");
    EXPECT_EQ(errorOf([&] { next.add(fallen); }), "nothing");
}

TEST(ByName, TakesWhatTheFirstBoxLoses) {
    Slide slide = Presentation(TempFolder() / L"deck.pptx").add(L"Blank");
    TextBox first = slide.add(TextBox(L"Same")), second = slide.add(TextBox(L"Same"));
    first.add(L"one text that is too long for a short string");
    const Text& text = static_cast<const Text&>(*first.getChildren().front()->getChildren().front());
    slide.replace(L"Same", text.getTextContent());
    EXPECT_EQ(outline(second), L"one text that is too long for a short string");
    slide.replace(L"Same", static_cast<const Paragraph&>(*first.getChildren().front()));
    EXPECT_EQ(outline(second), outline(first));
}

} // namespace
