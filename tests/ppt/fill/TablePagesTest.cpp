// Long tables over several slides.

#include "tests/support/DeckTest.h"
#include "vellox/ppt/tree/Table.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

Table makeTable(unsigned int rows) {
    Table table;
    for (unsigned int r = 0; r < rows; ++r) {
        TableRow row;
        row.append(TableEntry(r == 0 ? L"Head" : std::to_wstring(r)));
        row.append(TableEntry(r == 0 ? L"er" : L"-"));
        table.append(row);
    }
    return table;
}

class TablePagesTest : public DeckTest {
protected:
    TablePagesTest() { deck.setProfile(L"office"); }

    std::string firstColumn(unsigned int slide) {
        std::string texts;
        for (const std::string& row : findAll(slideXml(slide), "a:tr")) {
            const Texts cells = textsOf("<r xmlns:a='a'>" + row + "</r>", "a:t");
            texts += (cells.empty() ? std::string() : cells.front()) + " ";
        }
        return texts;
    }
};

TEST_F(TablePagesTest, RowsGoOnBelowTheHeader) {
    Table table = makeTable(6);
    table.setStyleName(L"Plain Grid");
    table.setTotalRow(true);
    PageOptions options;
    options.rows = 2;
    options.title = L"Runs";
    EXPECT_EQ(deck.addPages(L"Title and Table", L"Table", table, options).size(), 3u);
    options.rows = 5;
    options.title = L"Page {page} of {pages}";
    EXPECT_EQ(deck.addPages(L"Title and Table", L"Table", table, options).size(), 1u);
    EXPECT_TRUE(deck.addPages(L"Title and Table", L"Table", Table()).empty());
    EXPECT_EQ(deck.addPages(L"Title and Table", L"Table", makeTable(1)).size(), 1u);
    close();
    EXPECT_EQ(firstColumn(1), "Head 1 2 ");
    EXPECT_EQ(firstColumn(2), "Head 3 4 ");
    EXPECT_EQ(firstColumn(3), "Head 5 ");
    EXPECT_EQ(firstColumn(4), "Head 1 2 3 4 5 ");
    EXPECT_EQ(firstColumn(5), "Head ");
    EXPECT_EQ(textsOf(shapeXml(2, "Title"), "a:t"), (Texts{"Runs (2/3)"}));
    EXPECT_EQ(textsOf(shapeXml(4, "Title"), "a:t"), (Texts{"Page 1 of 1"}));
    for (const unsigned int slide : {1u, 3u})
        EXPECT_EQ(textsOf(slideXml(slide), "a:tableStyleId"),
                  (Texts{"{66D2FF9F-7886-452D-B4A4-E2D27D0B4D84}"}));
    EXPECT_EQ(valuesOf(slideXml(2), "a:tblPr", "lastRow"), (Texts{"0"}));
    EXPECT_EQ(valuesOf(slideXml(3), "a:tblPr", "lastRow"), (Texts{"1"}));
}

TEST_F(TablePagesTest, RowsAreAsManyAsFindRoom) {
    Table table = makeTable(30);
    table.setRowHeight(L"1in");
    table.row(3)->setHeight(L"20in"); // by itself
    PageOptions options;
    options.height = L"4in";
    const std::vector<Slide> slides = deck.addPages(L"Title and Table", L"Table", table, options);
    EXPECT_EQ(slides.size(), 11u); // 2, 1, then three on each
    EXPECT_LT(deck.addPages(L"Title and Table", L"Table", makeTable(300)).size(), 60u);
    close();
    EXPECT_EQ(firstColumn(1), "Head 1 2 ");
    EXPECT_EQ(firstColumn(2), "Head 3 ");
    EXPECT_EQ(firstColumn(3), "Head 4 5 6 ");
    for (const Finding& finding : deck.getFindings())
        EXPECT_FALSE(finding.code == "tableTooLong" && finding.slide > 11) << toUtf8(finding.text);
}

TEST_F(TablePagesTest, MergedCellsGoOnToo) {
    Table table = makeTable(7);
    table.setHeaderRows(2);
    table.merge(0, 0, 1, 0);
    table.merge(2, 0, 5, 0);
    table.merge(6, 0, 6, 1);
    PageOptions options;
    options.rows = 2;
    deck.addPages(L"Title and Table", L"Table", table, options);
    close();
    EXPECT_EQ(firstColumn(1), "Head - 2 - "); // the first column is covered in the second row and the last
    EXPECT_EQ(valuesOf(slideXml(2), "a:tc", "rowSpan"), (Texts{"2", "", "", "", "2", "", "", ""}));
    EXPECT_EQ(textsOf(shapeXml(2, "Table"), "a:t"), (Texts{"Head", "er", "-", "2", "-", "-"}));
    EXPECT_EQ(valuesOf(slideXml(3), "a:tc", "gridSpan"), (Texts{"", "", "", "", "2", ""}));
}

TEST_F(TablePagesTest, NothingIsAddedWhereSomethingFails) {
    deck.open();
    PageOptions options;
    const auto fail = [&](const wchar_t* layout, const wchar_t* name) {
        return errorOf([&] { deck.addPages(layout, name, makeTable(9), options); });
    };
    EXPECT_EQ(fail(L"No such", L"Table").substr(0, 27), "ppt_error:invalidLayoutName");
    EXPECT_EQ(fail(L"Title and Table", L"Tabel").substr(0, 22), "ppt_error:unknownShape");
    EXPECT_EQ(fail(L"Title and Table", L"Title").substr(0, 29), "ppt_error:shapeRefusesContent");
    options.title = L"Title";
    EXPECT_EQ(fail(L"Blank", L"Table").substr(0, 22), "ppt_error:unknownShape");
    options.height = L"0cm";
    EXPECT_EQ(fail(L"Title and Table", L"Table"), "ppt_error:invalidPropertyValue 0cm");
    EXPECT_TRUE(deck.getChildren().empty());
}

} // namespace
