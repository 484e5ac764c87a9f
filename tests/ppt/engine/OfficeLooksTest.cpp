// What the office profile makes of tables, and of what replaces contents of the template.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/rules/TableStyles.h"
#include "vellox/ppt/tree/BaseTextBox.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"

#include <numeric>
#include <set>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

Table makeTable(const std::vector<std::vector<std::wstring>>& rows) {
    Table table;
    for (const auto& texts : rows) {
        TableRow row;
        for (const std::wstring& text : texts)
            row.append(text.empty() ? TableEntry() : TableEntry(text));
        table.append(row);
    }
    return table;
}

class OfficeLooksTest : public DeckTest {
protected:
    TemplateBuilder builder;

    OfficeLooksTest() { deck.setProfile(L"office"); }
    /// A template with one slide of these shapes.
    void useSlide(const std::string& shapes) {
        builder.addMaster("Theme");
        builder.addSlide("Old", builder.addLayout("Own"), shapes);
        useTemplate(builder.build());
        deck.setProfile(L"office");
        deck.open();
    }
    std::string styleOf(const std::string& shape) {
        const Texts ids = textsOf(shapeXml(1, shape), "a:tableStyleId");
        return ids.size() == 1 ? ids[0] : "-";
    }
};

TEST_F(OfficeLooksTest, TablesHaveHeaderRowsAndBands) {
    Slide slide = deck.add(L"Blank");
    Table plain = makeTable({{L"a"}}), other = makeTable({{L"a"}});
    plain.setName(L"Plain");
    other.setName(L"Other");
    other.setBandedRows(false);
    other.setTotalRow(true);
    slide.add(plain);
    slide.add(other);
    close();
    const std::string id = "<a:tableStyleId>{A39989A8-FCBD-458B-965F-10BD61911235}</a:tableStyleId>";
    EXPECT_EQ(findOne(shapeXml(1, "Plain"), "a:tblPr"),
              "<a:tblPr bandRow='1' firstRow='1'>" + id + "</a:tblPr>"); // the template's own choice
    EXPECT_EQ(findOne(shapeXml(1, "Other"), "a:tblPr"),
              "<a:tblPr bandRow='0' firstRow='1' lastRow='1'>" + id + "</a:tblPr>");
}

TEST_F(OfficeLooksTest, ClassicTablesHaveOnlyWhatIsSet) {
    deck.setProfile(L"classic");
    Slide slide = deck.add(L"Title and Table");
    Table table = makeTable({{L"a"}});
    table.setFirstColumn(true);
    table.setBandedColumns(false);
    table.setHeaderRow(true);
    table.unsetHeaderRow();
    slide.replace(L"Table", object(table)); // brings them along, unlike its style
    slide.add(makeTable({{L"b", L""}, {L"c"}}));
    close();
    EXPECT_EQ(findAll(slideXml(1), "a:tblPr"), Texts{"<a:tblPr bandCol='0' firstCol='1'/>"});
    EXPECT_EQ(findAll(slideXml(1), "a:tc").size(), 4u);
}

// By their own names, whatever the template calls them; those that nobody defines are defined.
TEST_F(OfficeLooksTest, BuiltInStylesAreFoundAndDefined) {
    builder.addMaster("Theme");
    builder.addLayout("Own", shape(2, "Table", "<p:ph type='tbl' idx='1'/>", place(0, 0, 900, 900)));
    const std::string known = "{0e3fde45-af77-4b5c-9715-49d594bdf05e}"; // in lower case
    builder.addTableStyle("Helles Design", known);
    useTemplate(builder.build());
    deck.setProfile(L"office");
    Slide slide = deck.add(L"Own");
    Table table = makeTable({{L"a"}});
    table.setStyleName(L"Dark Style 2 - Accent 3/Accent 4");
    slide.replace(L"Table", object(table));
    const wchar_t* const names[] = {L"Light Style 1 - Accent 2", L"Helles Design", L"Unknown", nullptr};
    for (const wchar_t* name : names) {
        Table free = makeTable({{L"a"}});
        free.setName(name ? name : L"None");
        if (name)
            free.setStyleName(name);
        slide.add(free);
    }
    const Texts defined = valuesOf(close().at("ppt/tableStyles.xml"), "a:tblStyle", "styleId");
    EXPECT_EQ(defined, (Texts{known, "{5C22544A-7EE6-4342-B048-85BDC9FD1C3A}",
                              "{91EBBBCC-DAD2-459C-BE2E-F6DE35CF9A28}"}));
    EXPECT_EQ(styleOf("Table"), defined[2]);
    EXPECT_EQ(styleOf("Light Style 1 - Accent 2"), "{0E3FDE45-AF77-4B5C-9715-49D594BDF05E}");
    EXPECT_EQ(styleOf("Helles Design"), known);
    EXPECT_EQ(styleOf("Unknown"), defined[1]);
    EXPECT_EQ(styleOf("None"), defined[1]);
    Texts codes;
    for (const Finding& finding : deck.getFindings())
        codes.push_back(finding.code);
    EXPECT_EQ(codes,
              (Texts{"invalidTableStyle", "unsoundPart", "unsoundPart", "unsoundPart"})); // the lower case
}

// In a part that is made where there is none. Each has a name, an id and a markup of its own.
TEST_F(OfficeLooksTest, AllBuiltInStylesHaveDefinitions) {
    builder.addMaster("Theme");
    builder.addLayout("Own");
    useTemplate(builder.build());
    deck.setProfile(L"office");
    Slide slide = deck.add(L"Own");
    for (const BuiltInTableStyle& style : getBuiltInTableStyles()) {
        Table table = makeTable({{L"a"}});
        table.setStyleName(style.name);
        slide.add(table);
    }
    const std::string styles = close().at("ppt/tableStyles.xml");
    EXPECT_TRUE(deck.getFindings().empty());
    EXPECT_EQ(valuesOf(styles, "a:tblStyle", "styleId").size(), 74u);
    std::set<std::string> markups;
    for (const std::string& style : findAll(styles, "a:tblStyle"))
        markups.insert(style.substr(style.find("<a:wholeTbl>")));
    EXPECT_EQ(markups.size(), 74u);
}

TEST_F(OfficeLooksTest, ShortRowsAreFilledAndEmptyCellsAreAsHighAsText) {
    Table table = makeTable({{L"a", L"b", L"c"}, {L"d", L""}});
    table.append(TableRow());
    table.setFontSize(L"9pt");
    table.row(1)->setBackgroundColor(L"#ffe2d2");
    table.row(1)->setFontSize(L"12pt");
    table.entry(0, 1)->append(Paragraph());
    table.entry(0, 2)->append(L"");
    deck.add(L"Blank").add(table);
    close();
    const Texts rows = findAll(slideXml(1), "a:tr");
    ASSERT_EQ(rows.size(), 3u);
    for (const std::string& row : rows)
        EXPECT_EQ(findAll(row, "a:tc").size(), 3u);
    EXPECT_EQ(valuesOf(rows[0], "a:endParaRPr", "sz"), (Texts{"900", "900"}));
    EXPECT_EQ(valuesOf(rows[1], "a:endParaRPr", "sz"), (Texts{"1200", "1200"}));
    EXPECT_EQ(valuesOf(rows[1], "a:srgbClr", "val"), (Texts{"FFE2D2", "FFE2D2", "FFE2D2"}));
    EXPECT_EQ(valuesOf(rows[2], "a:endParaRPr", "sz"), (Texts{"900", "900", "900"}));
}

TEST_F(OfficeLooksTest, ColumnsShareTheWidthByTheirContents) {
    Table table =
        makeTable({{L"No.", L"What was found", L"By"}, {L"1", L"a much longer text than the others", L"me"}});
    table.setWidth(L"10000001emus");
    deck.add(L"Blank").add(table);
    Table fixed = makeTable({{L"a", L"b"}});
    fixed.setWidth(L"5in");
    fixed.setColSpecs({boost::make_shared<ColSpec>(L"6in"), boost::make_shared<ColSpec>(L"1in")});
    deck.add(L"Blank").add(fixed);
    close();
    std::vector<int> widths;
    for (const std::string& width : valuesOf(slideXml(1), "a:gridCol", "w"))
        widths.push_back(std::stoi(width));
    ASSERT_EQ(widths.size(), 3u);
    EXPECT_EQ(std::accumulate(widths.begin(), widths.end(), 0), 10000001);
    EXPECT_GT(widths[1], 2 * widths[0]);
    EXPECT_GE(widths[2], 10000001 / 9);
    EXPECT_EQ(valuesOf(findOne(slideXml(2), "p:xfrm"), "a:ext", "cx"), Texts{"6400800"}); // what they come to
}

TEST_F(OfficeLooksTest, ReplacedTextsLookAsBefore) {
    const std::string title =
        "<p:sp><p:nvSpPr><p:cNvPr id='7' name='Title'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr/><p:txBody>"
        "<a:bodyPr/><a:p><a:endParaRPr sz='800'/></a:p>"
        "<a:p><a:pPr algn='ctr' marL='500'><a:buNone/></a:pPr><a:r><a:rPr lang='de-DE' sz='4400' err='1'>"
        "<a:gradFill/><a:latin typeface='Georgia'/><a:hlinkClick r:id='rId9'/></a:rPr><a:t>Old</a:t></a:r>"
        "<a:r><a:rPr sz='100'/><a:t>more</a:t></a:r><a:endParaRPr sz='4300'/></a:p>"
        "<a:p><a:pPr lvl='1' indent='-9'/><a:fld id='{0}' type='slidenum'><a:rPr sz='2000' "
        "i='1'/><a:t>1</a:t></a:fld></a:p>"
        "</p:txBody></p:sp>";
    useSlide(title);
    Paragraph first(L"One");
    first.append(Text(L"red")).setFontColor(L"#ff0000");
    first.append(ExternalLink(L"http://example.org/", L"link"));
    Paragraph second(L"Two", 2);
    second.setHAlign(L"right");
    const auto box = BaseTextBox::cast(deck.find(L"Title").front());
    box->replace(list({object(first), object(second), object(Paragraph(L"Three", 3))}));
    close();
    const Texts paragraphs = findAll(shapeXml(1, "Title"), "a:p");
    ASSERT_EQ(paragraphs.size(), 3u);
    const std::string latin = "<a:latin typeface='Georgia'/>";
    const std::string look = "<a:pPr algn='ctr' marL='500'><a:buNone/></a:pPr>";
    EXPECT_EQ(findOne(paragraphs[0], "a:pPr"), look);
    const Texts runs = findAll(paragraphs[0], "a:rPr");
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0], "<a:rPr lang='de-DE' sz='4400'><a:gradFill/>" + latin + "</a:rPr>");
    EXPECT_EQ(runs[1], "<a:rPr lang='de-DE' sz='4400'><a:solidFill><a:srgbClr val='FF0000'/></a:solidFill>" +
                           latin + "</a:rPr>");
    EXPECT_EQ(findAll(runs[2], "a:hlinkClick").size(), 1u);
    EXPECT_EQ(valuesOf(paragraphs[0], "a:endParaRPr", "sz"), Texts{"4300"});
    EXPECT_EQ(findOne(paragraphs[1], "a:pPr"), "<a:pPr algn='r' indent='-9' lvl='1'/>");
    EXPECT_EQ(findOne(paragraphs[1], "a:rPr"), "<a:rPr i='1' sz='2000'/>");
    // A level that wasn't there looks like the first, but for where it begins.
    EXPECT_EQ(findOne(paragraphs[2], "a:pPr"), "<a:pPr algn='ctr' lvl='2'><a:buNone/></a:pPr>");
    EXPECT_EQ(findOne(paragraphs[2], "a:rPr"), runs[0]);
}

TEST_F(OfficeLooksTest, AnEmptiedTextKeepsItsHeight) {
    useSlide("<p:sp><p:nvSpPr><p:cNvPr id='7' name='Box'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr/><p:txBody>"
             "<a:bodyPr/><a:p><a:pPr algn='r'/><a:endParaRPr sz='800'/></a:p></p:txBody></p:sp>");
    BaseTextBox::cast(deck.find(L"Box").front())->replace(list({}));
    close();
    EXPECT_EQ(findOne(shapeXml(1, "Box"), "a:p"), "<a:p><a:pPr algn='r'/><a:endParaRPr sz='800'/></a:p>");
}

std::string cell(const std::string& size, const std::string& properties, const std::string& attributes = "") {
    return "<a:tc" + attributes + "><a:txBody><a:bodyPr/><a:p><a:r><a:rPr sz='" + size +
           "'/><a:t>old</a:t></a:r></a:p></a:txBody><a:tcPr " + properties + "/></a:tc>";
}

std::string designedTable() {
    return "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='7' name='Table'/><p:cNvGraphicFramePr/><p:nvPr/>"
           "</p:nvGraphicFramePr><p:xfrm><a:off x='5' y='6'/><a:ext cx='3000' cy='999'/></p:xfrm><a:graphic>"
           "<a:graphicData uri='http://schemas.openxmlformats.org/drawingml/2006/table'><a:tbl>"
           "<a:tblPr rtl='1' firstRow='1' lastRow='1'><a:tableStyleId>{OWN}</a:tableStyleId></a:tblPr>"
           "<a:tblGrid><a:gridCol w='1000'/><a:gridCol w='3000'/></a:tblGrid><a:tr h='400'>" +
           cell("100", "anchor='b'", " gridSpan='2'") + cell("200", "", " hMerge='1'") +
           "</a:tr><a:tr h='300'>" + cell("300", "marL='9'") + cell("400", "anchor='ctr'") +
           "</a:tr><a:tr h='300'>" + cell("500", "") + cell("600", "") + "</a:tr><a:tr h='200'>" +
           cell("700", "") + cell("800", "anchor='t'") +
           "</a:tr></a:tbl></a:graphicData></a:graphic></p:graphicFrame>";
}

TEST_F(OfficeLooksTest, ReplacedTablesLookAsBefore) {
    useSlide(designedTable());
    Table table = makeTable({{L"Head", L"er"}, {L"a", L"b"}, {L"", L"d"}, {L"Sum", L"e"}});
    table.entry(1, 1)->setVAlign(L"bottom");
    table.setBandedRows(true);
    deck.replace(L"Table", object(table));
    close();
    const std::string frame = shapeXml(1, "Table");
    EXPECT_EQ(findOne(frame, "a:tblPr"), "<a:tblPr bandRow='1' firstRow='1' lastRow='1' rtl='1'>"
                                         "<a:tableStyleId>{OWN}</a:tableStyleId></a:tblPr>");
    EXPECT_EQ(valuesOf(frame, "a:gridCol", "w"), (Texts{"1000", "3000"}));
    EXPECT_EQ(valuesOf(frame, "a:ext", "cx"), Texts{"4000"});
    EXPECT_EQ(valuesOf(frame, "a:tr", "h"), (Texts{"400", "300", "300", "200"}));
    EXPECT_EQ(valuesOf(frame, "a:rPr", "sz"), (Texts{"100", "100", "300", "400", "400", "700", "800"}));
    EXPECT_EQ(valuesOf(frame, "a:endParaRPr", "sz"), Texts{"300"}); // of the emptied cell
    EXPECT_EQ(valuesOf(frame, "a:tcPr", "anchor"), (Texts{"b", "b", "", "b", "", "ctr", "t"}));
}

// Wider and longer than before: the last column and the first row below the header stand for more.
TEST_F(OfficeLooksTest, GrownTablesStayInTheirFrame) {
    useSlide(designedTable());
    Table table = makeTable({{L"A", L"B", L"C"},
                             {L"1", L"2", L"3"},
                             {L"1", L"2", L"3"},
                             {L"1", L"2", L"3"},
                             {L"1", L"2", L"3"},
                             {L"1", L"2", L"3"}});
    table.setStyleName(L"Medium Style 2 - Accent 1");
    table.setTotalRow(false);
    deck.replace(L"Table", object(table));
    close();
    const std::string frame = shapeXml(1, "Table");
    EXPECT_EQ(styleOf("Table"), "{5C22544A-7EE6-4342-B048-85BDC9FD1C3A}");
    const Texts sizes = valuesOf(frame, "a:rPr", "sz");
    ASSERT_EQ(sizes.size(), 18u);
    EXPECT_EQ(Texts(sizes.end() - 3, sizes.end()), (Texts{"300", "400", "400"}));
    int width = 0, height = 0;
    for (const std::string& each : valuesOf(frame, "a:gridCol", "w"))
        width += std::stoi(each);
    for (const std::string& each : valuesOf(frame, "a:tr", "h"))
        height += std::stoi(each);
    EXPECT_EQ(width, 4000);
    EXPECT_NEAR(height, 1200, 6);
}

} // namespace
