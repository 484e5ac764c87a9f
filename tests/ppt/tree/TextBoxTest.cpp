#include "vellox/ppt/tree/TextBox.h"

#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/Group.h"

#include "tests/support/DeckTest.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

TEST(TextBox, TurnsListsIntoParagraphsWithLevels) {
    const Paragraph own(L"own", 5);
    struct Row {
        HvContentPtr content;
        const wchar_t* outline;
    };
    const Row rows[] = {
        {list({}), L""},
        {list({text(L"a"), number(2.5), object(own)}), L"a|2.5|5:own"}, // levels stay as they were
        {list({text(L"a"), list({text(L"b"), list({text(L"c")})}), text(L"d")}), L"a|2:b|3:c|d"},
        {list({list({list({list({text(L"deep")})})})}), L"4:deep"},
        {list({true, HvContentPtr(), 3}), L"||3"}, // a truth value has no text here
    };
    for (const Row& row : rows) {
        TextBox box;
        box.add(L"former");
        box.replace(row.content);
        EXPECT_EQ(outline(box), row.outline);
        box.replace(L"former");
        box.add(row.content);
        EXPECT_EQ(outline(box), std::wstring(L"former") + (*row.outline ? L"|" : L"") + row.outline);
    }
}

TEST(TextBox, TakesAParagraphItselfOrItsCopy) {
    TextBox first, second;
    const Paragraph paragraph(L"text");
    EXPECT_EQ(first.replace(paragraph), paragraph);
    EXPECT_NE(second.replace(paragraph), paragraph);
    EXPECT_EQ(outline(first), L"text"); // it stays where it was
    EXPECT_EQ(outline(second), L"text");
    EXPECT_EQ(errorOf([&] { second.add(paragraph); }), "ppt_error:failedToAppendChild");

    Paragraph listed(L"listed");
    second.replace(list({list({object(listed)})}));
    EXPECT_EQ(listed.getLevel().get(), 2u); // the caller's own object was changed
    EXPECT_EQ(*listed.getParent(), second);
    TextBox third;
    const Paragraph unowned(L"unowned");
    third.add(list({object(unowned)}));
    EXPECT_FALSE(Paragraph(unowned).getParent()); // this way in tells no parent
}

TEST(TextBox, RefusesWhatIsNoList) {
    TextBox box;
    box.add(L"text");
    for (const HvContentPtr& content : {HvContentPtr(), text(L"a"), number(1), object(Paragraph())}) {
        EXPECT_EQ(errorOf([&] { box.replace(content); }), "ppt_error:invalidReplaceArg");
        box.add(content); // ignored
    }
    EXPECT_EQ(outline(box), L"text");
    EXPECT_FALSE(implOf<BaseTextBoxImpl>(box)->isContentReplaced());
    EXPECT_EQ(errorOf([&] { implOf<BaseTextBoxImpl>(box)->addList({}); }), "ppt_error:invalidReplaceArg");
    EXPECT_EQ(errorOf([] { Shape().replace(list({})); }), "ppt_error:invalidReplaceArg");
    EXPECT_EQ(errorOf([] { Group(L"g").replace(list({})); }), "ppt_error:invalidReplaceArg");
}

TEST(Shape, HasAPlaceThatMayBeUnset) {
    TextBox box(L"Box");
    box.setX(L" 2 CM");
    EXPECT_EQ(box.getX().get().getRawValue(), L"2cm");
    EXPECT_EQ(errorOf([&] { box.setX(L"2 furlong"); }), "dom_error:invalidDimensionUnits furlong");
    EXPECT_EQ(box.getX().get().getRawValue(), L"2cm");
    box.unsetX();
    EXPECT_FALSE(box.getX().isSet());
    EXPECT_FALSE(box.getWidth().isSet());
    EXPECT_THROW(box.getWidth().get(), std::bad_optional_access);
}

// What a shape doesn't have takes no room, but who asks for it may keep the answer.
TEST(Shape, ShowsWhatIsSetLaterInWhatWasAskedForBefore) {
    TextBox box;
    const std::wstring& name = box.getName();
    const BaseAttribute<Dimension>& width = box.getWidth();
    const BaseAttribute<std::wstring>&altText = box.getAltText(), &autofit = box.getAutofit();
    box.setName(L"Box");
    box.setWidth(L"2cm");
    box.setAltText(L"a box");
    box.setAutofit(L"none");
    EXPECT_EQ(name, L"Box");
    EXPECT_EQ(width.get().getRawValue(), L"2cm");
    EXPECT_EQ(altText.get(), L"a box");
    EXPECT_EQ(autofit.get(), L"none");
    EXPECT_EQ(TextBox(L"Other").getName(), L"Other"); // and nobody else's
    EXPECT_FALSE(TextBox().getWidth().isSet());
}

// Copies have no name, and are still written with that of the original.
TEST(Shape, IsWrittenWithTheNameOfItsOriginal) {
    const TextBox box(L"Box");
    const auto copy = TextBox::cast(box.clone());
    EXPECT_EQ(copy->getName(), L"");
    EXPECT_EQ(implOf<ShapeImpl>(*copy)->getWrittenName().get(), L"Box");
    EXPECT_EQ(implOf<ShapeImpl>(*copy->clone())->getWrittenName().get(), L"Box");
    copy->setName(L"");
    EXPECT_EQ(implOf<ShapeImpl>(*copy)->getWrittenName().get(), L"");
    EXPECT_FALSE(implOf<ShapeImpl>(TextBox())->getWrittenName().isSet());
}

} // namespace
