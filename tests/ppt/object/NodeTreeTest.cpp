#include "vellox/ppt/object/PPTNode.h"

#include "vellox/host/binding/BoundClass.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableEntry.h"
#include "vellox/ppt/tree/TableRow.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"
#include "vellox/ppt/tree/TextBoxImpl.h"

#include "tests/support/Expect.h"

using namespace vellox::ppt;
using vellox::test::errorOf;

namespace {

std::wstring textsOf(const PPTNode& node) {
    std::wstring texts;
    for (const auto& child : node.getChildren())
        texts +=
            (texts.empty() ? L"" : L" ") +
            (child->getNodeType() == NodeType::Text ? Text::cast(child)->getTextContent() : textsOf(*child));
    return texts;
}

TEST(PPTObject, HandlesShareOneObject) {
    Paragraph one(L"text");
    Paragraph two = one;
    two.setTag(L"mine");
    EXPECT_EQ(one.getTag(), L"mine");
    EXPECT_TRUE(one == two);
    const auto copy = one.clone();
    EXPECT_TRUE(*copy != one);
    EXPECT_NE(copy->getId(), one.getId());
    EXPECT_EQ(copy->getTag(), L"ppt.Paragraph:" + copy->getId()); // tags don't travel
    one.setTag(L"");
    EXPECT_EQ(two.getTag(), L"ppt.Paragraph:" + one.getId());
    one.setId(L"x");
    EXPECT_EQ(two.getTag(), L"ppt.Paragraph:x");
    two = Paragraph(L"other");
    EXPECT_EQ(textsOf(one), L"text"); // assigning a handle changes no object
    const Paragraph& self = two;
    two = self;
    EXPECT_EQ(textsOf(two), L"other");
}

TEST(PPTNode, HasOneParentAtMost) {
    Paragraph first, second;
    Text text(L"a");
    first.append(text);
    EXPECT_EQ(*text.getParent(), first);
    EXPECT_EQ(errorOf([&] { second.append(text); }), "ppt_error:failedToAppendChild");
    EXPECT_EQ(errorOf([&] { first.append(text); }), "ppt_error:failedToAppendChild");
    EXPECT_EQ(errorOf([&] { Paragraph other(text); }), "ppt_error:failedToAppendChild");
    EXPECT_EQ(first.getNChildren(), 1u);
    EXPECT_EQ(second.getNChildren(), 0u);
}

TEST(PPTNode, InsertsInOrder) {
    const auto handle = Paragraph().makeInterface();
    auto& node = *implOf<PPTNodeImpl>(*handle);
    const auto make = [](const wchar_t* text) { return Text(text).makeInterface(); };
    const auto b = make(L"b"), c = make(L"c");
    node.appendChild(b);
    node.insertChildAt(make(L"a"), 0);
    node.insertChildAt(c, 99); // beyond the end is the end
    node.insertChildBefore(make(L"b2"), *c);
    node.insertChildBefore(make(L"d"), *make(L"unknown")); // so is an unknown reference
    EXPECT_EQ(textsOf(*handle), L"a b b2 c d");
    const auto x = make(L"x");
    node.replaceChild(*b, x);
    EXPECT_EQ(textsOf(*handle), L"a x b2 c d");
    EXPECT_FALSE(b->getParent());
    EXPECT_EQ(*x->getParent(), *handle);
    node.replaceChild(*b, make(L"e"));
    EXPECT_EQ(textsOf(*handle), L"a x b2 c d e");
}

TEST(PPTNode, OutlivesItsParentAsAFreeNode) {
    Text text(L"a");
    Paragraph dropped(L"b");
    {
        TextBox box;
        Paragraph paragraph(text);
        box.add(paragraph);
        box.add(dropped);
        box.replace(L"c");
        EXPECT_TRUE(dropped.getParent()); // what falls out of a list keeps its link
    }
    EXPECT_FALSE(dropped.getParent()); // but not to a parent that is gone
    EXPECT_FALSE(text.getParent());
    TextBox box;
    EXPECT_EQ(errorOf([&] { box.add(dropped); }), "nothing");
}

TEST(PPTNode, ClonesDeepAndWithoutName) {
    TextBox box(L"Box");
    box.setX(L"1in");
    box.setBold(true);
    box.add(Paragraph(L"text", 3)).append(L"more");
    const auto copy = box.clone();
    EXPECT_EQ(copy->getName(), L"");
    EXPECT_FALSE(copy->getParent());
    EXPECT_EQ(textsOf(*copy), L"text more");
    EXPECT_NE(*copy->getChildren()[0], *box.getChildren()[0]);
    EXPECT_EQ(*copy->getChildren()[0]->getParent(), *copy);
    EXPECT_EQ(Paragraph::cast(copy->getChildren()[0])->getLevel().get(), 3u);
    EXPECT_EQ(TextBox::cast(copy)->getX().get().getRawValue(), L"1in");
    EXPECT_TRUE(TextBox::cast(copy)->getBold()->getValue());
}

TEST(PPTNode, KnowsItsKindAndFamily) {
    const TextBox box;
    EXPECT_TRUE(box.isA(NodeType::TextBox));
    EXPECT_TRUE(box.isA(NodeType::BaseTextBox));
    EXPECT_FALSE(box.isA(NodeType::Shape)); // only a bare shape is one here
    const auto node = box.makeInterface();
    EXPECT_TRUE(Shape::cast(node)); // a cast goes by class
    EXPECT_TRUE(BaseTextBox::cast(node));
    EXPECT_FALSE(Paragraph::cast(node));
    EXPECT_FALSE(Shape::cast(boost::shared_ptr<PPTNode>()));
}

TEST(NodeKinds, AreAsTheClassTreeOfHostsHasThem) {
    for (int number = 1; number <= static_cast<int>(NodeType::TextBoxPlaceholder); ++number) {
        const NodeKind& kind = getNodeKind(static_cast<NodeType>(number));
        const hostbind::BoundClass* bound = hostbind::findBoundClass(kind.hostName);
        ASSERT_TRUE(bound) << kind.hostName;
        const NodeType family = kind.isA;
        while (bound && family != NodeType::None && bound->getFullName() != getNodeKind(family).hostName)
            bound = bound->getSuperclass();
        EXPECT_TRUE(bound) << kind.hostName << " as " << getNodeKind(family).hostName;
    }
    EXPECT_TRUE(isKindOf(NodeType::ContentPlaceholder, NodeType::TextBoxPlaceholder));
    EXPECT_FALSE(isKindOf(NodeType::TablePlaceholder, NodeType::PicturePlaceholder));
    EXPECT_FALSE(isKindOf(NodeType::TextBox, NodeType::None));
}

TEST(FindNodes, FindsEveryMatchInDocumentOrder) {
    const auto slide = (new SlideImpl)->makeInterface();
    auto* top = implOf<SlideImpl>(*slide);
    const auto group = (new GroupImpl(L"A"))->makeInterface();
    top->appendChild((new TextBoxImpl(L"A"))->makeInterface());
    top->appendChild(group);
    implOf<GroupImpl>(*group)->appendChild((new TextBoxImpl(L"A"))->makeInterface());
    implOf<GroupImpl>(*group)->appendChild((new TextBoxImpl(L"a"))->makeInterface());
    top->appendChild((new ShapeImpl(L"A"))->makeInterface()); // never found
    top->appendChild((new TextBoxImpl)->makeInterface());
    PPTNode::Children found;
    findNodes(slide.get(), L"A", found);
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(*found[1], *group);
    EXPECT_EQ(*found[2]->getParent(), *group);
    found.clear();
    findNodes(slide.get(), L"", found);
    EXPECT_EQ(found.size(), 1u);
    findNodes(nullptr, L"A", found);
    EXPECT_EQ(found.size(), 1u);
}

} // namespace
