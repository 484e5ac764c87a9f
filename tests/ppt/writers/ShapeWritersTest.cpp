// Pictures and tables, as they come out.

#include "vellox/foundation/FileUtils.h"
#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/TablePlaceholder.h"
#include "vellox/ppt/tree/Text.h"

#include "tests/support/DeckTest.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

Table makeTable(unsigned int rows, unsigned int columns) {
    Table table;
    for (unsigned int r = 0; r < rows; ++r) {
        TableRow row;
        for (unsigned int c = 0; c < columns; ++c)
            row.append(TableEntry(std::to_wstring(r) + L"," + std::to_wstring(c)));
        table.append(row);
    }
    return table;
}

class ShapeWritersTest : public DeckTest {
protected:
    std::vector<std::string> mediaOf(const Parts& parts) {
        std::vector<std::string> names;
        for (const auto& part : parts)
            if (part.first.compare(0, 10, "ppt/media/") == 0)
                names.push_back(part.first);
        return names;
    }

    std::vector<std::string> gridOf(const Table& table) {
        Slide slide = deck.add(L"Blank");
        slide.add(table);
        deck.close();
        const std::string xml = readParts(output).at("ppt/slides/slide1.xml");
        deck = Presentation(output);
        return valuesOf(xml, "a:gridCol", "w");
    }
};

using Texts = std::vector<std::string>;

TEST_F(ShapeWritersTest, PicturesBringTheirFiles) {
    writeFile(folder / L"a b.png", makePng(100, 50));
    Slide slide = deck.add(L"Title and Picture");
    const Picture picture(folder / L"a b.png");
    slide.replace(L"Picture", object(picture));
    Picture free(folder / L"a b.png");
    free.setName(L"Free");
    free.setX(L"1in");
    slide.add(free);
    const Parts& parts = close();
    const Texts media = mediaOf(parts);
    ASSERT_EQ(media.size(), 2u); // one for each, though the file is the same
    EXPECT_EQ(parts.at(media[0]), makePng(100, 50));
    EXPECT_EQ(valuesOf(parts.at("[Content_Types].xml"), "Default", "Extension").back(), "png");
    const std::string inPlace = shapeXml(1, "Picture");
    EXPECT_EQ(findOne(inPlace, "p:ph"), "<p:ph idx='1' type='pic'/>");
    EXPECT_EQ(findOne(inPlace, "a:ext"), "<a:ext cx='952500' cy='476250'/>");
    EXPECT_EQ(findOne(inPlace, "a:blip"), "<a:blip r:embed='rId2'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Free"), "a:xfrm"),
              "<a:xfrm><a:off x='914400' y='0'/><a:ext cx='952500' cy='476250'/></a:xfrm>");
}

TEST_F(ShapeWritersTest, PicturesWithoutAFileAreNoError) {
    writeFile(folder / L"noextension", makePng(100, 50));
    writeFile(folder / L"odd.x y~", "bytes");
    Slide slide = deck.add(L"Title and Picture");
    slide.replace(L"Picture", object(Picture()));
    writeFile(folder / L"a.p%#?", "bytes");
    for (const wchar_t* name : {L"missing.png", L"noextension", L"odd.x y~", L"a.p%#?", L"."}) {
        Picture picture(folder / name);
        picture.setName(name);
        slide.add(picture);
    }
    const MessageLog log;
    const Parts& parts = close();
    EXPECT_EQ(mediaOf(parts).size(), 3u);
    EXPECT_EQ(log.lines.size(), 3u); // files of no known kind
    EXPECT_EQ(findOne(shapeXml(1, "missing.png"), "a:blip"), "<a:blip r:embed=''/>");
    EXPECT_EQ(findOne(shapeXml(1, "."), "a:blip"), "<a:blip r:embed=''/>"); // a folder
    EXPECT_EQ(findAll(shapeXml(1, "Picture"), "p:txBody").size(), 1u);      // the placeholder stays
}

TEST_F(ShapeWritersTest, PicturesHaveTypesOfImages) {
    useTemplate(withChange(getTemplateParts(), "[Content_Types].xml", "<Default ",
                           "<Default Extension='own' ContentType='image/own'/><Default "));
    Slide slide = deck.add(L"Blank");
    for (const wchar_t* name : {L"a.WMF", L"b.webp", L"c.ico", L"d.jfif", L"e.own"}) {
        writeFile(folder / name, "bytes");
        slide.add(Picture(folder / name));
    }
    const MessageLog log;
    const std::string types = close().at("[Content_Types].xml");
    EXPECT_EQ(log.lines, std::vector<std::wstring>());
    EXPECT_EQ(valuesOf(types, "Default", "ContentType"),
              (Texts{"image/own", "application/vnd.openxmlformats-package.relationships+xml",
                     "application/xml", "image/x-wmf", "image/webp", "image/x-icon", "image/jpeg"}));
}

TEST_F(ShapeWritersTest, RowsAreWrittenAsTheyAre) {
    Table table = makeTable(1, 3);
    TableRow shortRow;
    shortRow.append(TableEntry(L"alone"));
    table.append(shortRow);
    table.append(TableRow());
    deck.add(L"Blank").add(table);
    close();
    std::vector<std::size_t> cells;
    for (const std::string& row : findAll(slideXml(1), "a:tr"))
        cells.push_back(findAll("<r xmlns:a='a'>" + row + "</r>", "a:tc").size());
    EXPECT_EQ(cells, (std::vector<std::size_t>{3, 1, 0}));
}

// A copy of what took a placeholder's place has a place of its own.
TEST_F(ShapeWritersTest, CopiesOfReplacementsAreFreeShapes) {
    writeFile(folder / L"a.png", makePng(100, 50));
    Slide first = deck.add(L"Title and Picture");
    Slide second = deck.add(L"Title and Picture");
    for (Slide slide : {first, second})
        slide.replace(L"Picture", object(Picture(folder / L"a.png")));
    const auto copy = boost::dynamic_pointer_cast<Picture>(first.getChildren().back()->clone());
    second.add(*copy);
    close();
    EXPECT_EQ(findAll(slideXml(1), "p:pic").size(), 1u);
    EXPECT_EQ(findAll(slideXml(2), "p:pic").size(), 2u);
}

TEST_F(ShapeWritersTest, TablesStandFreeOrInPlace) {
    Slide slide = deck.add(L"Title and Table");
    slide.replace(L"Table", object(makeTable(1, 2)));
    Table free = makeTable(2, 1);
    free.setName(L"Free");
    free.setWidth(L"3in");
    free.entry(1, 0)->append(L"second");
    free.row(0)->setBackgroundColor(L"white");
    slide.add(free);
    slide.add(Table(3)); // no rows: nothing
    close();
    EXPECT_EQ(findAll(slideXml(1), "p:graphicFrame").size(), 2u);
    EXPECT_EQ(findOne(shapeXml(1, "Table"), "p:ph"), "<p:ph idx='1' type='tbl'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Free"), "a:tbl"),
              "<a:tbl><a:tblGrid><a:gridCol w='2743200'/></a:tblGrid>"
              "<a:tr h='0'><a:tc><a:txBody><a:bodyPr/><a:p><a:r><a:t>0,0</a:t></a:r></a:p></a:txBody>"
              "<a:tcPr><a:solidFill><a:srgbClr val='FFFFFF'/></a:solidFill></a:tcPr></a:tc></a:tr>"
              "<a:tr h='0'><a:tc><a:txBody><a:bodyPr/><a:p><a:r><a:t>1,0</a:t></a:r></a:p>"
              "<a:p><a:r><a:t>second</a:t></a:r></a:p></a:txBody></a:tc></a:tr></a:tbl>");
}

TEST_F(ShapeWritersTest, ColumnWidthsShareTheTable) {
    struct Row {
        const char* why;
        std::vector<const wchar_t*> specs; // of a table of 3000000 EMU and three columns
        const wchar_t* entryWidth;         // of the entry in the last column
        Texts grid;
    };
    const Row rows[] = {
        {"none", {}, nullptr, {"1000000", "1000000", "1000000"}},
        {"one", {L"1in"}, nullptr, {"914400", "1042800", "1042800"}},
        {"too wide", {L"9in"}, nullptr, {"8229600", "208080", "208080"}},
        {"all", {L"1in", L"2in", L"3in"}, nullptr, {"914400", "1828800", "2743200"}},
        {"more than columns", {L"1in", L"1in", L"1in", L"9in"}, nullptr, {"914400", "914400", "914400"}},
        {"wider entry", {L"1in", L"1in", L"1in"}, L"2in", {"914400", "914400", "1828800"}},
        {"narrower entry", {L"1in", L"1in", L"2in"}, L"1in", {"914400", "914400", "1828800"}},
        {"negative", {L"-9in", L"1in"}, L"-1in", {"0", "914400", "0"}},
        {"entry alone", {}, L"1000000emus", {"1000000", "1000000", "1000000"}},
    };
    for (const Row& row : rows) {
        Table table = makeTable(2, 3);
        table.setWidth(L"3000000emus");
        Table::ColSpecs specs;
        for (const wchar_t* width : row.specs)
            specs.push_back(boost::make_shared<ColSpec>(width));
        table.setColSpecs(specs);
        if (row.entryWidth) {
            Formats style;
            style.appendFormat(boost::make_shared<ColWidth>(row.entryWidth));
            table.entry(1, 2)->setStyle(style);
        }
        EXPECT_EQ(gridOf(table), row.grid) << row.why;
    }
    Table ragged = makeTable(1, 2);
    TableRow wide;
    ragged.append(wide);
    for (int i = 0; i < 4; ++i)
        wide.append(TableEntry());
    ragged.setColSpecs({boost::shared_ptr<ColSpec>(), boost::make_shared<ColSpec>()});
    EXPECT_EQ(gridOf(ragged).size(), 4u);
}

// Run, paragraph, entry, row, column, table, slide: for each, the one that wins against all behind it.
TEST_F(ShapeWritersTest, TheNearestFormatCountsInATable) {
    Slide slide = deck.add(L"Blank");
    Table table = makeTable(1, 8);
    table.setName(L"Table");
    table.setFontColor(L"#000006");
    Table::ColSpecs columns;
    for (int c = 0; c < 8; ++c)
        columns.push_back(boost::make_shared<ColSpec>());
    for (int c = 0; c < 6; ++c)
        columns[c]->setFontColor(L"#000005");
    columns[5]->setBackgroundColor(L"#00000A");
    columns[4]->setBackgroundColor(L"#00000B");
    table.setColSpecs(columns);
    Formats ofSlide;
    ofSlide.appendFormat(boost::make_shared<FontColor>(L"#000007"));
    ofSlide.appendFormat(boost::make_shared<Bold>(true));
    slide.setStyle(ofSlide);
    for (unsigned int c = 0; c < 3; ++c)
        table.entry(0, c)->setFontColor(L"#000003");
    auto paragraph = Paragraph::cast(table.entry(0, 1)->getChildren()[0]);
    paragraph->setFontColor(L"#000002");
    Text::cast(Paragraph::cast(table.entry(0, 0)->getChildren()[0])->getChildren()[0])
        ->setFontColor(L"#000001");
    table.entry(0, 4)->setBackgroundColor(L"#00000C");
    slide.add(table);
    Table rowWins = makeTable(1, 2);
    rowWins.setName(L"Row wins");
    rowWins.row(0)->setFontColor(L"#000004");
    rowWins.setColSpecs({columns[0], columns[1]});
    slide.add(rowWins);
    close();
    Texts colors;
    for (const std::string& run : findAll(shapeXml(1, "Table"), "a:rPr"))
        colors.push_back(valuesOf(run, "a:srgbClr", "val")[0] + "/" + valuesOf(run, "a:rPr", "b")[0]);
    EXPECT_EQ(colors, (Texts{"000001/1", "000002/1", "000003/1", "000005/1", "000005/1", "000005/1",
                             "000006/1", "000006/1"}));
    EXPECT_EQ(findAll(shapeXml(1, "Table"), "a:tcPr"),
              (Texts{"<a:tcPr><a:solidFill><a:srgbClr val='00000C'/></a:solidFill></a:tcPr>",
                     "<a:tcPr><a:solidFill><a:srgbClr val='00000A'/></a:solidFill></a:tcPr>"}));
    for (const std::string& run : findAll(shapeXml(1, "Row wins"), "a:rPr"))
        EXPECT_EQ(findOne(run, "a:srgbClr"), "<a:srgbClr val='000004'/>");
}

TEST_F(ShapeWritersTest, CellsAreAnchored) {
    Slide slide = deck.add(L"Blank");
    Table table = makeTable(1, 6);
    table.setName(L"Table");
    const wchar_t* const values[] = {L"top",         L"middle",         L"bottom",
                                     L"topCentered", L"middleCentered", L"bottomCentered"};
    for (unsigned int c = 0; c < 6; ++c)
        table.entry(0, c)->setVAlign(values[c]);
    slide.add(table);
    close();
    EXPECT_EQ(findAll(shapeXml(1, "Table"), "a:tcPr"),
              (Texts{"<a:tcPr anchor='t' anchorCtr='0'/>", "<a:tcPr anchor='ctr' anchorCtr='0'/>",
                     "<a:tcPr anchor='b' anchorCtr='0'/>", "<a:tcPr anchor='t' anchorCtr='1'/>",
                     "<a:tcPr anchor='ctr' anchorCtr='1'/>", "<a:tcPr anchor='b' anchorCtr='1'/>"}));
}

TEST_F(ShapeWritersTest, StylesAreFoundByNameOrReported) {
    Slide slide = deck.add(L"Title and Table");
    Table onSlide = TablePlaceholder::cast(slide.find(L"Table")[0])->replace(makeTable(1, 1));
    onSlide.setStyleName(L"Plain Grid");
    Table unknown = makeTable(1, 1);
    unknown.setName(L"Unknown");
    unknown.setStyleName(L"plain grid");
    slide.add(unknown);
    const MessageLog log;
    close();
    EXPECT_EQ(findOne(slideXml(1), "a:tblPr"),
              "<a:tblPr><a:tableStyleId>{66D2FF9F-7886-452D-B4A4-E2D27D0B4D84}</a:tableStyleId></a:tblPr>");
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_NE(log.lines[0].find(L"ppt.Table:"), std::wstring::npos);
    EXPECT_NE(log.lines[0].find(L"\"plain grid\""), std::wstring::npos);
}

TEST_F(ShapeWritersTest, AnEmptyTableLeavesThePlaceholder) {
    Slide slide = deck.add(L"Title and Table");
    slide.replace(L"Table",
                  object(Table(boost::make_shared<MemoryTable>(0, std::initializer_list<HvContentPtr>{}))));
    close();
    EXPECT_EQ(findOne(shapeXml(1, "Table"), "a:p"), "<a:p><a:endParaRPr/></a:p>");
}

// What stands on a slide of a template gives way in its place.
TEST_F(ShapeWritersTest, ShapesOfATemplateSlideAreReplaced) {
    writeFile(folder / L"old.png", makePng(100, 50));
    writeFile(folder / L"new.png", makePng(100, 50));
    Slide slide = deck.add(L"Blank");
    Picture old(folder / L"old.png");
    old.setName(L"Photo");
    old.setX(L"1in");
    slide.add(old);
    Table numbers = makeTable(1, 1);
    numbers.setName(L"Numbers");
    numbers.setX(L"2in");
    numbers.setWidth(L"3in");
    slide.add(numbers);
    close();

    writeFile(folder / L"template.pptx", readFile(output));
    deck = Presentation(output, folder / L"template.pptx");
    deck.open();
    Slide page = *Slide::cast(deck.getChildren()[0]);
    page.replace(L"Numbers", object(makeTable(2, 3)));
    Picture given(folder / L"new.png");
    given.unsetWidth();
    given.setHeight(L"0.25in");
    Picture::cast(page.find(L"Photo")[0])->replace(given);
    const Parts& parts = close();
    EXPECT_EQ(mediaOf(parts).size(), 2u); // the old one stays, as the slide may not be its only user
    EXPECT_EQ(findAll(slideXml(1), "a:tr").size(), 2u);
    EXPECT_EQ(findOne(shapeXml(1, "Numbers"), "p:xfrm"),
              "<p:xfrm><a:off x='1828800' y='0'/><a:ext cx='2743200' cy='3234567'/></p:xfrm>");
    EXPECT_EQ(findOne(shapeXml(1, "Photo"), "a:ext"), "<a:ext cx='457200' cy='228600'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Photo"), "a:blip"), "<a:blip r:embed='rId3'/>");
    EXPECT_EQ(findOne(shapeXml(1, "Photo"), "p:cNvPr"), "<p:cNvPr id='2' name='Photo'/>");
}

} // namespace
