#include "vellox/ppt/tree/Table.h"

#include "vellox/ppt/tree/Slide.h"
#include "vellox/ppt/tree/Text.h"

#include "tests/support/DeckTest.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

TableRow makeRow(unsigned int entries) {
    TableRow row;
    for (unsigned int i = 0; i < entries; ++i)
        row.append(TableEntry(L"x"));
    return row;
}

TEST(Table, HasAsManyColumnsAsItsWidestRow) {
    Table table(3);
    EXPECT_EQ(table.getNCols(), 3u);
    EXPECT_FALSE(table.row(0));
    table.append(makeRow(3));
    EXPECT_TRUE(table.entry(0, 2));
    EXPECT_FALSE(table.entry(0, 3));
    EXPECT_FALSE(table.entry(1, 0));
    table.append(makeRow(4));
    EXPECT_EQ(table.getNCols(), 4u);
    EXPECT_EQ(errorOf([&] { table.entry(0, 0); }), "dom_error:entriesColumnsMismatch 1 3 4");
    EXPECT_TRUE(table.row(0)); // a ragged row is only refused by its entries

    TableRow row = makeRow(4);
    row.append(TableEntry(L"free"));
    EXPECT_EQ(table.getNCols(), 4u); // not yet in the table
    table.append(row);
    EXPECT_EQ(table.getNCols(), 5u);
    row.append(TableEntry(L"more"));
    EXPECT_EQ(table.getNCols(), 6u);
    EXPECT_EQ(errorOf([&] { Table().append(row); }), "ppt_error:failedToAppendChild");
}

TEST(Table, IsMadeOfContent) {
    const Paragraph own(L"own");
    const Table table(boost::make_shared<MemoryTable>(
        3, std::initializer_list<HvContentPtr>{text(L"a"), number(2.5), boost::make_shared<IntegerContent>(7),
                                               object(own), object(own), object(Table()),
                                               boost::make_shared<BooleanContent>(true), HvContentPtr(),
                                               list({text(L"b")})}));
    EXPECT_EQ(table.getNCols(), 3u);
    EXPECT_EQ(outline(table), L"a|2.5|7|own|own||||"); // what no cell can show leaves it empty
    EXPECT_EQ(*table.getChildren()[1]->getChildren()[0]->getChildren()[0], own);
    EXPECT_NE(*table.getChildren()[1]->getChildren()[1]->getChildren()[0], own); // the second time a copy
    const auto run = table.getChildren()[0]->getChildren()[1]->getChildren()[0]->getChildren()[0];
    EXPECT_TRUE(Text::cast(run)->isNumContent());

    EXPECT_EQ(Table(boost::make_shared<MemoryTable>(0, std::initializer_list<HvContentPtr>{})).getNChildren(),
              0u);
    EXPECT_EQ(errorOf([] { Table(boost::shared_ptr<HvTable>()); }), "ppt_error:invalidConstructorArg");
}

class TableOnSlide : public DeckTest {};

TEST_F(TableOnSlide, GivesWayToACopyOfAnother) {
    Slide slide = deck.add(L"Blank");
    Table former(L"Numbers");
    former.setX(L"2cm");
    Table given(
        boost::make_shared<MemoryTable>(2, std::initializer_list<HvContentPtr>{text(L"a"), text(L"b")}));
    given.setStyleName(L"Plain Grid");
    given.setFontColor(L"red");
    given.setColSpecs({boost::make_shared<ColSpec>(L"3cm")});
    EXPECT_EQ(errorOf([&] { former.replace(given); }), "ppt_error:tableCannotBeReplaced");
    slide.add(former);
    EXPECT_EQ(errorOf([&] { former.replace(list({})); }), "ppt_error:invalidReplaceArg");

    Table onSlide = former.replace(given);
    EXPECT_EQ(onSlide.getName(), L"Numbers");
    EXPECT_EQ(onSlide.getX().get().getRawValue(), L"2cm");
    EXPECT_EQ(outline(onSlide), L"a|b");
    EXPECT_NE(*onSlide.row(0), *given.row(0));
    EXPECT_EQ(onSlide.getFontColor()->getValue(), L"red");
    EXPECT_EQ(*onSlide.getColSpecs()[0], *given.getColSpecs()[0]); // shared
    EXPECT_FALSE(onSlide.getStyleName().isSet());                  // to be set anew
    EXPECT_EQ(errorOf([&] { former.replace(given); }), "ppt_error:tableCannotBeReplaced");
    slide.replace(L"Numbers", object(given));
    EXPECT_NE(*slide.getChildren()[0], onSlide);
}

} // namespace
