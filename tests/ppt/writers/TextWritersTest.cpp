// Text and its formats, as they come out.

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

class TextWritersTest : public DeckTest {
protected:
    /// The XML of a paragraph in a free box.
    std::string write(const Paragraph& paragraph) {
        Slide slide = deck.add(L"Blank");
        box = TextBox(L"Box");
        box.add(paragraph);
        slide.add(box);
        deck.close();
        const std::string xml = readParts(output).at("ppt/slides/slide1.xml");
        deck = Presentation(output);
        return findAll(findAll(xml, "p:sp").back(), "a:p").at(0);
    }

    TextBox box;
};

TEST_F(TextWritersTest, ParagraphsComeOutAsTheyAre) {
    EXPECT_EQ(write(Paragraph()), "<a:p/>");
    EXPECT_EQ(write(Paragraph(L"")), "<a:p><a:r><a:t/></a:r></a:p>");
    EXPECT_EQ(write(Paragraph(L"  two blanks ")), "<a:p><a:r><a:t>  two blanks </a:t></a:r></a:p>");
    EXPECT_EQ(write(Paragraph(L"x", 0)), "<a:p><a:r><a:t>x</a:t></a:r></a:p>");
    EXPECT_EQ(write(Paragraph(2.5, 3)), "<a:p><a:pPr lvl='2'/><a:r><a:t>2.5</a:t></a:r></a:p>");
    Paragraph centred(1u);
    centred.setHAlign(L"center");
    EXPECT_EQ(write(centred), "<a:p><a:pPr algn='ctr' lvl='0'/></a:p>");
}

// Every spelling of every format: what goes in, and what comes out.
TEST_F(TextWritersTest, FormatsWriteThemselves) {
    struct Row {
        boost::shared_ptr<Format> format;
        const char* rPr;
    };
    const auto underline = [](const wchar_t* style) { return boost::make_shared<Underline>(style); };
    const Row rows[] = {
        {boost::make_shared<Bold>(), "<a:rPr b='1'/>"},
        {boost::make_shared<Bold>(false), "<a:rPr b='0'/>"},
        {boost::make_shared<Italic>(), "<a:rPr i='1'/>"},
        {boost::make_shared<Subscript>(), "<a:rPr baseline='-25000'/>"},
        {boost::make_shared<Subscript>(false), "<a:rPr baseline='0'/>"},
        {boost::make_shared<Superscript>(), "<a:rPr baseline='30000'/>"},
        {boost::make_shared<Strike>(L"none"), "<a:rPr strike='noStrike'/>"},
        {boost::make_shared<Strike>(L"single"), "<a:rPr strike='sngStrike'/>"},
        {boost::make_shared<Strike>(L"double"), "<a:rPr strike='dblStrike'/>"},
        {underline(L"none"), "<a:rPr u='none'/>"},
        {underline(L"words"), "<a:rPr u='words'/>"},
        {underline(L"single"), "<a:rPr u='sng'/>"},
        {underline(L"double"), "<a:rPr u='dbl'/>"},
        {underline(L"heavy"), "<a:rPr u='heavy'/>"},
        {underline(L"dotted"), "<a:rPr u='dotted'/>"},
        {underline(L"dottedHeavy"), "<a:rPr u='dottedHeavy'/>"},
        {underline(L"dash"), "<a:rPr u='dash'/>"},
        {underline(L"dashHeavy"), "<a:rPr u='dashHeavy'/>"},
        {underline(L"dashLong"), "<a:rPr u='dashLong'/>"},
        {underline(L"dotDash"), "<a:rPr u='dotDash'/>"},
        {underline(L"dotDashHeavy"), "<a:rPr u='dotDashHeavy'/>"},
        {underline(L"dotDotDash"), "<a:rPr u='dotDotDash'/>"},
        {underline(L"dotDotDashHeavy"), "<a:rPr u='dotDotDashHeavy'/>"},
        {underline(L"wavy"), "<a:rPr u='wavy'/>"},
        {underline(L"wavyHeavy"), "<a:rPr u='wavyHeavy'/>"},
        {underline(L"wavyDouble"), "<a:rPr u='wavyDbl'/>"},
        {boost::make_shared<FontSize>(L"12pt"), "<a:rPr sz='1200'/>"},
        {boost::make_shared<FontSize>(L"10.5pt"), "<a:rPr sz='1050'/>"},
        {boost::make_shared<FontSize>(L"12.349pt"), "<a:rPr sz='1234'/>"},
        {boost::make_shared<FontSize>(L"1in"), "<a:rPr sz='7200'/>"},
        {boost::make_shared<FontFamily>(), "<a:rPr><a:latin typeface='Times New Roman'/></a:rPr>"},
        {boost::make_shared<FontFamily>(L"A", L"B"),
         "<a:rPr><a:latin typeface='A'/><a:cs typeface='B'/></a:rPr>"},
        {boost::make_shared<FontFamily>(L"", L"B"), "<a:rPr><a:cs typeface='B'/></a:rPr>"},
        {boost::make_shared<FontColor>(),
         "<a:rPr><a:solidFill><a:srgbClr val='000000'/></a:solidFill></a:rPr>"},
        {boost::make_shared<FontColor>(L"MediumPurple"),
         "<a:rPr><a:solidFill><a:srgbClr val='9370D8'/></a:solidFill></a:rPr>"},
        {boost::make_shared<FontColor>(L"palevioletred"),
         "<a:rPr><a:solidFill><a:srgbClr val='D87093'/></a:solidFill></a:rPr>"},
        {boost::make_shared<FontColor>(L" GREY "),
         "<a:rPr><a:solidFill><a:srgbClr val='808080'/></a:solidFill></a:rPr>"},
        {boost::make_shared<FontColor>(L"#abCDef"),
         "<a:rPr><a:solidFill><a:srgbClr val='ABCDEF'/></a:solidFill></a:rPr>"},
        // These have no action on a run.
        {boost::make_shared<BackgroundColor>(), ""},
        {boost::make_shared<HAlign>(), ""},
        {boost::make_shared<VAlign>(), ""},
        {boost::make_shared<ColWidth>(), ""},
    };
    Paragraph paragraph;
    std::string expected = "<a:p>";
    for (const Row& row : rows) {
        Formats style;
        style.appendFormat(row.format);
        paragraph.append(L"x").setStyle(style);
        expected += std::string("<a:r>") + row.rPr + "<a:t>x</a:t></a:r>";
    }
    EXPECT_EQ(write(paragraph), expected + "</a:p>");
}

TEST_F(TextWritersTest, AlignmentsWriteThemselves) {
    const std::pair<const wchar_t*, const char*> rows[] = {
        {L"left", "l"},
        {L"right", "r"},
        {L"center", "ctr"},
        {L"justified", "just"},
        {L"justifiedLow", "justLow"},
        {L"distributed", "dist"},
        {L"thaiDistributed", "thaiDist"},
    };
    for (const auto& row : rows) {
        Paragraph paragraph;
        paragraph.setHAlign(row.first);
        EXPECT_EQ(write(paragraph), std::string("<a:p><a:pPr algn='") + row.second + "'/></a:p>");
    }
}

// Own formats go first, in the order of their kinds; what is inherited goes behind, in an order of its own.
TEST_F(TextWritersTest, OwnFormatsComeBeforeInheritedOnes) {
    Paragraph paragraph;
    Text run = paragraph.append(L"x");
    run.setFont(L"Own");
    run.setSuperscript(true);
    paragraph.setFontColor(L"red");
    paragraph.setSubscript(true); // inherited, so applied last
    EXPECT_EQ(write(paragraph), "<a:p><a:r><a:rPr baseline='-25000'><a:latin typeface='Own'/><a:solidFill>"
                                "<a:srgbClr val='FF0000'/></a:solidFill></a:rPr><a:t>x</a:t></a:r></a:p>");
    Paragraph both;
    Text run2 = both.append(L"x");
    run2.setSubscript(true);
    run2.setSuperscript(true);
    EXPECT_EQ(write(both), "<a:p><a:r><a:rPr baseline='30000'/><a:t>x</a:t></a:r></a:p>");
}

TEST_F(TextWritersTest, TheNearestFormatCounts) {
    Slide slide = deck.add(L"Title and Content");
    Formats ofSlide;
    ofSlide.appendFormat(boost::make_shared<HAlign>(L"right"));
    ofSlide.appendFormat(boost::make_shared<Bold>(true));
    slide.setStyle(ofSlide);
    slide.replace(L"Title", L"of the slide");
    Paragraph near(L"of the paragraph");
    near.setBold(false);
    near.setHAlign(L"left");
    slide.replace(L"Content", near);
    close();
    EXPECT_EQ(findOne(shapeXml(1, "Title"), "a:p"),
              "<a:p><a:pPr algn='r'/><a:r><a:rPr b='1'/><a:t>of the slide</a:t></a:r></a:p>");
    EXPECT_EQ(findOne(shapeXml(1, "Content"), "a:p"),
              "<a:p><a:pPr algn='l'/><a:r><a:rPr b='0'/><a:t>of the paragraph</a:t></a:r></a:p>");
}

// A list's items don't link to the box that lists them: what is in force for them is what is above their links.
TEST_F(TextWritersTest, FormatsAreFoundByTheLinksOfNodes) {
    Slide slide = deck.add(L"Blank");
    TextBox listing(L"Box"), other(L"Other");
    listing.setFontColor(L"#000001");
    other.setFontColor(L"#000002");
    Table table(1);
    TableRow row;
    TableEntry entry(L"in a cell");
    row.append(entry);
    table.append(row);
    row.setFontColor(L"#000003");
    slide.add(other);
    slide.add(table);
    const Paragraph shared(L"shared"), mine(L"mine");
    listing.add(list({object(shared), object(Paragraph(L"of nobody"))}));
    other.add(shared);
    listing.add(mine);
    listing.add(L"replaced");
    *listing.getChildren().back() = *entry.getChildren().front();
    slide.add(listing);
    close();
    std::vector<std::string> colors;
    for (const std::string& run : findAll(shapeXml(1, "Box"), "a:r"))
        colors.push_back(findAll(run, "a:srgbClr").empty() ? "none"
                                                           : valuesOf(run, "a:srgbClr", "val").front());
    EXPECT_EQ(colors, (std::vector<std::string>{"000002", "none", "000001", "000003"}));
}

TEST_F(TextWritersTest, LinksHaveRelationshipsOfTheirOwn) {
    Slide slide = deck.add(L"Title and Content");
    Paragraph paragraph;
    paragraph.append(ExternalLink(L"http://a/?b=c d&e", L"first"));
    ExternalLink second(L"http://a/?b=c d&e", L"second");
    paragraph.append(second);
    second.setFontColor(L"red");
    paragraph.append(ExternalLink(L" \n", L"nowhere"));
    slide.replace(L"Content", paragraph);
    const Parts& parts = close();
    EXPECT_EQ(
        findAll(shapeXml(1, "Content"), "a:rPr"),
        (std::vector<std::string>{"<a:rPr><a:hlinkClick r:id='rId2'/></a:rPr>",
                                  "<a:rPr><a:hlinkClick r:id='rId3'/><a:solidFill><a:srgbClr val='FF0000'/>"
                                  "</a:solidFill></a:rPr>",
                                  "<a:rPr><a:hlinkClick r:id=''/></a:rPr>"}));
    EXPECT_EQ(
        findAll(parts.at("ppt/slides/_rels/slide1.xml.rels"), "Relationship")[2],
        "<Relationship Id='rId3' Target='http://a/?b=c%20d&e' TargetMode='External' Type='http://schemas."
        "openxmlformats.org/officeDocument/2006/relationships/hyperlink'/>");
}

TEST_F(TextWritersTest, BoxesAreFilledAnchoredAndPlaced) {
    Slide slide = deck.add(L"Title and Content");
    auto content = BaseTextBox::cast(slide.find(L"Content")[0]);
    content->setVAlign(L"bottomCentered");
    content->setBackgroundColor(L"gold");
    content->setX(L"1in");
    TextBox free(L"Free");
    free.setVAlign(L"middle");
    free.setBold(true); // reaches the runs
    free.add(L"x");
    slide.add(free);
    close();
    const std::string shape = shapeXml(1, "Content");
    EXPECT_EQ(findOne(shape, "a:bodyPr"), "<a:bodyPr anchor='b' anchorCtr='1'><a:normAutofit/></a:bodyPr>");
    EXPECT_EQ(valuesOf(shape, "a:off", "x"), std::vector<std::string>{"914400"});
    EXPECT_EQ(findOne(shape, "a:solidFill"), "<a:solidFill><a:srgbClr val='FFD700'/></a:solidFill>");
    EXPECT_EQ(findOne(shapeXml(1, "Free"), "a:bodyPr"), "<a:bodyPr anchor='ctr' anchorCtr='0'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Free"), "a:rPr"), "<a:rPr b='1'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Title"), "a:p"), "<a:p><a:endParaRPr/></a:p>"); // left empty

    // On a slide that a template holds, a fill takes the place of the one that is there.
    Presentation next(folder / L"next.pptx", output);
    auto again = BaseTextBox::cast(next.find(L"Content")[0]);
    again->setBackgroundColor(L"white");
    again->replace(L"new");
    next.close();
    const std::string xml = readParts(folder / L"next.pptx").at("ppt/slides/slide1.xml");
    EXPECT_EQ(findAll(xml, "a:solidFill").size(), 1u);
    EXPECT_EQ(runsOf(xml), "new|x");
}

} // namespace
