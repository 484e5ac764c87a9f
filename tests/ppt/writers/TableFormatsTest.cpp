// How cells look: formats of rows and entries, values, merged cells, lines, margins and heights.

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TablePlaceholder.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"

#include <algorithm>
#include <limits>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

Table makeTable(unsigned int rows, unsigned int columns) {
    Table table;
    for (unsigned int r = 0; r < rows; ++r) {
        TableRow row;
        for (unsigned int c = 0; c < columns; ++c)
            row.append(TableEntry(std::to_wstring(r) + L"," + std::to_wstring(c)));
        table.append(row);
    }
    table.setName(L"Table");
    return table;
}

boost::shared_ptr<ColSpec> makeColumn(const wchar_t* form) {
    const auto column = boost::make_shared<ColSpec>();
    column->setNumberFormat(form);
    return column;
}

HvContentPtr truth(bool value) {
    return boost::make_shared<BooleanContent>(value);
}

class TableFormatsTest : public DeckTest {
protected:
    void useOffice() { deck.setProfile(L"office"); }
    std::string write(const Table& table) {
        deck.add(L"Blank").add(table);
        close();
        return shapeXml(1, "Table");
    }
    // What each cell shows, row by row.
    Texts cellsOf(const std::string& xml) {
        Texts cells;
        for (const std::string& cell : findAll(xml, "a:tc")) {
            std::string text;
            for (const std::string& run : textsOf("<r xmlns:a='a'>" + cell + "</r>", "a:t"))
                text += run;
            cells.push_back(text);
        }
        return cells;
    }
};

TEST_F(TableFormatsTest, EntriesComeBeforeRowsAndTheseBeforeTables) {
    Table table = makeTable(2, 2);
    table.setItalic(true);
    table.setBackgroundColor(L"#000001");
    table.setHAlign(L"center");
    table.row(0)->setBold(true);
    table.row(0)->setUnderlineStyle(L"single");
    table.row(0)->setVAlign(L"middle");
    table.row(0)->setHAlign(L"right");
    table.entry(0, 0)->setBold(false);
    table.entry(0, 0)->setSuperscript(true);
    table.entry(0, 1)->setItalic(false);
    table.row(1)->setBackgroundColor(L"#000002");
    const std::string xml = write(table);
    EXPECT_EQ(valuesOf(xml, "a:rPr", "b"), (Texts{"0", "1", "", ""}));
    EXPECT_EQ(valuesOf(xml, "a:rPr", "i"), (Texts{"1", "0", "1", "1"}));
    EXPECT_EQ(valuesOf(xml, "a:rPr", "u"), (Texts{"sng", "sng", "", ""}));
    EXPECT_EQ(valuesOf(xml, "a:rPr", "baseline"), (Texts{"30000", "", "", ""}));
    EXPECT_EQ(valuesOf(xml, "a:pPr", "algn"), (Texts{"r", "r", "ctr", "ctr"}));
    EXPECT_EQ(valuesOf(xml, "a:tcPr", "anchor"), (Texts{"ctr", "ctr", "", ""}));
    EXPECT_EQ(valuesOf(xml, "a:srgbClr", "val"), (Texts{"000001", "000001", "000002", "000002"}));
}

class TableValues : public TableFormatsTest, public testing::WithParamInterface<const wchar_t*> {};

// In both profiles: forms of columns go before those of the table, these before the deck's; the header is left alone.
TEST_P(TableValues, AreShownInTheirForms) {
    deck.setProfile(GetParam());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Table table(boost::make_shared<MemoryTable>(
        4, std::initializer_list<HvContentPtr>{
               number(2026),   text(L"2026"),   text(L"Day"),        text(L"Share"), //
               number(1234.5), text(L"1234.5"), text(L"2026-11-21"), number(0.125),  //
               number(nan),    text(L"<NA>"),   text(L"none"),       HvContentPtr(), //
               truth(true),    truth(false),    text(L"NaT"),        number(2),
               text(L""),      text(L""),       text(L""),           text(L"")}));
    table.setName(L"Table");
    table.setColSpecs({makeColumn(L",.2f"), makeColumn(L"{:.0f} m"), makeColumn(L"%d.%m.%Y"),
                       boost::make_shared<ColSpec>()});
    table.setNumberFormat(L".0%");
    table.setMissingText(L"–");
    table.setTrueText(L"yes");
    table.setFalseText(L"no");
    table.entry(3, 3)->setNumberFormat(L"{{{:d}}}");
    table.entry(0, 0)->setNumberFormat(L"{:.1f}!");
    deck.setNumberFormat(L".9f");
    deck.setDecimalMark(L",");
    const Texts shown = cellsOf(write(table));
    EXPECT_EQ(shown,
              (Texts{"2026,0!", "2026", "Day", "Share", "1.234,50", "1234 m", "21.11.2026", "12%", "–", "–",
                     "none",    "–",    "yes", "no",    "–",        "{2}",    "",           "",    "",  ""}));
}

INSTANTIATE_TEST_SUITE_P(Profiles, TableValues, testing::Values(L"classic", L"office"));

TEST_F(TableFormatsTest, ValuesOfADeckAreThoseOfItsTables) {
    useOffice();
    deck.setNumberFormat(L".1f");
    deck.setDecimalMark(L",");
    deck.setThousandsMark(L"'");
    EXPECT_EQ(errorOf([&] { deck.setNumberFormat(L"1f"); }), "ppt_error:invalidPropertyValue 1f");
    EXPECT_EQ(errorOf([&] { deck.setDecimalMark(L"12"); }), "ppt_error:invalidPropertyValue 12");
    EXPECT_EQ(deck.getNumberFormat().get(), L".1f");
    Table table(boost::make_shared<MemoryTable>(
        1, std::initializer_list<HvContentPtr>{text(L"Flow"), number(3.14159), number(12345)}));
    table.setName(L"Table");
    table.setHeaderRow(false);
    table.entry(2, 0)->setNumberFormat(L",d");
    Slide slide = deck.add(L"Blank");
    slide.add(table);
    TextBox box;
    box.setName(L"Box");
    box.add(Paragraph(2.5)); // the form is for tables, the mark for all
    slide.add(box);
    close();
    EXPECT_EQ(cellsOf(shapeXml(1, "Table")), (Texts{"Flow", "3,1", "12'345"}));
    EXPECT_EQ(textsOf(shapeXml(1, "Box"), "a:t"), (Texts{"2,5"}));
}

TEST_F(TableFormatsTest, MissingValuesStandWhereNumbersDo) {
    useOffice();
    Table table(boost::make_shared<MemoryTable>(
        2, std::initializer_list<HvContentPtr>{text(L"Flow"), text(L"Name"), number(1), text(L"a"),
                                               HvContentPtr(), HvContentPtr(), text(L"<NA>"), text(L"b")}));
    TableRow row;
    row.append(TableEntry());
    table.append(row); // its second cell isn't there, and so isn't missing
    table.setName(L"Table");
    table.setMissingText(L"n/a");
    const std::string xml = write(table);
    EXPECT_EQ(cellsOf(xml), (Texts{"Flow", "Name", "1", "a", "n/a", "n/a", "n/a", "b", "n/a", ""}));
    EXPECT_EQ(valuesOf(xml, "a:pPr", "algn"), (Texts{"r", "r", "r", "r", "r"}));
}

TEST_F(TableFormatsTest, MergedCellsShowTheOneAtTheirTopLeft) {
    Table table = makeTable(4, 4);
    table.merge(0, 1, 0, 3);
    table.merge(1, 0, 2, 0);
    table.merge(2, 2, 3, 3);
    table.entry(2, 2)->setBackgroundColor(L"#ABCDEF");
    table.setBorderRight(L"2pt");
    const struct {
        unsigned int row, column, lastRow, lastColumn;
        const char* error;
    } rows[] = {
        {0, 0, 0, 0, "ppt_error:invalidCellRange 1 1 1 1"},
        {1, 1, 0, 1, "ppt_error:invalidCellRange 2 2 1 2"},
        {3, 0, 4, 0, "ppt_error:invalidCellRange 4 1 5 1"},
        {0, 3, 0, 4, "ppt_error:invalidCellRange 1 4 1 5"},
        {3, 0, 4294967295u, 1, "ppt_error:invalidCellRange 4 1 4294967296 2"},
        {1, 2, 2, 3, "ppt_error:cellsAlreadyMerged 3 3 4 4"},
        {0, 0, 3, 3, "ppt_error:cellsAlreadyMerged 1 2 1 4"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(errorOf([&] { table.merge(row.row, row.column, row.lastRow, row.lastColumn); }), row.error);
    deck.setProfile(L"office");
    Slide slide = deck.add(L"Title and Table");
    TablePlaceholder::cast(slide.find(L"Table")[0])->replace(table); // they come along
    close();
    const std::string xml = shapeXml(1, "Table");
    EXPECT_EQ(valuesOf(xml, "a:tc", "gridSpan"),
              (Texts{"", "3", "", "", "", "", "", "", "", "", "2", "", "", "", "2", ""}));
    EXPECT_EQ(valuesOf(xml, "a:tc", "rowSpan"),
              (Texts{"", "", "", "", "2", "", "", "", "", "", "2", "2", "", "", "", ""}));
    EXPECT_EQ(valuesOf(xml, "a:tc", "hMerge"),
              (Texts{"", "", "1", "1", "", "", "", "", "", "", "", "1", "", "", "", "1"}));
    EXPECT_EQ(valuesOf(xml, "a:tc", "vMerge"),
              (Texts{"", "", "", "", "", "", "", "", "1", "", "", "", "", "", "1", "1"}));
    EXPECT_EQ(cellsOf(xml)[2] + cellsOf(xml)[8] + cellsOf(xml)[15], "");
    const auto lines = findAll(xml, "a:lnR");
    EXPECT_EQ(lines.size(),
              3u + 1u + 4u); // those of the header and of the last, which cover cells, on each of them
    const std::vector<Finding> findings = deck.getFindings();
    const auto covered = std::find_if(findings.begin(), findings.end(),
                                      [](const Finding& finding) { return finding.code == "coveredCell"; });
    ASSERT_NE(covered, findings.end());
    EXPECT_NE(covered->text.find(L"row 1, column 3"), std::wstring::npos);
}

TEST_F(TableFormatsTest, LinesAreThoseAroundAndBetween) {
    Table table = makeTable(2, 2);
    table.setBorder(L"1pt");
    table.setBorderInsideH(L"dotted 2pt");
    table.row(1)->setBorderInsideV(L"RED dash");
    table.setColSpecs({boost::make_shared<ColSpec>(), boost::make_shared<ColSpec>()});
    table.getColSpecs()[0]->setBorderRight(L"none");
    table.entry(0, 0)->setBorderLeft(L"double #00ff00 3pt");
    table.entry(0, 0)->setBackgroundColor(L"#123456");
    table.entry(0, 0)->setMarginLeft(L"1in");
    table.row(0)->setMarginTop(L"0in");
    table.setMarginLeft(L"2in");
    EXPECT_EQ(table.getBorder().get(), L"1pt solid black");
    EXPECT_EQ(table.entry(0, 0)->getBorderLeft().get(), L"3pt double #00ff00");
    for (const wchar_t* bad : {L"", L"wide", L"1pt 2pt", L"-1pt", L"red blue"})
        EXPECT_EQ(errorOf([&] { table.setBorderTop(bad); }), "ppt_error:invalidPropertyValue " + toUtf8(bad));
    EXPECT_EQ(table.getBorderTop().get(), L"1pt solid black");
    EXPECT_EQ(errorOf([&] { table.setMarginTop(L"-1mm"); }), "ppt_error:invalidPropertyValue -1mm");
    const std::string xml = write(table);
    const Texts cells = findAll(xml, "a:tcPr");
    const auto line = [](const std::string& name, const std::string& w, const std::string& color,
                         const std::string& dash, const std::string& cmpd = "sng") {
        return "<a:" + name + " algn='ctr' cap='flat' cmpd='" + cmpd + "' w='" + w +
               "'><a:solidFill><a:srgbClr val='" + color + "'/></a:solidFill><a:prstDash val='" + dash +
               "'/></a:" + name + ">";
    };
    ASSERT_EQ(cells.size(), 4u);
    EXPECT_EQ(cells[0], "<a:tcPr marL='914400' marT='0'>" + line("lnL", "38130", "00FF00", "solid", "dbl") +
                            "<a:lnR w='0'><a:noFill/></a:lnR>" + line("lnT", "12710", "000000", "solid") +
                            line("lnB", "25420", "000000", "sysDot") +
                            "<a:solidFill><a:srgbClr val='123456'/></a:solidFill></a:tcPr>");
    EXPECT_EQ(cells[3], "<a:tcPr marL='1828800'>" + line("lnL", "12710", "FF0000", "dash") +
                            line("lnR", "12710", "000000", "solid") +
                            line("lnT", "25420", "000000", "sysDot") +
                            line("lnB", "12710", "000000", "solid") + "</a:tcPr>");
}

TEST_F(TableFormatsTest, MergedCellsEndWithTheLastOfTheirRowsAndColumns) {
    Table table = makeTable(3, 3);
    table.merge(0, 0, 1, 1);
    table.row(0)->setBorderBottom(L"#000001");
    table.row(1)->setBorderBottom(L"#000002");
    table.setColSpecs({boost::make_shared<ColSpec>(), boost::make_shared<ColSpec>()});
    table.getColSpecs()[0]->setBorderRight(L"#000003");
    table.getColSpecs()[1]->setBorderRight(L"#000004");
    table.entry(0, 0)->setBorderTop(L"#000005");
    const std::string xml = write(table);
    for (const std::size_t part : {0u, 1u, 3u, 4u}) // whichever of them a program asks
        EXPECT_EQ(valuesOf(findAll(xml, "a:tcPr").at(part), "a:srgbClr", "val"),
                  (Texts{"000004", "000005", "000002"}));
    EXPECT_EQ(valuesOf(findAll(xml, "a:tcPr").at(2), "a:srgbClr", "val"), (Texts{"000001"}));
}

TEST_F(TableFormatsTest, RowsAreAsHighAsTheyAreToldAtLeast) {
    Table table = makeTable(3, 1);
    table.setRowHeight(L"1in");
    table.row(1)->setHeight(L"2in");
    EXPECT_EQ(errorOf([&] { table.setRowHeight(L"-1in"); }), "ppt_error:invalidPropertyValue -1in");
    EXPECT_EQ(errorOf([&] { table.row(1)->setHeight(L"tall"); }), "ppt_error:invalidPropertyValue tall");
    EXPECT_EQ(valuesOf(write(table), "a:tr", "h"), (Texts{"914400", "1828800", "914400"}));
}

// What is set on one doesn't reach what shares its formats.
TEST(FacetsTest, AreSetOnOneElementAlone) {
    TableEntry entry(L"x");
    entry.setNumberFormat(L".1f");
    entry.setMissingText(L"");
    const auto copy = TableEntry::cast(entry.clone());
    copy->setNumberFormat(L".2f");
    copy->unsetMissingText();
    EXPECT_EQ(entry.getNumberFormat().get(), L".1f");
    EXPECT_EQ(entry.getMissingText().get(), L"");
    copy->unsetNumberFormat();
    copy->unsetTrueText();
    EXPECT_TRUE(copy->getStyle().getMap().empty());
}

} // namespace
