// What a presentation tells of what was asked for and isn't in the deck.

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

    /// "code slide shape" of each finding.
    Lines told() {
        Lines lines;
        for (const Finding& finding : deck.getFindings())
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
    EXPECT_EQ(findings[0].text, L"nothing bears the name \"Titel\"");
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
    EXPECT_EQ(deck.getFindings()[2].text, L"2 characters that a file can't hold were left out");
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

TEST_F(FindingsTest, AreLimited) {
    Slide slide = deck.add(L"Blank");
    for (std::size_t i = 0; i < FindingList::kMaxFindings + 5; ++i)
        slide.add(L"Nobody", L"x");
    const std::vector<Finding> findings = deck.getFindings();
    ASSERT_EQ(findings.size(), FindingList::kMaxFindings + 1);
    EXPECT_EQ(findings.back().code, "moreFindings");
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
