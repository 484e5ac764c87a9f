// Decks of the office profile, on templates as designers make them.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

#include <algorithm>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

const char* const kBackground = "<p:bg><p:bgPr><a:noFill/><a:effectLst/></p:bgPr></p:bg>";
const char* const kColourMap = "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>";

class OfficeDeckTest : public DeckTest {
protected:
    TemplateBuilder builder;

    void useBuilder() {
        useTemplate(builder.build());
        deck.setProfile(L"Office");
    }
    std::string placeOf(const std::string& shape) {
        const auto value = [&](const char* element, const char* attribute) {
            const std::vector<std::string> found = valuesOf(shape, element, attribute);
            return found.size() == 1 ? found[0] : std::string("-");
        };
        return value("a:off", "x") + " " + value("a:off", "y") + " " + value("a:ext", "cx") + " " +
               value("a:ext", "cy");
    }
};

using Texts = std::vector<std::string>;

TEST_F(OfficeDeckTest, TheProfileIsSetBeforeOpening) {
    EXPECT_EQ(deck.getProfile(), L"classic");
    EXPECT_EQ(errorOf([&] { deck.setProfile(L"modern"); }), "ppt_error:invalidPropertyValue modern");
    deck.open();
    const WarningLog log;
    deck.setProfile(L"office");
    EXPECT_EQ(deck.getProfile(), L"classic");
    EXPECT_EQ(log.ids, Texts{"cannotChangeProfile"});
    EXPECT_EQ(Presentation::forOffice(output).getProfile(), L"office");
}

TEST_F(OfficeDeckTest, FilesHaveTheNamesThatTheSystemTakes) {
    for (const wchar_t* name : {L"control-valve.pptx", L"null point.pptx", L"what? <draft>: a*b|c.pptx"}) {
        Presentation named = Presentation::forOffice(folder / name);
        EXPECT_EQ(errorOf([&] { named.open(); }), "nothing") << toUtf8(name);
        EXPECT_TRUE(named.close());
        EXPECT_TRUE(findFaults(folder / name).empty());
    }
}

TEST_F(OfficeDeckTest, DesignedLayoutsGiveTheirPlaceholders) {
    builder.addMaster("Theme");
    Page& layout = builder.addLayout(
        "Own", shape(2, "Title", "<p:ph type='title'/>") + shape(3, "Chart", "<p:ph type='chart' idx='4'/>") +
                   shape(4, "Date", "<p:ph type='dt' idx='10'/>", "", "1 May 1999") + chartShape(5, "Art"));
    layout.attributes = " showMasterSp='0'";
    layout.background = kBackground;
    layout.behindData = kColourMap;
    useBuilder();
    Slide slide = deck.add(L"Own");
    slide.replace(L"Title", L"Words");
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), Texts{"Words"});
    EXPECT_TRUE(findAll(slideXml(1), "p:bg").empty());
    EXPECT_EQ(findAll(slideXml(1), "p:clrMapOvr").size(), 1u);
    EXPECT_EQ(valuesOf(slideXml(1), "p:sld", "showMasterSp"), Texts{""});
    EXPECT_TRUE(findAll(slideXml(1), "p:graphicFrame").empty());
    EXPECT_EQ(valuesOf(slideXml(1), "p:ph", "type"), (Texts{"title", "chart"}));
}

TEST_F(OfficeDeckTest, PlacesAreInheritedByPlaceholder) {
    const std::string onMaster = place(1000, 2000, 3000000, 4000000);
    builder.addMaster("Theme", shape(5, "Body", "<p:ph type='body' idx='1'/>", onMaster));
    Page& layout = builder.addLayout(
        "Own", shape(2, "Content", "<p:ph idx='1'/>") +
                   shape(3, "Text", "<p:ph type='body' idx='7'/>", place(10, 9000000, 30, 40)) +
                   shape(4, "Text", "<p:ph type='body' idx='7'/>", place(50, 60, 70, 80)));
    builder.addSlide("Old", layout, shape(9, "Text", "<p:ph type='body' idx='7'/>"));
    useBuilder();
    writeFile(folder / L"a.png", makePng(100, 100));
    Slide slide = deck.add(L"Own");
    slide.replace(L"Content", object(Picture(folder / L"a.png")));
    slide.replace(L"Text", L"upper");
    slide.replace(L"Text (2)", L"lower");
    for (const auto& node : deck.find(L"Text"))
        if (const auto box = Shape::cast(node))
            box->setX(L"1in");
    close();
    EXPECT_EQ(placeOf(shapeXml(2, "Content")), "1024750 1525750 952500 952500");
    const Texts shapes = findAll(slideXml(2), "p:sp");
    ASSERT_EQ(shapes.size(), 2u);
    EXPECT_EQ(placeOf(shapes[0]), "10 9000000 30 40");
    EXPECT_EQ(textsOf(shapes[0], "a:t"), Texts{"lower"});
    EXPECT_EQ(placeOf(shapes[1]), "914400 60 70 80");
    EXPECT_EQ(placeOf(shapeXml(1, "Text")), "914400 9000000 30 40");
}

TEST_F(OfficeDeckTest, MastersAndLayoutsAreFoundInTheirOrder) {
    for (const char* layout : {"First", "Second"}) {
        builder.addMaster("Office");
        builder.addLayout(layout);
        builder.addLayout("Both", shape(2, layout));
    }
    useBuilder();
    EXPECT_EQ(deck.getMasterNames(), (Presentation::Names{L"Office", L"Office (2)"}));
    EXPECT_EQ(deck.getLayoutNames(L"Office (2)"), (Presentation::Names{L"Second", L"Both"}));
    EXPECT_EQ(deck.add(L"Second", L"Office (2)").getLayoutName(), L"Second");
    EXPECT_EQ(deck.add(L"#2", L"Office (2)").getLayoutName(), L"Both");
    EXPECT_EQ(errorOf([&] { deck.add(L"#3"); }), "ppt_error:invalidLayoutName #3");
}

// A group that shows what it holds as many times as large, the corner at 5, 5 of its own at a place of the slide.
std::string scale(std::string group, int where, int factor) {
    const std::string empty = "<p:grpSpPr/>";
    const auto pair = [](const char* name, const char* x, int one, const char* y, int other) {
        return std::string("<a:") + name + " " + x + "='" + std::to_string(one) + "' " + y + "='" +
               std::to_string(other) + "'/>";
    };
    return group.replace(group.find(empty), empty.size(),
                         "<p:grpSpPr><a:xfrm>" + pair("off", "x", where, "y", where) +
                             pair("ext", "cx", 100 * factor, "cy", 100 * factor) +
                             pair("chOff", "x", 5, "y", 5) + pair("chExt", "cx", 100, "cy", 100) +
                             "</a:xfrm></p:grpSpPr>");
}

TEST_F(OfficeDeckTest, GroupsAndBareShapesTakeTexts) {
    builder.addMaster("Theme");
    Page& layout = builder.addLayout("Own");
    builder.addSlide(
        "Old", layout,
        groupShape(2, "Group",
                   shape(3, "Inner", "", "", "old") +
                       shape(4, "Photo", "<p:ph type='pic' idx='9'/>", place(50, 60, 1000, 2000))) +
            scale(groupShape(5, "Doubled", shape(6, "Scaled", "", place(10, 20, 30, 40))), 1000, 2) +
            "<p:sp><p:nvSpPr><p:cNvPr id='77' name='Bare'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr/>"
            "<p:extLst/></p:sp>");
    useBuilder();
    deck.replace(L"Inner", L"new");
    deck.replace(L"Bare", L"words");
    const auto scaled = Shape::cast(deck.find(L"Scaled").front());
    scaled->setX(L"1400emus");
    scaled->setWidth(L"600emus");
    writeFile(folder / L"a.png", makePng(100, 100));
    deck.replace(L"Photo", object(Picture(folder / L"a.png")));
    TextBox free(L"Free");
    free.add(L"x");
    Slide::cast(deck.getChildren().front())->add(free);
    close();
    EXPECT_EQ(textsOf(slideXml(1), "a:t"), (Texts{"new", "prompt", "words", "x"}));
    EXPECT_EQ(placeOf(shapeXml(1, "Scaled")), "205 20 300 40"); // the slide's lengths, in the group's
    EXPECT_EQ(canonical(shapeXml(1, "Bare")).find("<p:extLst/></p:sp>"), shapeXml(1, "Bare").size() - 18);
    EXPECT_EQ(placeOf(findAll(findAll(slideXml(1), "p:grpSp").at(0), "p:pic").at(0)), "50 560 1000 1000");
    const Texts ids = valuesOf(slideXml(1), "p:cNvPr", "id");
    EXPECT_EQ(ids.back(), "78");
}

TEST_F(OfficeDeckTest, RepeatedIdsAreSetRight) {
    builder.addMaster("Theme");
    const std::string twins =
        shape(4, "A", "<p:ph type='body' idx='1'/>") + shape(4, "B", "<p:ph type='body' idx='2'/>");
    Page& layout = builder.addLayout("Own", twins);
    builder.addSlide(
        "Old", layout,
        twins +
            "<mc:AlternateContent xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'>"
            "<mc:Fallback>" +
            shape(4, "Fallback") + "</mc:Fallback></mc:AlternateContent>");
    useBuilder();
    deck.replace(L"B", L"words");
    TextBox free(L"Free");
    free.add(L"x");
    deck.add(L"Own").add(free);
    close();
    EXPECT_EQ(valuesOf(slideXml(1), "p:cNvPr", "id"), (Texts{"1", "4", "5", "4"}));
    EXPECT_EQ(valuesOf(slideXml(2), "p:cNvPr", "id"), (Texts{"1", "4", "5", "6"}));
}

TEST_F(OfficeDeckTest, ChildrenComeInTheOrderOfTheSchema) {
    deck.setProfile(L"office");
    Slide slide = deck.add(L"Title and Content");
    Paragraph paragraph;
    ExternalLink link(L"http://example.org/", L"link");
    link.setFontColor(L"red");
    link.setFont(L"Arial");
    link.setFontSize(L"5000pt");
    paragraph.append(link);
    paragraph.append(ExternalLink(L" ", L"nowhere"));
    slide.add(L"Content", paragraph);
    close();
    const std::string content = shapeXml(1, "Content");
    const Texts runs = findAll(content, "a:rPr");
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_LT(runs[0].find("<a:solidFill"), runs[0].find("<a:latin"));
    EXPECT_LT(runs[0].find("<a:latin"), runs[0].find("<a:hlinkClick"));
    EXPECT_EQ(valuesOf(content, "a:rPr", "sz"), Texts{"400000"});
    Texts codes;
    for (const Finding& finding : deck.getFindings())
        codes.push_back(finding.code);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), "valueLimited"), 1);
}

TEST_F(OfficeDeckTest, LinesAreParagraphsOrBreaks) {
    deck.setProfile(L"office");
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"one\r\ntwo");
    slide.replace(L"Content", list({text(L"a\nb"), text(L"c"), true}));
    close();
    EXPECT_EQ(findAll(shapeXml(1, "Title"), "a:p").size(), 2u);
    EXPECT_EQ(textsOf(shapeXml(1, "Title"), "a:t"), (Texts{"one", "two"}));
    EXPECT_EQ(findAll(shapeXml(1, "Content"), "a:p").size(), 3u);
    EXPECT_EQ(findAll(shapeXml(1, "Content"), "a:br").size(), 1u);
    EXPECT_EQ(textsOf(shapeXml(1, "Content"), "a:t"), (Texts{"a", "b", "c", "true"}));
}

TEST_F(OfficeDeckTest, NumbersOfATableAndWhatIsAboveThemStandAtTheRight) {
    deck.setProfile(L"office");
    const auto text = [](const wchar_t* words) { return TableEntry(words); };
    const auto number = [](double value) { return TableEntry(Paragraph(value)); };
    const std::vector<std::vector<TableEntry>> rows = {
        {text(L"station"), text(L"flow"), text(L"mixed"), text(L"told"), text(L"none")},
        {text(L"north"), number(0.1), number(0.2), number(0.3), TableEntry()},
        {text(L"south"), TableEntry(), text(L"n/a"), number(0.4)}};
    Table table;
    for (const std::vector<TableEntry>& entries : rows) {
        TableRow row;
        for (const TableEntry& entry : entries)
            row.append(entry);
        table.append(row);
    }
    for (int i = 0; i < 3; ++i)
        TableEntry::cast(table.row(static_cast<unsigned int>(i))->getChildren()[3])->setHAlign(L"center");
    deck.add(L"Blank").add(table);
    close();
    const std::vector<std::string> written = findAll(findOne(slideXml(1), "a:tbl"), "a:tr");
    const auto alignments = [&](std::size_t row) { return valuesOf(written[row], "a:pPr", "algn"); };
    EXPECT_EQ(alignments(0), (Texts{"r", "ctr"}));
    EXPECT_EQ(valuesOf(findAll(written[0], "a:tc")[1], "a:pPr", "algn"), Texts{"r"});
    EXPECT_EQ(alignments(1), (Texts{"r", "r", "ctr"}));
    EXPECT_EQ(textsOf(written[1], "a:t"), (Texts{"north", "0.1", "0.2", "0.3"}));
    EXPECT_EQ(alignments(2), Texts{"ctr"});
}

TEST_F(OfficeDeckTest, PicturesKeepProportionsAndMustBeThere) {
    deck.setProfile(L"office");
    writeFile(folder / L"a.png", makePng(200, 100));
    Slide slide = deck.add(L"Blank");
    Picture picture(folder / L"a.png");
    picture.setWidth(L"1in");
    picture.setName(L"Photo");
    slide.add(picture);
    deck.open();
    const std::string before = readFile(output);
    std::filesystem::remove(folder.getPath() / "a.png");
    EXPECT_EQ(errorOf([&] { deck.close(); }),
              "ppt_error:missingPictureFile 1 Photo " + toUtf8(folder / L"a.png"));
    EXPECT_EQ(readFile(output), before);
    writeFile(folder / L"a.png", makePng(200, 100));
    close();
    EXPECT_EQ(placeOf(shapeXml(1, "Photo")), "0 0 914400 457200");
}

} // namespace
