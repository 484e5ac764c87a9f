// Tokens in the texts of a template's slides.

#include "vellox/ppt/fill/Tokens.h"
#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/Picture.h"

#include <algorithm>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

TEST(TokensTest, OnlyNamesInBracesAreTokens) {
    const struct {
        const wchar_t* text;
        const wchar_t* tokens;
    } rows[] = {
        {L"{a} and {b.c:.1f}", L"a|b.c:.1f|"},
        {L"{{a}}", L"{|}|"},
        {L"{{{a}}}", L"{|a|}|"},
        {L"{} {a b} {a. {.a} {a", L""},
        {L"{größe_1-x}", L"größe_1-x|"},
        {L"{a:{b}}", L"b|"},
        {L"}{", L""},
        {L"{a:}", L"a|"},
        {L"{a\n}", L""},
    };
    for (const auto& row : rows) {
        std::wstring found;
        const std::wstring text = row.text;
        for (const Token& token : findTokens(text))
            found += (token.name.empty() ? text.substr(token.start, 1) : token.name) +
                     (token.form.empty() ? L"" : L":" + token.form) + L"|";
        EXPECT_EQ(found, row.tokens) << toUtf8(row.text);
    }
}

class FillTokensTest : public DeckTest {
protected:
    /// Starts over on a template with one slide of these shapes.
    void useSlide(const std::string& shapes) {
        TemplateBuilder builder;
        builder.addMaster("Theme");
        Page& layout =
            builder.addLayout("Own", shape(2, "Title", "<p:ph type='title'/>", place(5, 6, 70, 80)));
        builder.addSlide("One", layout, shapes);
        useTemplate(builder.build());
        deck.open();
    }
    static std::string box(int id, const std::string& name, const std::string& paragraphs) {
        std::string xml = shape(id, name, "", place(1, 2, 300, 400), "");
        const std::size_t start = xml.find("<a:p>"), end = xml.rfind("</a:p>") + 6;
        return xml.replace(start, end - start, paragraphs);
    }
    static std::string run(const std::string& text, const std::string& look = "") {
        return "<a:r><a:rPr lang='en'" + look + "/><a:t>" + text + "</a:t></a:r>";
    }
    Texts codes() {
        Texts found;
        for (const Finding& finding : deck.getFindings())
            found.push_back(finding.code + " " + toUtf8(finding.shape));
        return found;
    }
};

TEST_F(FillTokensTest, ATokenMaySpreadOverRunsAndKeepsItsLook) {
    useSlide(box(3, "Box",
                 "<a:p>" + run("Week {we", " b='1'") + run("e", " i='1'") + run("k} of {ye", " u='sng'") +
                     run("ar}", " i='1'") + "<a:br/>" + run("{{x}}") + "</a:p>"));
    EXPECT_EQ(deck.fillTokens({{L"week", 47}, {L"year", L"2026\nand on"}}), 2u);
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), (Texts{"Week 47", " of 2026", "and on", "{x}"}));
    EXPECT_EQ(valuesOf(slideXml(1), "a:rPr", "b").front(), "1");
    const Texts underlined = valuesOf(slideXml(1), "a:rPr", "u");
    EXPECT_EQ(std::count(underlined.begin(), underlined.end(), "sng"), 3)
        << "two lines and the break between them";
    EXPECT_EQ(findAll(slideXml(1), "a:br").size(), 2u);
    EXPECT_TRUE(codes().empty());
}

TEST_F(FillTokensTest, GroupsTablesRecordsAndNotesAreFilled) {
    useSlide(groupShape(2, "Group",
                        box(3, "Inner", "<a:p>" + run("{flow.mean:.1f} {flow.unit.name}") + "</a:p>")) +
             tableShape(4, "Sheet", 1, 1));
    Slide slide = *Slide::cast(deck.getChildren().front());
    slide.setNotes(L"Say {name}");
    EXPECT_EQ(deck.fillTokens({{L"flow", record({{L"mean", 2.04}, {L"unit", record({{L"name", L"l/s"}})}})},
                               {L"name", L"it"}}),
              3u);
    EXPECT_EQ(slide.getNotes(), L"Say it");
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t").front(), "2.0 l/s");
}

TEST_F(FillTokensTest, AListRepeatsItsParagraph) {
    useSlide(box(3, "Box",
                 "<a:p><a:pPr lvl='1'/>" + run(" {points} ", " b='1'") + "</a:p><a:p>" + run("{none}") +
                     "</a:p>") +
             box(4, "Empty", "<a:p>" + run("{none}") + "</a:p>"));
    deck.fillTokens({{L"points", list({L"a", list({L"b", 1.5})})}, {L"none", std::vector<std::wstring>()}});
    close();
    EXPECT_EQ(textsOf(shapeXml(1, "Box"), "a:t"), (Texts{" a ", " b ", " 1.5 "}));
    EXPECT_EQ(valuesOf(shapeXml(1, "Box"), "a:pPr", "lvl"), (Texts{"1", "2", "2"}));
    EXPECT_EQ(findAll(shapeXml(1, "Box"), "a:p").size(), 3u);
    EXPECT_EQ(findAll(shapeXml(1, "Empty"), "a:p").size(), 1u);
}

// Only one token of such a row was told, and none filled.
TEST_F(FillTokensTest, AMergedRowIsFilledButNotRepeated) {
    std::string table = tableShape(4, "Sheet", 1, 3);
    for (const char* text : {"{rows.a}", "{rows.b}", "{week}"})
        table.replace(table.find(">cell<") + 1, 4, text);
    table.replace(table.find("<a:tc>"), 6, "<a:tc rowSpan='2'>");
    useSlide(table);
    EXPECT_EQ(deck.fillTokens({{L"rows", list({record({{L"a", 1}, {L"b", 2}})})}, {L"week", 47}}), 1u);
    EXPECT_EQ(codes(), (Texts{"tokenRefusesValue Sheet", "tokenRefusesValue Sheet"}));
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), (Texts{"{rows.a}", "{rows.b}", "47"}));
}

TEST_F(FillTokensTest, ARowIsRepeatedForEachRecord) {
    std::string table = tableShape(4, "Sheet", 2, 2);
    const auto put = [&](const std::string& text) { // into the next cell that is as it was
        const std::string former = "<a:r><a:t>cell</a:t></a:r>";
        table.replace(table.find(former), former.size(), run(text));
    };
    for (const char* text : {"Name", "Value", "{rows.name}", "{rows.value:.2f} of {all}"})
        put(text);
    useSlide(table);
    const Content rows = std::vector<Content>{record({{L"name", L"a"}, {L"value", 1}}),
                                              record({{L"name", L"b"}, {L"value", 2.345}})};
    EXPECT_EQ(deck.fillTokens({{L"rows", rows}, {L"all", 9}}, true), 6u);
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), (Texts{"Name", "Value", "a", "1.00 of 9", "b", "2.35 of 9"}));
    EXPECT_EQ(findAll(slideXml(1), "a:tr").size(), 3u);
}

TEST_F(FillTokensTest, APictureOrATableStandsWhereItsTokenDid) {
    writeFile(folder / L"plot.png", makePng(4, 2));
    useSlide(box(3, "Plot", "<a:p>" + run("{plot}") + "</a:p>") +
             box(4, "Sheet", "<a:p>" + run("{sheet}") + "</a:p>") +
             shape(5, "Title", "<p:ph type='title'/>", "", "{plot}") +
             groupShape(6, "Group", box(7, "Inner", "<a:p>" + run("{sheet}") + "</a:p>")) +
             box(8, "Text", "<a:p>" + run("see {plot}") + "</a:p>"));
    deck.fillTokens({{L"plot", Picture(folder / L"plot.png")},
                     {L"sheet", HvContentPtr(boost::make_shared<TableContent>(boost::make_shared<MemoryTable>(
                                    1u, std::initializer_list<HvContentPtr>{text(L"a"), text(L"b")})))}});
    EXPECT_EQ(codes(), (Texts{"tokenRefusesValue Text", "tokenRefusesValue Inner"}));
    EXPECT_EQ(errorOf([&] { deck.fillTokens({}, true); }),
              "ppt_error:tokensLeft {sheet}, {plot}"); // of the last two
    close();
    EXPECT_EQ(valuesOf(shapeXml(1, "Plot"), "a:ext", "cx"), Texts{"300"});
    EXPECT_EQ(textsOf(shapeXml(1, "Sheet"), "a:t"), (Texts{"a", "b"}));
    EXPECT_EQ(valuesOf(shapeXml(1, "Sheet"), "a:off", "x"), Texts{"1"});
    EXPECT_EQ(findAll(shapeXml(1, "Title"), "a:blip").size(), 1u);
}

TEST_F(FillTokensTest, WhatDoesntMatchIsToldOrRefused) {
    useSlide(box(3, "Box", "<a:p>" + run("{a} {b} {c:.1f}") + "</a:p>"));
    const Contents values{{L"a", L"x"}, {L"c", L"text"}, {L"d", 1}};
    EXPECT_EQ(errorOf([&] { deck.fillTokens(values, true); }), "ppt_error:tokensLeft {b}, {c}, d");
    EXPECT_TRUE(codes().empty());
    Slide copy = deck.copy(*Slide::cast(deck.getChildren().front()));
    copy.fillTokens({{L"a", 1}, {L"b", 2}, {L"c", 3}}, true);
    Slide sample = *Slide::cast(deck.getChildren().front());
    EXPECT_EQ(sample.fillTokens(values), 1u);
    EXPECT_EQ(codes(), (Texts{"tokenWithoutValue Box", "tokenRefusesValue Box", "valueWithoutToken "}));
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), Texts{"x {b} {c:.1f}"});
    EXPECT_EQ(textsOf(slideXml(2), "a:t"), Texts{"1 2 3.0"});
}

} // namespace
