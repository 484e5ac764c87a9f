#include "vellox/ppt/tree/Paragraph.h"

#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"
#include "vellox/ppt/tree/TextImpl.h"

#include "tests/support/DeckTest.h"
#include "tests/support/MemoryValue.h"

#include <boost/intrusive_ptr.hpp>

using namespace vellox;
using namespace vellox::ppt;

namespace {

TEST(Text, IsTextOrNumber) {
    Text run(3.5);
    EXPECT_TRUE(run.isNumContent());
    EXPECT_EQ(run.getTextContent(), L"3.5");
    run.setTextContent(L"7 mm");
    EXPECT_FALSE(run.isNumContent());
    EXPECT_EQ(run.getNumContent(), 7); // through the text
    run.setNumContent(0.1);
    EXPECT_EQ(run.getTextContent(), L"0.10000000000000001");
    EXPECT_EQ(Text(L"none").getNumContent(), 0);
}

TEST(Text, IsMadeFromPlainNumbers) {
    EXPECT_EQ(Text(0).getTextContent(), L"0");
    EXPECT_EQ(Text(-3L).getNumContent(), -3);
    EXPECT_EQ(test::outline(TableEntry(Paragraph(2))), L"2");
    EXPECT_EQ(Paragraph(2u).getLevel().get(), 2u);
    EXPECT_EQ(Table(0).getNCols(), 0u);
    EXPECT_EQ(Table(std::size_t(2)).getNCols(), 2u);
    static_assert(!std::is_constructible_v<Bold, const wchar_t*> && std::is_constructible_v<Bold, int>,
                  "a text is no truth value");
    Paragraph().setBold(1); // this must compile, and setBold(L"no") must not
}

TEST(Text, TakesContentOfEveryKind) {
    const test::Value data = test::makeStruct();
    struct Row {
        HvContentPtr content;
        const wchar_t* text;
        bool isNumber;
    };
    const Row rows[] = {
        {HvContentPtr(), L"", false},
        {boost::make_shared<BooleanContent>(true), L"1", true},
        {boost::make_shared<IntegerContent>(-7), L"-7", true},
        {test::number(2.5), L"2.5", true},
        {test::text(L"text"), L"text", false},
        {boost::make_shared<DataContent>(boost::make_shared<HvData>(data.get()), HvContent::Unknown),
         L"struct [1x1]", false},
        {test::object(Paragraph(L"p")), L"", false},
        {test::list({test::text(L"a")}), L"", false},
    };
    for (const Row& row : rows) {
        const boost::intrusive_ptr<TextImpl> run(new TextImpl(row.content));
        EXPECT_EQ(run->getTextContent(), row.text);
        EXPECT_EQ(run->isNumContent(), row.isNumber);
    }
}

TEST(Paragraph, IsBuiltOfRuns) {
    Paragraph paragraph(L"a\nb", 0);
    EXPECT_TRUE(paragraph.getLevel().isSet()); // 0 counts as set
    EXPECT_EQ(paragraph.getNChildren(), 1u);   // a line end splits nothing
    const Text run = paragraph.append(L"c");
    ExternalLink link(L"http://target", L"shown");
    EXPECT_EQ(paragraph.append(link), link);
    EXPECT_EQ(link.getTarget(), L"http://target");
    TextBox box;
    box.add(paragraph);
    EXPECT_EQ(test::outline(box), L"0:a\nbcshown");
    paragraph.unsetLevel();
    EXPECT_FALSE(paragraph.getLevel().isSet());
    EXPECT_EQ(Paragraph(2.5, 3).getLevel().get(), 3u);
    const auto copy = paragraph.clone();
    EXPECT_EQ(static_cast<const ExternalLink&>(*copy->getChildren()[2]).getTarget(), L"http://target");
}

} // namespace
