// What a presentation tells of what was asked for and isn't in the deck.

#include "vellox/foundation/NameHint.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/messages/FindingKinds.h"
#include "vellox/ppt/messages/FindingList.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/tree/BaseTextBox.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Lines = std::vector<std::wstring>;

class FindingsTest : public DeckTest {
protected:
    /// A template with one layout, "Own", of these shapes.
    void useLayout(const std::string& shapes) {
        TemplateBuilder builder;
        builder.addMaster("Master");
        builder.addLayout("Own", shapes);
        useTemplate(builder.build());
    }

    /// One of these shapes on a slide of the template itself.
    Slide useSlide(const std::string& shapes) {
        TemplateBuilder builder;
        builder.addMaster("Master");
        builder.addSlide("Made", builder.addLayout("Own"), shapes);
        useTemplate(builder.build());
        deck.open();
        return static_cast<const Slide&>(*deck.getChildren()[0]);
    }

    /// "code slide shape" of each finding, but for what is merely worth knowing.
    Lines told() {
        Lines lines;
        for (const Finding& finding : deck.getFindings())
            if (finding.severity != Severity::Info)
                lines.push_back(fromUtf8(finding.code) + L" " + std::to_wstring(finding.slide) + L" " +
                                finding.shape);
        return lines;
    }
};

TEST_F(FindingsTest, NamesThatAreNotBorne) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"All is well");
    slide.add(L"Content", L"here");
    EXPECT_EQ(told(), Lines());
    slide.replace(L"Titel", L"x");
    deck.replace(L"Subtitle", L"y");
    const std::vector<Finding> findings = deck.getFindings();
    EXPECT_EQ(told(), (Lines{L"unknownName 1 ", L"unknownName 0 "}));
    EXPECT_EQ(findings[0].text, L"nothing bears the name \"Titel\"; the nearest names are \"Title\"");
    EXPECT_EQ(findings[0].severity, Severity::Error);
    deck.add(L"Blank", 0);
    EXPECT_EQ(told()[0], L"unknownName 2 "); // by the slide's number of now
    close();
    EXPECT_EQ(told().size(), 2u);
}

TEST_F(FindingsTest, NamesOfSeveralShapes) {
    useLayout(
        shape(2, "Text", "<p:ph type='body' idx='1'/>") + shape(3, "Text", "<p:ph type='body' idx='2'/>") +
        shape(4, "Text", "<p:ph type='body' idx='3'/>") + shape(5, "Table", "<p:ph type='tbl' idx='4'/>"));
    deck.add(L"Own").replace(L"Text", L"x");
    deck.add(L"Own");
    EXPECT_EQ(told(), Lines{L"ambiguousName 1 Text"}); // once, however many bear it
    deck.replace(L"Table", L"a text");
    deck.replace(L"Text", list({text(L"x")}));
    EXPECT_EQ(told(), (Lines{L"ambiguousName 1 Text", L"contentRefused 1 Table", L"contentRefused 2 Table",
                             L"ambiguousName 1 Text", L"ambiguousName 2 Text"}));
    static_cast<BaseTextBox&>(*deck.find(L"Text")[0]).add(number(1));
    EXPECT_EQ(told().back(), L"listExpected 1 Text");
}

TEST_F(FindingsTest, ShapesInGroupsStay) {
    Slide slide =
        useSlide(groupShape(2, "Group",
                            shape(3, "Inner") + shape(4, "Untouched") +
                                groupShape(5, "Deeper", tableShape(6, "Table", 1, 1) + shape(7, "Moved"))));
    slide.add(L"Inner", L"lost");
    slide.replace(L"Table", object(Table(2)));
    static_cast<Shape&>(*slide.find(L"Moved")[0]).setX(L"1in");
    close();
    EXPECT_EQ(told(), (Lines{L"notReplaced 1 Table", L"shapeInGroup 1 Inner", L"shapeInGroup 1 Moved"}));
}

TEST_F(FindingsTest, PicturesAndTables) {
    writeFile(folder / L"odd.own", "bytes");
    Slide slide = deck.add(L"Title and Picture");
    slide.replace(L"Picture", object(Picture()));
    Picture missing(folder / L"missing.png"), odd(folder / L"odd.own");
    missing.setName(L"Missing");
    odd.setName(L"Odd");
    slide.add(missing);
    slide.add(odd);
    Table empty(2), styled(2);
    empty.setName(L"Empty");
    styled.setName(L"Styled");
    styled.setStyleName(L"None such");
    styled.append(TableRow());
    slide.add(empty);
    slide.add(styled);
    close();
    EXPECT_EQ(told(),
              (Lines{L"pictureWithoutFile 1 Picture", L"unreadablePicture 1 Missing",
                     L"unknownImageType 1 Odd", L"emptyTable 1 Empty", L"invalidTableStyle 1 Styled"}));
}

TEST_F(FindingsTest, WhatATemplateHoldsIsAsAsked) {
    useSlide(shape(2, "Text") + tableShape(3, "Table", 1, 1) + groupShape(4, "Group", shape(5, "Inner")));
    close();
    EXPECT_EQ(told(), Lines());
}

TEST_F(FindingsTest, TextsThatAreNotWritten) {
    Slide slide =
        useSlide("<p:sp><p:nvSpPr><p:cNvPr id='2' name='Bare'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp>");
    const auto bare = slide.find(L"Bare");
    ASSERT_EQ(bare.size(), 1u);
    slide.add(L"Bare", L"lost");
    static_cast<BaseTextBox&>(*bare[0]).setBackgroundColor(L"red");
    TextBox box(L"Box");
    // Paragraphs of a list that is added don't know their box.
    box.add(list({text(L"a\x01"
                       L"b\x02"),
                  object(Paragraph(ExternalLink(L" ", L"nowhere")))}));
    slide.add(box);
    close();
    EXPECT_EQ(told(), (Lines{L"noShapeProperties 1 Bare", L"noTextBody 1 Bare", L"charactersDropped 1 Box",
                             L"emptyLinkTarget 1 Box"}));
    EXPECT_EQ(deck.getFindings()[2].text, L"characters that a file can't hold were left out: 2");
}

TEST_F(FindingsTest, WhatComesTooLate) {
    Slide slide = deck.add(L"Blank");
    implOf<PPTNodeImpl>(deck)->appendChild(slide.clone());
    deck.setOutputPath(folder / L"other.pptx");
    deck.close();
    deck.add(L"Blank", 0);
    EXPECT_EQ(told(), (Lines{L"cannotChangeOutputPath 0 ", L"slideNotWritten 3 ", L"slideAfterClose 1 "}));
    EXPECT_EQ(static_cast<const Presentation&>(*deck.clone()).getFindings().size(), 0u);
}

TEST_F(FindingsTest, ACloseThatFailedLeavesNone) {
    Table styled(1);
    styled.setStyleName(L"None such");
    styled.append(TableRow());
    deck.add(L"Blank").add(styled);
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    const auto token =
        dispatcher.addListener([](const MessageEventData&) { throw std::runtime_error("enough"); });
    EXPECT_THROW(deck.close(), std::runtime_error);
    dispatcher.removeListener(token);
    EXPECT_EQ(told(), Lines());
    close();
    EXPECT_EQ(told(), Lines{L"invalidTableStyle 1 "});
}

// A sheet of text in a small box, and the same in a large one or with small letters.
TEST_F(FindingsTest, WhatFindsNoRoom) {
    const std::wstring words(300, L'w');
    useLayout(shape(2, "Small", "<p:ph type='body' idx='1'/>", place(0, 0, 2000000, 1000000)) +
              shape(3, "Large", "<p:ph type='body' idx='2'/>", place(0, 0, 8000000, 4000000)) +
              shape(4, "Table", "<p:ph type='tbl' idx='3'/>", place(0, 0, 8000000, 2000000)) +
              shape(5, "Unused", "<p:ph type='body' idx='4'/>"));
    Slide slide = deck.add(L"Own");
    for (const wchar_t* name : {L"Small", L"Large"})
        slide.add(name, words);
    TextBox free(L"Free");
    free.setWidth(L"2000000emus");
    free.setHeight(L"1000000emus");
    free.setFontSize(L"4pt");
    free.add(words);
    slide.add(free);
    Table table(1);
    for (int i = 0; i < 12; ++i) {
        TableRow row;
        row.append(TableEntry(L"one line"));
        table.append(row);
    }
    slide.replace(L"Table", object(table));
    close();
    EXPECT_EQ(told(), (Lines{L"textTooLong 1 Small", L"tableTooLong 1 Table"}));
    const Finding left = deck.getFindings().at(2);
    EXPECT_EQ(left.code + " " + toUtf8(left.shape), "emptyPlaceholder Unused");
    EXPECT_EQ(deck.getFindings()[0].text, L"the text takes about 820 % of the room that its box has");
}

// By the name of the error, the first finding that is one is raised, and nothing has happened then.
TEST_F(FindingsTest, AStrictPresentationRaisesThem) {
    Slide slide = deck.add(L"Title and Content");
    slide.add(L"Contnet", L"x");
    deck.setStrict(true);
    EXPECT_EQ(errorOf([&] { slide.add(L"Titel", L"x"); }),
              "ppt_error:notAsAsked slide 1: nothing bears the name \"Titel\"; the nearest names are "
              "\"Title\" unknownName");
    EXPECT_EQ(told(), Lines{L"unknownName 1 "}); // from before
    const std::string before = readFile(output);
    EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, 20), "ppt_error:notAsAsked");
    EXPECT_EQ(readFile(output), before);

    Presentation other(folder / L"other.pptx");
    other.setStrict(true);
    Slide pictured = other.add(L"Blank");
    pictured.add(Picture(folder / L"missing.png"));
    const std::string untouched = readFile(folder / L"other.pptx");
    EXPECT_EQ(errorOf([&] { other.close(); }).substr(0, 20), "ppt_error:notAsAsked");
    EXPECT_EQ(readFile(folder / L"other.pptx"), untouched);
    other.setStrict(false);
    EXPECT_TRUE(other.close());
}

TEST_F(FindingsTest, OfficeSendsThem) {
    std::vector<std::wstring> heard;
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    const auto token = dispatcher.addListener([&](const MessageEventData& event) {
        heard.push_back(event.getMessage().getText());
        deck = Presentation(folder / L"else.pptx"); // the last handle on it
    });
    deck.add(L"Blank").add(L"Nobody", L"x");
    EXPECT_EQ(heard, Lines());
    deck = Presentation::forOffice(output);
    Slide slide = deck.add(L"Title Only");
    slide.add(L"Titel", L"x");
    EXPECT_EQ(heard, Lines{L"nothing bears the name \"Titel\"; the nearest names are \"Title\""});
    dispatcher.removeListener(token);
}

// The nearest names stand beside the text of an error, and in it with the profile "office".
TEST_F(FindingsTest, ErrorsOfNamesHaveTheNearest) {
    const auto ask = [](Presentation& asked, const std::wstring& layout, const wchar_t* master) {
        try {
            master ? asked.add(layout, master) : asked.add(layout);
        } catch (const hostfx::except::IMsgIDException& error) {
            return dynamic_cast<const IHintedError&>(error).getHint().text + L"|" + fromUtf8(error.what());
        }
        return std::wstring();
    };
    const std::wstring hint = L"the nearest names are \"Title and Content\"";
    const std::wstring beside = ask(deck, L"title and contnet", nullptr);
    EXPECT_EQ(beside.substr(0, hint.size()), hint);
    EXPECT_EQ(beside.find(hint, 1), std::wstring::npos) << "its text stays as it always was";
    Presentation office = Presentation::forOffice(folder / L"office.pptx");
    EXPECT_NE(ask(office, L"title and contnet", nullptr).find(L" (" + hint), std::wstring::npos);
    const std::wstring master = deck.getMasterNames()[0];
    EXPECT_NE(ask(deck, L"Blank", (L"x" + master).c_str()).find(L"\"" + master + L"\""), std::wstring::npos);
    EXPECT_NE(ask(deck, L"Blnak", master.c_str()).find(L"\"Blank\""), std::wstring::npos);
    EXPECT_EQ(ask(deck, L"xyzzy", nullptr).substr(0, 10), L"there are ");
}

TEST(NameHint, NearestNames) {
    const Lines names{L"Title", L"Title", L"Subtitle", L"Content Placeholder 2", L"", L"Picture"};
    EXPECT_EQ(findNearestNames(L"TITEL", names), (Lines{L"Title"}));
    EXPECT_EQ(findNearestNames(L"content", names), (Lines{L"Content Placeholder 2"}));
    EXPECT_EQ(findNearestNames(L"Sub title", names), (Lines{L"Subtitle", L"Title"}));
    EXPECT_EQ(findNearestNames(L"Elsewhere", names), Lines());
    EXPECT_EQ(findNearestNames(std::wstring(100000, L'x'), {std::wstring(100001, L'x')}).size(), 1u);
}

TEST_F(FindingsTest, AreLimited) {
    Slide slide = deck.add(L"Blank");
    for (std::size_t i = 0; i < FindingList::kMaxFindings + 5; ++i)
        slide.add(L"Nobody", L"x");
    const std::vector<Finding> findings = deck.getFindings();
    ASSERT_EQ(findings.size(), FindingList::kMaxFindings + 1);
    EXPECT_EQ(findings.back().code, "moreFindings");
    EXPECT_EQ(deck.getFindings(FindingList::kMaxFindings).size(), 1u);
    EXPECT_EQ(deck.getFindings(findings.size() + 1).size(), 0u);
    EXPECT_EQ(findings.back().severity, Severity::Info);
}

// The identifiers, what they are worth, and their documentation are kept by hand.
TEST_F(FindingsTest, EachKindHasItsRow) {
    const std::string header = readFile(fromUtf8(SOURCE_FOLDER "/vellox/foundation/Identifiers.h"));
    const std::string page = readFile(fromUtf8(SOURCE_FOLDER "/vellox/ppt/engine/Presentation.h"));
    std::size_t count = 0;
    for (auto at = header.find("kCatalog,", header.find("namespace ppt_finding")); at != std::string::npos;
         at = header.find("kCatalog,", at + 1))
        ++count;
    EXPECT_EQ(count, std::size(kFindingKinds));
    for (const FindingKind& kind : kFindingKinds) {
        EXPECT_NE(header.find(std::string("kCatalog, \"") + kind.code + '"'), std::string::npos) << kind.code;
        EXPECT_NE(page.find(kind.code), std::string::npos) << kind.code;
    }
}

} // namespace
