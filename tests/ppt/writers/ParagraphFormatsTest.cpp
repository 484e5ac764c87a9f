// How paragraphs stand, and how texts and boxes are made to fit.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/foundation/FontMetrics.h"
#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/Cast.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

class ParagraphFormatsTest : public DeckTest {
protected:
    Slide start(const wchar_t* profile, const wchar_t* layout = L"Title and Content") {
        deck.setProfile(profile);
        return deck.add(layout);
    }
    /// Of the paragraphs of a shape of the first slide; "" where there are none.
    Texts propertiesOf(const std::string& name) {
        Texts all;
        for (const std::string& paragraph : findAll(shapeXml(1, name), "a:p")) {
            const Texts properties = findAll(paragraph, "a:pPr");
            all.push_back(properties.empty() ? "" : properties[0]);
        }
        return all;
    }
    unsigned count(const char* code) const {
        unsigned found = 0;
        for (const Finding& finding : deck.getFindings())
            found += finding.code == code;
        return found;
    }
};

TEST_F(ParagraphFormatsTest, BulletsAreCharactersOrCounts) {
    struct Row {
        const wchar_t* bullet;
        const char* xml; // null for a refusal
    };
    const Row rows[] = {
        {L"-", "<a:buChar char='-'/>"},
        {L"\u2713", "<a:buChar char='\u2713'/>"},
        {L"None", "<a:buNone/>"},
        {L"1", "<a:buAutoNum type='arabicPlain'/>"},
        {L"1.", "<a:buAutoNum type='arabicPeriod'/>"},
        {L"(12)", "<a:buAutoNum startAt='12' type='arabicParenBoth'/>"},
        {L"a)", "<a:buAutoNum type='alphaLcParenR'/>"},
        {L"C.", "<a:buAutoNum startAt='3' type='alphaUcPeriod'/>"},
        {L"i.", "<a:buAutoNum type='romanLcPeriod'/>"},
        {L"(XIV)", "<a:buAutoNum startAt='14' type='romanUcParenBoth'/>"},
        {L"i", "<a:buChar char='i'/>"},
        {L")", "<a:buChar char=')'/>"},
        {L"0.", "<a:buChar char='0.'/>"},
        {L"32768.", nullptr},
        {L"Wingdings", nullptr},
        {L" ", nullptr},
        {L"1. words", nullptr},
        {L"-\x01", "<a:buChar char='-'/>"},
        {L"\xFFFE", nullptr},
    };
    TextBox box(L"Box");
    Texts expected;
    for (const Row& row : rows) {
        Paragraph paragraph(L"x");
        const std::string error = errorOf([&] { paragraph.setBullet(row.bullet); });
        EXPECT_EQ(error != "nothing", row.xml == nullptr) << toUtf8(row.bullet);
        if (!row.xml)
            continue;
        paragraph.setLeftIndent(L"0cm");
        box.add(paragraph);
        const std::string font = std::string(row.xml) == "<a:buNone/>" ? "" : "<a:buFontTx/>";
        expected.push_back("<a:pPr marL='0'>" + font + row.xml + "</a:pPr>");
    }
    start(L"classic").add(box);
    close();
    EXPECT_EQ(propertiesOf("Box"), expected);
    EXPECT_EQ(count("charactersDropped"), 1u);
}

TEST_F(ParagraphFormatsTest, ABoxSetsThemForTheLevelsOfItsList) {
    Slide slide = start(L"office");
    slide.fill({{L"Content", list({L"a", list({L"b", list({L"c", list({L"d"})})})})}});
    as<BaseTextBox>(slide.shape(L"Content")).setBullet(L"1. a) -");
    close();
    const Texts found = propertiesOf("Content");
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(found[0], "<a:pPr><a:buFontTx/><a:buAutoNum type='arabicPeriod'/></a:pPr>")
        << "the template's indents hang";
    EXPECT_EQ(findAll(found[1], "a:buAutoNum").at(0), "<a:buAutoNum type='alphaLcParenR'/>");
    EXPECT_EQ(findAll(found[2], "a:buChar").at(0), "<a:buChar char='-'/>");
    EXPECT_EQ(findAll(found[3], "a:buChar").at(0), "<a:buChar char='-'/>");
}

TEST_F(ParagraphFormatsTest, LengthsComeInTheSequenceOfTheSchema) {
    TextBox box(L"Box");
    Paragraph paragraph(L"x", 2);
    paragraph.setBullet(L"-");
    paragraph.setSpaceAfter(L"6pt");
    paragraph.setSpaceBefore(L"50%");
    paragraph.setLineSpacing(L"1.5*");
    paragraph.setRightToLeft(true);
    paragraph.setLanguage(L"ar-SA");
    box.add(paragraph);
    Paragraph far(L"y");
    far.setSpaceBefore(L"2000pt");
    far.setFirstLineIndent(L"-1cm");
    far.setRightToLeft(true);
    far.setHAlign(L"center");
    box.add(far);
    box.setLeftIndent(L"-1cm");
    EXPECT_EQ(errorOf([&] { paragraph.setLanguage(L"English!"); }),
              "ppt_error:invalidPropertyValue English!");
    EXPECT_EQ(errorOf([&] { paragraph.setSpaceAfter(L"much"); }), "ppt_error:invalidPropertyValue much");
    EXPECT_EQ(errorOf([&] { paragraph.setLeftIndent(L"10%"); }), "ppt_error:invalidPropertyValue 10%");
    EXPECT_EQ(errorOf([&] { FirstLineIndent().setValue(L"1*"); }), "ppt_error:invalidPropertyValue 1*");
    start(L"classic").add(box);
    close();
    const Texts found = propertiesOf("Box");
    EXPECT_EQ(found.at(0),
              "<a:pPr algn='r' lvl='1' marL='0' rtl='1'><a:lnSpc><a:spcPct val='150000'/></a:lnSpc>"
              "<a:spcBef><a:spcPct val='50000'/></a:spcBef><a:spcAft><a:spcPts val='600'/></a:spcAft>"
              "<a:buFontTx/><a:buChar char='-'/></a:pPr>");
    EXPECT_EQ(found.at(1),
              "<a:pPr algn='ctr' indent='-359999' marL='0' rtl='1'><a:spcBef><a:spcPts val='158400'/>"
              "</a:spcBef></a:pPr>");
    EXPECT_EQ(valuesOf(shapeXml(1, "Box"), "a:rPr", "lang"), Texts{"ar-SA"});
    EXPECT_EQ(count("valueLimited"), 3u);
}

TEST_F(ParagraphFormatsTest, BulletsOfTheTemplateGiveWayAndHangWhereNothingDoes) {
    TemplateBuilder builder;
    builder.addMaster("Theme");
    Page& layout = builder.addLayout("Own", shape(2, "Title", "<p:ph type='title'/>"));
    std::string former = shape(3, "Former", "", "", "old");
    former.replace(former.find("<a:r>"), 0, "<a:pPr><a:buFont typeface='Wingdings'/><a:buNone/></a:pPr>");
    builder.addSlide("First", layout, former);
    useTemplate(builder.build());
    deck.setProfile(L"office");
    deck.open();
    const auto slide = Slide::cast(deck.getChildren().at(0));
    slide->replace(L"Former", L"new");
    as<BaseTextBox>(slide->shape(L"Former")).setBullet(L"1)");
    TextBox free(L"Free");
    Paragraph deep(L"x", 2);
    deep.setBullet(L"\u2022");
    free.add(deep);
    slide->add(free);
    close();
    EXPECT_EQ(propertiesOf("Former"), Texts{"<a:pPr indent='-342900' marL='342900'><a:buFontTx/>"
                                            "<a:buAutoNum type='arabicParenR'/></a:pPr>"});
    EXPECT_EQ(propertiesOf("Free").at(0), "<a:pPr indent='-342900' lvl='1' marL='342900'><a:buFontTx/>"
                                          "<a:buChar char='\u2022'/></a:pPr>");
}

std::wstring makeText(unsigned words) {
    std::wstring text;
    for (unsigned i = 0; i < words; ++i)
        text += L"measured ";
    return text;
}

TextBox makeBox(const wchar_t* name, const wchar_t* autofit, unsigned words) {
    TextBox box(name);
    box.setWidth(L"8cm");
    box.setHeight(L"3cm");
    box.setAutofit(autofit);
    box.setFont(L"No Such Font At All");
    box.add(makeText(words));
    return box;
}

TEST_F(ParagraphFormatsTest, TextsShrinkAndBoxesGrow) {
    Slide slide = start(L"office");
    slide.add(makeBox(L"Short", L"Shrink", 3));
    slide.add(makeBox(L"Longer", L"shrink", 25));
    slide.add(makeBox(L"Long", L"shrink", 60));
    slide.add(makeBox(L"Endless", L"shrink", 5000));
    slide.add(makeBox(L"Tall", L"resize", 60));
    slide.add(makeBox(L"None", L"none", 1));
    EXPECT_EQ(errorOf([&] { makeBox(L"", L"grow", 1); }), "ppt_error:invalidPropertyValue grow");
    close();
    const auto scaleOf = [&](const char* name) {
        return std::stoi("0" + valuesOf(shapeXml(1, name), "a:normAutofit", "fontScale").at(0));
    };
    EXPECT_EQ(scaleOf("Short"), 0) << "it fits as it is";
    EXPECT_GT(scaleOf("Longer"), scaleOf("Long"));
    EXPECT_GT(scaleOf("Long"), scaleOf("Endless"));
    EXPECT_EQ(scaleOf("Endless"), 25000);
    EXPECT_EQ(findAll(shapeXml(1, "Tall"), "a:spAutoFit").size(), 1u);
    EXPECT_GT(std::stoi(valuesOf(shapeXml(1, "Tall"), "a:ext", "cy").at(0)), 2 * 1079999);
    EXPECT_EQ(findAll(shapeXml(1, "None"), "a:noAutofit").size(), 1u);
    EXPECT_EQ(count("textTooLong"), 1u) << "the endless one alone";
    EXPECT_EQ(count("fontNotInstalled"), 5u);
}

TEST_F(ParagraphFormatsTest, ClassicWritesAutofitsAsTheyAreSet) {
    Slide slide = start(L"classic");
    slide.add(makeBox(L"Long", L"shrink", 60));
    as<BaseTextBox>(slide.shape(L"Title")).setAutofit(L"none");
    slide.replace(L"Title", L"x");
    close();
    EXPECT_EQ(findAll(shapeXml(1, "Long"), "a:bodyPr").at(0).find("fontScale"), std::string::npos);
    EXPECT_EQ(findAll(shapeXml(1, "Title"), "a:normAutofit").size(), 0u);
    EXPECT_EQ(findAll(shapeXml(1, "Title"), "a:noAutofit").size(), 1u);
    EXPECT_EQ(count("fontNotInstalled"), 0u);
}

TEST(FontMetrics, KnowWideLettersFromNarrowOnes) {
    FontBook fonts;
    FontMetrics& sans = fonts.find(L"DejaVu Sans", false, false);
    if (!sans.isOwn())
        GTEST_SKIP() << "the font isn't installed";
    EXPECT_GT(sans.getAdvance(L'W'), 2 * sans.getAdvance(L'i'));
    EXPECT_GT(fonts.find(L"DejaVu Sans", true, false).getAdvance(L'W'), sans.getAdvance(L'W'));
    EXPECT_NEAR(sans.getLineHeight(), 1.16, 0.02);
}

} // namespace
