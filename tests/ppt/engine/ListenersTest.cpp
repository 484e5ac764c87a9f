// Listeners run in the middle of things. Whatever they do there, nothing is lost and nothing dangles.

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/formats/ParagraphFormats.h"
#include "vellox/ppt/object/PPTObjectImpl.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TablePlaceholder.h"
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
    /// Writes a box with the profile office, whose findings are heard in the middle of shapes; the listener changes what is
    /// written. Says whether it heard of one.
    template <class Change> bool writeHearing(const TextBox& box, Change change) {
        deck.setProfile(L"office");
        Slide slide = deck.add(L"Blank");
        slide.add(box);
        int heard = 0;
        action = [&](const Message&) {
            ++heard;
            const auto written = TextBox::cast(slide.find(L"Box").front());
            change(*written, *Paragraph::cast(written->getChildren().front()));
        };
        close();
        return heard == 1;
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

// What is written after the listener has the styles that it left, whichever formats ended with the old ones.
TEST_F(ListenersTest, MayChangeStylesOfWhatIsBeingWritten) {
    Slide slide = addReportedTable();
    const auto table = boost::dynamic_pointer_cast<Table>(slide.find(L"Table").front());
    const auto style = [](const wchar_t* color) {
        Formats formats;
        formats.appendFormat(boost::make_shared<FontColor>(color));
        return formats;
    };
    slide.setStyle(style(L"#000001"));
    table->setStyle(style(L"#000002"));
    action = [&](const Message&) {
        slide.setStyle(style(L"#000003"));
        table->setStyle(Formats());
        table->row(0)->setStyle(style(L"#000004"));
    };
    close();
    EXPECT_EQ(valuesOf(slideXml(1), "a:srgbClr", "val"), (std::vector<std::string>{"000004", "000003"}));
}

// So have the runs behind one that is reported, in whose paragraph and box formats end.
TEST_F(ListenersTest, MayChangeStylesBetweenTwoRuns) {
    TextBox box(L"Box");
    box.setFontColor(L"#000001");
    Paragraph paragraph = box.add(L"a\x01");
    paragraph.setFontSize(L"10pt");
    paragraph.append(Text(L"b"));
    box.add(L"c");
    EXPECT_TRUE(writeHearing(box, [](TextBox& written, Paragraph& first) {
        written.setFontColor(L"#000002");
        first.setFontSize(L"20pt");
    }));
    EXPECT_EQ(valuesOf(slideXml(1), "a:srgbClr", "val"),
              (std::vector<std::string>{"000001", "000002", "000002"}));
    EXPECT_EQ(valuesOf(slideXml(1), "a:rPr", "sz"), (std::vector<std::string>{"", "1000", "2000", ""}));
}

// A paragraph whose own formats are being applied may get more of them, and lose those it has.
TEST_F(ListenersTest, MayGiveFormatsToAParagraphWhoseFormatsAreApplied) {
    TextBox box(L"Box");
    Paragraph paragraph = box.add(L"a");
    paragraph.setSpaceBefore(L"2000pt");
    paragraph.setSpaceAfter(L"12pt");
    EXPECT_TRUE(writeHearing(box, [](TextBox&, Paragraph& first) {
        first.setBold(true);
        first.setHAlign(L"right");
        first.setLeftIndent(L"1cm");
    }));
    EXPECT_EQ(valuesOf(slideXml(1), "a:spcPts", "val"), (std::vector<std::string>{"158400", "1200"}));
}

TEST_F(ListenersTest, MayReplaceTheBulletOfAParagraphWhoseFormatsAreApplied) {
    TextBox box(L"Box");
    Paragraph paragraph = box.add(L"a");
    paragraph.setBullet(L"1)");
    paragraph.setSpaceBefore(L"2000pt");
    EXPECT_TRUE(writeHearing(box, [](TextBox&, Paragraph& first) { first.setBullet(L"-"); }));
    EXPECT_EQ(valuesOf(slideXml(1), "a:buAutoNum", "type"), (std::vector<std::string>{"arabicParenR"}));
}

// A text that stands for a missing value has the formats around it, even if some style somewhere has come and gone.
TEST_F(ListenersTest, MayMakeStyledObjectsWhileTextsWithoutPlacesAreWritten) {
    deck.setProfile(L"office");
    Table table(1);
    for (int i = 0; i < 2; ++i) {
        TableRow row;
        row.append(TableEntry());
        table.append(row);
    }
    table.setHeaderRow(false);
    Formats style;
    style.appendFormat(boost::make_shared<SpaceBefore>(L"2000pt"));
    style.appendFormat(boost::make_shared<FontColor>(L"#000001"));
    table.setStyle(style);
    table.setMissingText(L"n/a");
    table.setName(L"Table");
    deck.add(L"Blank").add(table);
    int heard = 0;
    isRepeated = true;
    action = [&](const Message&) {
        ++heard;
        TextBox(L"Elsewhere").setFontColor(L"#000002");
    };
    close();
    EXPECT_GE(heard, 1);
    EXPECT_EQ(valuesOf(slideXml(1), "a:srgbClr", "val"), (std::vector<std::string>{"000001", "000001"}));
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

// Listeners of a host get whole handles.
TEST_F(ListenersTest, HearOfACopyAheadOfItsChildrenAndMayReadItsParent) {
    TextBox box;
    box.add(L"a").append(L"b");
    std::wstring heard;
    std::vector<boost::shared_ptr<PPTNode>> nodes;
    isRepeated = true;
    action = [&](const Message& message) {
        heard += message.getText().substr(0, message.getText().find(L':')) + L"|";
        const auto handle = ObjectAccess::getImpl(*message.getSource())->makeHandle();
        nodes.push_back(boost::dynamic_pointer_cast<PPTNode>(handle));
        for (const auto& node : nodes) {
            const auto parent = node->getParent();
            const bool isText = node->getNodeType() == NodeType::Text;
            EXPECT_TRUE(!parent ||
                        parent->getNodeType() == (isText ? NodeType::Paragraph : NodeType::TextBox));
        }
    };
    hearOfLives(true);
    const auto copy = box.clone();
    hearOfLives(false);
    EXPECT_EQ(heard, L"Created ppt.Shape|Created ppt.BaseTextBox|Created ppt.TextBox|Created ppt.Paragraph|"
                     L"Created ppt.Text|Created ppt.Text|");
    EXPECT_EQ(outline(*copy), L"ab");
    EXPECT_EQ(*nodes.back()->getParent()->getParent(), *copy);
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

// What a box lists without being its parent isn't touched when the box ends.
TEST(FallenNodes, KeepAParentThatAnotherListDoesNotKnow) {
    Paragraph fallen(L"fallen");
    TextBox living(L"Living");
    Paragraph listed = living.add(L"listed");
    {
        TextBox box(L"Box"), other(L"Other");
        box.add(fallen);
        living.add(list({object(fallen)}));
        box.add(list({object(fallen)}));
        box.replace(L"other"); // the fallen one is in the list of another box that isn't its parent
        EXPECT_EQ(*fallen.getParent(), box);
    }
    EXPECT_FALSE(fallen.getParent());
    Paragraph shared(L"shared");
    {
        TextBox box(L"Box");
        box.add(list({object(shared)})); // tells no parent
        living.add(shared);
    }
    EXPECT_EQ(*shared.getParent(), living);
    EXPECT_EQ(*listed.getParent(), living);
    TextBox second(L"Second");
    EXPECT_EQ(errorOf([&] { second.add(shared); }), "ppt_error:failedToAppendChild");
    auto ending = boost::make_shared<Paragraph>(L"ending");
    {
        TextBox box(L"Box");
        box.add(list({object(*ending)}));
        second.add(*ending);
        second.replace(L"other");
    }
    ending.reset(); // and the box that it fell out of ends after it
}

// Handles may be made to stand for other objects at any time: those that a list holds, and those in use.
TEST(FallenNodes, AreThoseWhoseHandleInTheListWasAssignedTo) {
    Paragraph first(L"first");
    {
        TextBox box(L"Box");
        box.add(first);
        *box.getChildren().front() = Paragraph(L"second");
        EXPECT_EQ(outline(box), L"second");
    }
    EXPECT_FALSE(first.getParent());
}

TEST_F(ListenersTest, MayLetTheHandleInUseStandForAnother) {
    Slide slide = deck.add(L"Title and Table");
    Table table(1);
    TextBox box(L"Box");
    hearOfLives(true);
    action = [&](const Message&) { box = TextBox(L"Other"); };
    box.add(L"text");
    action = [&](const Message&) { box = TextBox(L"Other"); };
    box.replace(L"text");
    action = [&](const Message&) { box = TextBox(L"Other"); };
    EXPECT_EQ(box.clone()->getNChildren(), 0u);
    action = [&](const Message&) { table = Table(3); };
    TablePlaceholder::cast(slide.find(L"Table").front())->replace(table);
    hearOfLives(false);
    EXPECT_EQ(boost::dynamic_pointer_cast<Table>(slide.find(L"Table").front())->getNCols(), 1u);
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
