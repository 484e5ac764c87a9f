#include "vellox/ppt/tree/Paragraph.h"

#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
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
        TextImpl::Given given;
    };
    const TextImpl::Given nothing;
    const Row rows[] = {
        {HvContentPtr(), L"", nothing},
        {boost::make_shared<BooleanContent>(true), L"1", true},
        {boost::make_shared<IntegerContent>(-7), L"-7", -7LL},
        {test::number(2.5), L"2.5", 2.5},
        {test::text(L"text"), L"text", nothing},
        {boost::make_shared<DataContent>(boost::make_shared<HvData>(data.get()), HvContent::Unknown),
         L"struct [1x1]", nothing},
        {test::object(Paragraph(L"p")), L"", nothing},
        {ppt::list({test::text(L"a")}), L"", nothing},
    };
    for (const Row& row : rows) {
        const boost::intrusive_ptr<TextImpl> run(new TextImpl(row.content));
        EXPECT_EQ(run->getTextContent(), row.text);
        EXPECT_TRUE(run->getGiven() == row.given);
        EXPECT_EQ(run->isNumContent(), row.given != nothing);
    }
}

TEST(Text, KeepsWhatItWasGiven) {
    const auto given = [](const Text& run) { return implOf<TextImpl>(*run.clone())->getGiven(); };
    const long long large = 9007199254740993; // no double has its last digit
    EXPECT_TRUE(given(Text(large)) == TextImpl::Given(large));
    EXPECT_EQ(Text(large).getTextContent(), L"9007199254740992");
    EXPECT_TRUE(given(Text(std::size_t(7))) == TextImpl::Given(7LL));
    EXPECT_TRUE(given(Text(~0ULL)) ==
                TextImpl::Given(18446744073709551615.0)); // beyond all whole numbers here
    EXPECT_TRUE(given(Text(true)) == TextImpl::Given(true));
    EXPECT_EQ(Text(true).getNumContent(), 1);
    const Paragraph whole(2);
    EXPECT_TRUE(implOf<TextImpl>(*whole.getChildren().at(0))->getGiven() == TextImpl::Given(2LL));
    Text run(7);
    run.setTextContent(L"7");
    EXPECT_TRUE(given(run) == TextImpl::Given());
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

TEST(Paragraph, OfATruthValueKeepsItWithoutShowingIt) {
    const auto isTrue = boost::make_shared<BooleanContent>(true);
    TextBox box;
    box.replace(ppt::list({HvContentPtr(isTrue), test::text(L"text")}));
    const Table table(boost::make_shared<test::MemoryTable>(1, std::initializer_list<HvContentPtr>{isTrue}));
    const auto copy = box.clone();
    const auto cell = table.getChildren().at(0)->getChildren().at(0);
    for (const auto& paragraph :
         {box.getChildren().at(0), copy->getChildren().at(0), cell->getChildren().at(0)}) {
        EXPECT_EQ(paragraph->getNChildren(), 0u);
        EXPECT_EQ(implOf<ParagraphImpl>(*paragraph)->getTruthValue(), std::optional<bool>(true));
    }
    EXPECT_FALSE(implOf<ParagraphImpl>(*box.getChildren().at(1))->getTruthValue());
}

} // namespace
