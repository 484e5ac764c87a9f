// Strict fill: shapes by name, all or none.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/ppt/tree/Cast.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

class FillTest : public DeckTest {
protected:
    Slide makeSlide() {
        TemplateBuilder builder;
        builder.addMaster("Theme");
        Page& layout = builder.addLayout(
            "Report", shape(2, "Title", "<p:ph type='title'/>") +
                          shape(3, "Left", "<p:ph type='body' idx='1'/>") +
                          shape(4, "Right", "<p:ph type='body' idx='2'/>") +
                          shape(5, "Anything", "<p:ph idx='13'/>", place(1, 2, 300, 400)) +
                          shape(6, "Figures", "<p:ph type='tbl' idx='14'/>", place(1, 2, 300, 400)) +
                          shape(7, "Twice", "<p:ph type='body' idx='15'/>") +
                          shape(8, "Twice", "<p:ph type='body' idx='16'/>"));
        builder.addPart("ppt/media/image1.png", "image/png", makePng(2, 2));
        Page& sample =
            builder.addSlide("Sample", layout,
                             shape(2, "Title", "<p:ph type='title'/>", "", "Kept") +
                                 shape(3, "Left", "<p:ph type='body' idx='1'/>", "", "") +
                                 groupShape(9, "Group",
                                            shape(10, "Inner", "", "", "grouped") +
                                                pictureShape(11, "Photo", "rId9", place(0, 0, 9, 9))) +
                                 tableShape(12, "Sheet", 2, 2));
        sample.relations = {{"rId9", "image", "../media/image1.png"}};
        useTemplate(builder.build());
        writeFile(folder / L"plot.png", makePng(4, 2));
        return deck.add(L"Report");
    }
    std::string refusal(const Contents& contents, bool dropEmpty = false) {
        return errorOf([&] { slide.fill(contents, dropEmpty); });
    }

    Slide slide = makeSlide();
};

TEST_F(FillTest, EachShapeTakesWhatItCanShow) {
    slide.fill({{L"Title", L"Week 47"},
                {L"Left", list({L"up", list({L"by 3 %", 2.5}), true})},
                {L"idx:2", 42},
                {L"idx:13", Picture(folder / L"plot.png")},
                {L"type:tbl", std::vector<std::vector<std::wstring>>{{L"a", L"b"}, {L"c"}}}});
    close();
    EXPECT_EQ(textsOf(shapeXml(2, "Title"), "a:t"), Texts{"Week 47"});
    EXPECT_EQ(textsOf(shapeXml(2, "Left"), "a:t"), (Texts{"up", "by 3 %", "2.5"}));
    EXPECT_EQ(textsOf(shapeXml(2, "Right"), "a:t"), Texts{"42"});
    EXPECT_EQ(findAll(shapeXml(2, "Anything"), "a:blip").size(), 1u);
    EXPECT_EQ(textsOf(shapeXml(2, "Figures"), "a:t"), (Texts{"a", "b", "c"}));
}

TEST_F(FillTest, NothingIsFilledByHalf) {
    const Picture plot(folder / L"plot.png");
    const struct {
        const wchar_t* name;
        Content content;
        const char* error;
    } rows[] = {
        {L"Titel", L"x", "ppt_error:unknownShape Titel"},
        {L"idx:99", L"x", "ppt_error:unknownShape idx:99"},
        {L"type:body#5", L"x", "ppt_error:unknownShape type:body#5"},
        {L"Twice", L"x", "ppt_error:ambiguousShape Twice 2"},
        {L"type:body", L"x", "ppt_error:ambiguousShape type:body 4"},
        {L"Left", plot, "ppt_error:shapeRefusesContent Left a picture"},
        {L"Figures", L"x", "ppt_error:shapeRefusesContent Figures a text"},
        {L"Left", tableOf({{L"a"}}), "ppt_error:shapeRefusesContent Left a table"},
        {L"Left", slide, "ppt_error:shapeRefusesContent Left an object of another class"},
        {L"Left", list({L"a", list({L"b", plot})}),
         "ppt_error:shapeRefusesContent Left a list with a picture"},
        {L"Left", list({record({{L"a", 1}})}), "ppt_error:shapeRefusesContent Left a list with a record"},
        {L"Left", record({{L"a", 1}}), "ppt_error:shapeRefusesContent Left a record"},
        {L"Figures", Content(), "ppt_error:shapeRefusesContent Figures nothing"},
        {L"type:title", L"x", "ppt_error:shapeFilledTwice Title type:title"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(refusal({{L"Title", L"First"}, {row.name, row.content}}, true), row.error);
        EXPECT_EQ(BaseTextBox::cast(slide.shape(L"Title"))->getText(), L"") << row.error;
    }
    EXPECT_EQ(slide.getNChildren(), 7u);
    try {
        slide.fill({{L"Titel", L"x"}});
    } catch (const IHintedError& error) {
        EXPECT_EQ(error.getHint().names.front(), L"Title");
    }
}

// A fill that broke off at a picture on a picture had filled the title before.
TEST_F(FillTest, WhatIsFilledCanBeFilledAgain) {
    const Picture plot(folder / L"plot.png");
    Picture own(folder / L"plot.png");
    own.setName(L"Own");
    slide.add(own);
    const std::vector<std::vector<std::wstring>> rows{{L"a", L"b"}, {L"c"}};
    for (const wchar_t* title : {L"One", L"Two"})
        slide.fill({{L"Title", title},
                    {L"Left", list({L"a", 1})},
                    {L"Right", true},
                    {L"Anything", plot},
                    {L"Own", plot},
                    {L"Figures", rows}});
    slide.fill({{L"Figures", tableOf({{L"d"}})}, {L"Left", L"alone"}});
    close();
    EXPECT_EQ(textsOf(shapeXml(2, "Title"), "a:t"), Texts{"Two"});
    EXPECT_EQ(textsOf(shapeXml(2, "Left"), "a:t"), Texts{"alone"});
    EXPECT_EQ(textsOf(shapeXml(2, "Figures"), "a:t"), Texts{"d"});
    EXPECT_EQ(findAll(slideXml(2), "a:blip").size(), 2u);
}

// Numbers had 17 digits there, and a truth value went with what is empty.
TEST_F(FillTest, TextsAreWhatTheProfileShows) {
    EXPECT_EQ(BaseTextBox::cast(slide.shape(L"Title"))->getText(), L"");
    slide.fill({{L"Title", 1.1}});
    EXPECT_EQ(BaseTextBox::cast(slide.shape(L"Title"))->getText(), L"1.1000000000000001");
    Presentation modern(folder / L"modern.pptx", folder / L"template.pptx");
    modern.setProfile(L"office");
    modern.open();
    Slide shown = modern.add(L"Report");
    shown.fill({{L"Title", 1.1}, {L"Left", true}, {L"Right", list({L"a\r\nb", 0.9, false})}}, true);
    const auto textOf = [&](const wchar_t* name) { return BaseTextBox::cast(shown.shape(name))->getText(); };
    EXPECT_EQ(textOf(L"Title"), L"1.1");
    EXPECT_EQ(textOf(L"Left"), L"true");
    EXPECT_EQ(textOf(L"Right"), L"a\nb\n0.9\nfalse");
    EXPECT_EQ(shown.getNChildren(), 3u);
    modern.close();
}

TEST_F(FillTest, WhatStaysEmptyIsToldOrGoes) {
    slide.fill({{L"Title", L"Only"}}, true);
    Slide sample = *Slide::cast(deck.getChildren().front());
    sample.fill({});
    ASSERT_EQ(deck.getFindings().size(), 1u);
    EXPECT_EQ(deck.getFindings()[0].code, "emptyPlaceholder");
    EXPECT_EQ(deck.getFindings()[0].shape, L"Left");
    sample.fill({}, true);
    close();
    EXPECT_EQ(valuesOf(slideXml(2), "p:ph", "type"), Texts{"title"});
    EXPECT_EQ(valuesOf(slideXml(1), "p:ph", "type"), Texts{"title"});
}

TEST_F(FillTest, GroupsKeepTheirPictures) {
    Slide sample = *Slide::cast(deck.getChildren().front());
    EXPECT_EQ(errorOf([&] {
                  sample.fill({{L"Photo", Picture(folder / L"plot.png")}});
              }),
              "ppt_error:shapeRefusesContent Photo a picture");
    EXPECT_EQ(errorOf([&] { sample.fill({{L"Inner", L"filled"}}); }), "nothing");
}

TEST_F(FillTest, TextsOfTheTemplateAreReadAndCellsSet) {
    Slide sample = *Slide::cast(deck.getChildren().front());
    const auto title = BaseTextBox::cast(sample.shape(L"Title"));
    EXPECT_EQ(title->getText(), L"Kept");
    title->add(L"more");
    EXPECT_EQ(title->getText(), L"Kept\nmore");
    title->replace(L"new");
    EXPECT_EQ(title->getText(), L"new");
    Table sheet = as<Table>(sample.shape(L"Sheet"));
    ASSERT_TRUE(sheet.entry(1, 1));
    EXPECT_FALSE(sheet.entry(2, 0));
    EXPECT_FALSE(sheet.entry(0, 2));
    const std::wstring former = sheet.entry(0, 0)->getText();
    sheet.entry(1, 1)->setText(L"one\ntwo");
    sheet.entry(1, 0)->setFontColor(L"red");
    EXPECT_EQ(sheet.entry(1, 1)->getText(), L"one\ntwo");
    Slide copy = deck.copy(sample);
    as<Table>(copy.shape(L"Sheet")).entry(1, 1)->setText(L"copied");
    EXPECT_EQ(sheet.entry(1, 1)->getText(), L"one\ntwo");
    close();
    const Texts cells = findAll(shapeXml(1, "Sheet"), "a:tc");
    ASSERT_EQ(cells.size(), 4u);
    EXPECT_EQ(textsOf(cells[0], "a:t").empty() ? "" : textsOf(cells[0], "a:t")[0], toUtf8(former));
    EXPECT_EQ(textsOf(cells[3], "a:t"), (Texts{"one", "two"}));
    EXPECT_NE(cells[2].find("a:solidFill"), std::string::npos);
    EXPECT_EQ(textsOf(findAll(shapeXml(3, "Sheet"), "a:tc")[3], "a:t"), Texts{"copied"});
}

TEST_F(FillTest, ValuesOfTheTemplatesCellsHaveTheirForms) {
    deck.setNumberFormat(L".2f");
    Table sheet = as<Table>(Slide::cast(deck.getChildren().front())->shape(L"Sheet"));
    sheet.entry(0, 0)->setText(L"2026"); // in the header only what is the entry's own counts
    sheet.entry(0, 1)->setText(L"nan");
    sheet.entry(0, 1)->setMissingText(L"none yet");
    sheet.entry(1, 0)->setText(L"1");
    const auto last = sheet.entry(1, 1);
    last->setNumberFormat(L"{:.1f} m");
    last->setText(L"3.14159");
    last->append(Paragraph(2));
    last->append(L"3 and more");
    close();
    const Texts cells = findAll(shapeXml(1, "Sheet"), "a:tc");
    EXPECT_EQ(textsOf(cells.at(0), "a:t"), Texts{"2026"});
    EXPECT_EQ(textsOf(cells.at(1), "a:t"), Texts{"none yet"});
    EXPECT_EQ(textsOf(cells.at(2), "a:t"), Texts{"1.00"});
    EXPECT_EQ(textsOf(cells.at(3), "a:t"), (Texts{"3.1 m", "2.0 m", "3 and more"}));
    EXPECT_EQ(valuesOf(cells.at(3), "a:pPr", "algn"), Texts{}) << "where the template has it";
}

TEST_F(FillTest, CastsTellWhatIsWrong) {
    EXPECT_EQ(errorOf([&] { as<Table>(boost::shared_ptr<PPTNode>()); }), "ppt_error:emptyHandle shape");
    EXPECT_EQ(errorOf([&] { as<Table>(slide.shape(L"Title")); }),
              "ppt_error:wrongClass Title vellox.ppt.TextBoxPlaceholder");
}

} // namespace
