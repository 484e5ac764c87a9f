#include "vellox/host/values/HvViews.h"

#include "vellox/foundation/Exception.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/tree/Paragraph.h"

#include "tests/support/MemoryValue.h"

#include <gtest/gtest.h>

using namespace vellox;
using namespace vellox::test;

namespace {

struct NoObject : objreg::HostInterface {
    boost::shared_ptr<ppt::PPTObject> getProxy() const override { return {}; }
    void retract() noexcept override {}
};

TEST(HvCell, TellsContentByClassAndShape) {
    const auto object = boost::make_shared<NoObject>();
    struct Row {
        const char* what;
        Value value;
        HvContent::ContentType type;
    };
    const Row rows[] = {
        {"null", Value(), HvContent::Empty},
        {"logical", makeLogical({true}), HvContent::Boolean},
        {"int8", makeNumeric({7}, {}, HvFirstIntegerClass), HvContent::Integer},
        {"uint64", makeNumeric({7}, {}, HvLastIntegerClass), HvContent::Integer},
        {"single", makeNumeric({7}, {}, HvSingleClass), HvContent::Double},
        {"text", makeChar(L"abc"), HvContent::String},
        {"char matrix", makeChar(L"abcd", {2, 2}), HvContent::String},
        {"empty text", makeChar(L""), HvContent::String},
        {"object", makeObject({object}), HvContent::Object},
        {"foreign object", makeObject({{}}), HvContent::Unknown},
        {"one cell", makeCell({makeNumeric({1})}), HvContent::List},
        {"row of numbers", makeNumeric({1, 2, 3}), HvContent::List},
        {"row of objects", makeObject({object, object}), HvContent::List},
        {"matrix", makeNumeric({1, 2, 3, 4, 5, 6}, {2, 3}), HvContent::Table},
        {"column", makeNumeric({1, 2}, {2, 1}), HvContent::Table},
        {"no cells", makeCell({}), HvContent::Empty},
        {"0 by 3", makeNumeric({}, {0, 3}), HvContent::Empty},
        {"three dimensions", makeNumeric({1, 2}, {1, 1, 2}), HvContent::Empty},
        {"struct", makeStruct(), HvContent::Unknown},
    };
    for (const Row& row : rows) {
        const HvCell cell(row.value.get());
        EXPECT_EQ(cell.getContentType(), row.type) << row.what;
        const HvContentPtr content = cell.getContent();
        EXPECT_EQ(content ? content->getContentType() : HvContent::Empty, row.type) << row.what;
    }
}

TEST(HvCell, ReadsListsAndTables) {
    const Value numbers = makeNumeric({1, 2, 3, 4, 5, 6}, {2, 3});
    const auto table = TableContent::getValue(numbers.get(), true);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->getNRows(), 2u);
    EXPECT_EQ(table->getNCols(), 3u);
    EXPECT_EQ(DoubleContent::getValue(table->getEntry(1, 2)), 6); // the first dimension runs fastest
    EXPECT_EQ(DoubleContent::getValue(table->getEntry(0, 1)), 3);

    const Value integers = makeNumeric({1.9, -2, 1e12}, {}, HvFirstIntegerClass);
    const auto list = ListContent::getValue(integers.get(), false);
    EXPECT_EQ(list->getSize(), 3u);
    EXPECT_EQ(IntegerContent::getValue(list->getItem(0)), 1);
    EXPECT_EQ(IntegerContent::getValue(list->getItem(2)), 2147483647);

    const Value truths = makeLogical({false, true});
    const auto logicals = ListContent::getValue(truths.get(), false);
    EXPECT_FALSE(BooleanContent::getValue(logicals->getItem(0)));
    EXPECT_TRUE(BooleanContent::getValue(logicals->getItem(1)));

    const Value cells = makeCell({makeChar(L"a"), Value(), makeCell({}), makeNumeric({4})}, {2, 2});
    const auto mixed = TableContent::getValue(cells.get(), false);
    EXPECT_EQ(StringContent::getValue(mixed->getEntry(0, 0)), L"a");
    EXPECT_FALSE(mixed->getEntry(1, 0));
    EXPECT_TRUE(mixed->isEmptyEntry(1, 0));
    EXPECT_TRUE(mixed->isEmptyEntry(0, 1));
    EXPECT_FALSE(mixed->isEmptyEntry(1, 1));
    EXPECT_EQ(DoubleContent::getValue(mixed->getEntry(1, 1)), 4);
}

std::string failureOf(const HvCell& cell, const HvCell::Indices& indices) {
    try {
        cell.getCell(indices);
    } catch (const HvArrayException& failure) {
        EXPECT_EQ(failure.code().value(), 0);
        return failure.what();
    }
    return "none";
}

TEST(HvCell, ChecksIndices) {
    const Value value = makeCell({makeNumeric({1}), makeNumeric({2}), makeNumeric({3})});
    const HvCell cell(value.get());
    EXPECT_EQ(DoubleContent::getValue(cell.getContent({0, 2})), 3);
    EXPECT_EQ(failureOf(cell, {0, 3}), "none"); // one too many, and let through
    EXPECT_TRUE(cell.isEmptyCell({0, 3}));
    EXPECT_EQ(failureOf(cell, {0, 4}),
              "vellox::HvCell::checkIndicesLegitimacy. Provided index=4 in dimension=1 "
              "exceeds maximum allowed=3 for this dimension.");
    EXPECT_EQ(failureOf(cell, {0}),
              "vellox::HvCell::checkIndicesLegitimacy. Length of \"indices\" vector=1 <  than "
              "number of dimensions=2");
    EXPECT_EQ(failureOf(cell, {0, 0, 0}),
              "vellox::HvCell::checkIndicesLegitimacy. Length of \"indices\" vector=3 "
              ">  than number of dimensions=2");
    EXPECT_THROW(cell.getDimension(2), HvArrayException);
    EXPECT_THROW(HvCell(nullptr).getDimension(0), HvArrayException);
    EXPECT_EQ(HvData(makeNumeric({1, 2, 3, 4, 5, 6}, {2, 3}).get()).getDispl(), L"double [2x3]");
}

TEST(HvContent, GivesZeroForAnotherClass) {
    const HvContentPtr integer = boost::make_shared<IntegerContent>(7);
    EXPECT_FALSE(BooleanContent::getValue(integer));
    EXPECT_EQ(DoubleContent::getValue(integer), 0);
    EXPECT_EQ(StringContent::getValue(integer), L"");
    EXPECT_FALSE(ListContent::getValue(integer));
    EXPECT_FALSE(TableContent::getValue(HvContentPtr()));
    EXPECT_FALSE(ObjectContent::getValue(HvContentPtr()));
    EXPECT_FALSE(StringContent::cast(integer));
    EXPECT_THROW(ListContent(boost::shared_ptr<HvList>()), HvArrayException);
}

TEST(HvContent, CountsOneObjectAsAListWhereThatIsWanted) {
    const ppt::Paragraph paragraph(L"text");
    const HvContentPtr object = boost::make_shared<ObjectContent>(paragraph);
    EXPECT_FALSE(ListContent::getValue(object, false));
    const auto list = ListContent::getValue(object, true);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->getSize(), 1u);
    EXPECT_EQ(*ObjectContent::getValue(list->getItem(0))->getProxy(), paragraph);
}

} // namespace
