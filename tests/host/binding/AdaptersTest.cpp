// The bound classes as scripts of a host use them: conversions, overloads, subscripts, identity.

#include "tests/support/DeckTest.h"
#include "tests/support/MemoryHost.h"

#include "vellox/host/binding/BindingRegistry.h"

using namespace vellox::ppt;
using namespace vellox::ppt::hostbind;
using vellox::test::errorOf;
using vellox::test::makeCell;
using vellox::test::makeChar;
using vellox::test::makeLogical;
using vellox::test::makeNumeric;
using vellox::test::ObjectRef;
using vellox::test::Value;

namespace {

class AdaptersTest : public testing::Test {
protected:
    std::string shown(const ObjectRef& object, const char* property) {
        return host.show(host.get(object, property));
    }
    /// What a property shows after a value was given to it, or the error.
    std::string shownAfter(const ObjectRef& object, const char* property, const Value& value) {
        const std::string error = errorOf([&] { host.set(object, property, value); });
        return error == "nothing" ? shown(object, property) : error;
    }
    Value valueOf(const ObjectRef& object) { return vellox::test::MemoryHost::valueOf(object); }

    vellox::test::MemoryHost host;
    const Value empty = makeNumeric({});
};

TEST_F(AdaptersTest, FormatPropertiesAreUnsetByTheEmptyArray) {
    const ObjectRef paragraph = host.construct("Paragraph", {makeChar(L"text")});
    EXPECT_EQ(shown(paragraph, "Bold"), "empty");
    EXPECT_EQ(shownAfter(paragraph, "Bold", makeLogical({false})), "false");
    EXPECT_EQ(shownAfter(paragraph, "Bold", makeNumeric({2})), "true");
    EXPECT_EQ(shownAfter(paragraph, "Bold", makeNumeric({0})), "false");
    EXPECT_EQ(shownAfter(paragraph, "Bold", makeChar(L"yes")), "ppt_error:invalidLogicalPropertyValue");
    EXPECT_EQ(shownAfter(paragraph, "Bold", empty), "empty");
    EXPECT_EQ(shownAfter(paragraph, "FontColor", makeChar(L"Tomato")), "tomato");
    EXPECT_EQ(shownAfter(paragraph, "FontColor", makeChar(L"mud")), "ppt_error:invalidPropertyValue mud");
    EXPECT_EQ(shown(paragraph, "FontColor"), "tomato");
    EXPECT_EQ(shownAfter(paragraph, "FontColor", empty), "empty");
    EXPECT_EQ(shownAfter(paragraph, "Underline", makeChar(L"WAVY")), "wavy");
    EXPECT_EQ(shownAfter(paragraph, "HAlign", makeChar(L"center")), "center");
    EXPECT_THROW(host.set(paragraph, "HAlign", makeNumeric({1})), std::invalid_argument);

    // The two facets of one format are two properties.
    EXPECT_EQ(shownAfter(paragraph, "ComplexScriptFont", makeChar(L"Amiri")), "Amiri");
    EXPECT_EQ(shown(paragraph, "Font"), "empty");
    EXPECT_EQ(shownAfter(paragraph, "Font", makeChar(L"Lato")), "Lato");
    EXPECT_EQ(shown(paragraph, "Style"), "[HAlign FontFamily Underline]");

    const ObjectRef column = host.construct("ColSpec", {makeChar(L"2 cm")});
    EXPECT_EQ(shown(column, "Width"), "2cm");
    const ObjectRef box = host.construct("TextBox");
    EXPECT_EQ(shownAfter(box, "X", makeChar(L"1in")), "1in");
    EXPECT_EQ(shownAfter(box, "X", empty), "empty");
}

TEST_F(AdaptersTest, LevelContentStyleAndColumnsJudgeTheirValues) {
    const ObjectRef paragraph = host.construct("Paragraph");
    EXPECT_EQ(shownAfter(paragraph, "Level", makeNumeric({9})), "9");
    EXPECT_EQ(shownAfter(paragraph, "Level", makeNumeric({10})), "ppt_error:invalidPropertyValue 10");
    EXPECT_EQ(shownAfter(paragraph, "Level", makeNumeric({0})), "ppt_error:invalidPropertyValue 0");
    EXPECT_EQ(shownAfter(paragraph, "Level", makeNumeric({1.5})), "ppt_error:invalidPropertyValue 1.5");
    EXPECT_EQ(shownAfter(paragraph, "Level", makeChar(L"two")), "ppt_error:invalidPropertyValue two");
    EXPECT_EQ(shown(paragraph, "Level"), "9");
    EXPECT_EQ(shownAfter(paragraph, "Level", empty), "empty");

    const ObjectRef run = host.construct("Text", {makeNumeric({2.5})});
    EXPECT_EQ(shown(run, "Content"), "2.5");
    EXPECT_EQ(shownAfter(run, "Content", makeChar(L"words")), "words");
    EXPECT_EQ(shownAfter(run, "Content", makeLogical({true})), "1");
    EXPECT_EQ(shownAfter(run, "Content", makeCell({makeChar(L"a")})),
              "ppt_error:invalidPropertyValue cell [1x1]");

    const Value bold = valueOf(host.construct("Bold", {makeLogical({false})}));
    EXPECT_EQ(shownAfter(paragraph, "Style", makeCell({bold, makeChar(L"red"), bold})), "[Bold]");
    EXPECT_EQ(shown(paragraph, "Bold"), "false");
    EXPECT_EQ(shownAfter(paragraph, "Style", bold), "ppt_error:invalidFormatStyle");
    EXPECT_EQ(shownAfter(paragraph, "Style", empty), "[]");

    const ObjectRef table = host.construct("Table", {makeNumeric({2})});
    EXPECT_EQ(shown(table, "NCols"), "2");
    const Value column = valueOf(host.construct("ColSpec"));
    EXPECT_EQ(shownAfter(table, "ColSpecs", column), "[ColSpec]"); // one object is a list of one
    EXPECT_EQ(shownAfter(table, "ColSpecs", makeCell({column, column})), "[ColSpec ColSpec]");
    EXPECT_EQ(shownAfter(table, "ColSpecs", makeCell({column, bold})),
              "ppt_error:invalidPropertyValue vellox.ppt.Bold");
    EXPECT_EQ(shownAfter(table, "ColSpecs", makeNumeric({5})), "ppt_error:invalidPropertyValue 5");
    EXPECT_EQ(shownAfter(table, "ColSpecs", empty), "[]");
}

TEST_F(AdaptersTest, OverloadsAreFoundByTheirWords) {
    const ObjectRef box = host.construct("TextBox");
    EXPECT_EQ(host.show(host.call(box, "add", {makeChar(L"a")})), "Paragraph");
    EXPECT_EQ(host.show(host.call(box, "add", {valueOf(host.construct("Paragraph", {makeChar(L"b")}))})),
              "Paragraph");
    EXPECT_EQ(host.show(host.call(box, "add", {makeCell({makeChar(L"c"), makeCell({makeChar(L"d")})})})),
              "void");
    EXPECT_EQ(host.show(host.call(box, "add", {empty})), "void");
    EXPECT_EQ(vellox::test::outline(static_cast<PPTNode&>(*box->getProxy())), L"a|b|c|2:d");
    EXPECT_EQ(errorOf([&] {
                  host.call(box, "add", {makeNumeric({1, 2}, {2, 1, 1})});
              }),
              "ppt_error:invalidAddArg");
    EXPECT_EQ(errorOf([&] { host.call(box, "replace", {empty}); }), "ppt_error:invalidReplaceArg");
    EXPECT_THROW(host.call(box, "add", {makeChar(L"a"), makeChar(L"b")}), std::invalid_argument);

    // A number is what the signature wants; an exact match goes first.
    EXPECT_EQ(host.show(host.call(host.construct("Paragraph", {makeNumeric({3}), makeNumeric({2})}), "append",
                                  {valueOf(host.construct("ExternalLink"))})),
              "ExternalLink");
    EXPECT_THROW(host.construct("Paragraph", {makeChar(L"a"), makeNumeric({2.5})}), std::invalid_argument);
    EXPECT_EQ(shown(host.construct("Table", {makeNumeric({1, 2, 3, 4}, {2, 2})}), "NCols"), "2");
    EXPECT_EQ(errorOf([&] {
                  host.construct("Table", {makeNumeric({1, 2})});
              }),
              "ppt_error:invalidConstructorArg");
    EXPECT_EQ(errorOf([&] { host.construct("Table", {makeNumeric({2.5})}); }),
              "ppt_error:invalidConstructorArg");
    EXPECT_THROW(host.construct("DebugMessage", {makeChar(L"a")}), std::invalid_argument);
}

TEST_F(AdaptersTest, SubscriptsCountFromOne) {
    const ObjectRef table = host.construct(
        "Table", {makeCell({makeChar(L"a"), makeChar(L"b"), makeChar(L"c"), makeChar(L"d")}, {2, 2})});
    const auto entry = [&](double r, double c) {
        return errorOf([&] { host.call(table, "entry", {makeNumeric({r}), makeNumeric({c})}); });
    };
    EXPECT_EQ(entry(2, 1), "nothing");
    EXPECT_EQ(entry(0, 1), "ppt_error:positiveSubscript");
    EXPECT_EQ(entry(1, 0), "ppt_error:positiveSubscript");
    EXPECT_EQ(entry(3, 9), "ppt_error:badRowSubscript 3 2");
    EXPECT_EQ(entry(2, 3), "ppt_error:badColSubscript 3 2");
    EXPECT_EQ(errorOf([&] { host.call(table, "row", {makeNumeric({3})}); }), "ppt_error:badRowSubscript 3 2");
    EXPECT_EQ(errorOf([&] { host.call(table, "row", {makeNumeric({0})}); }), "ppt_error:positiveSubscript");
}

TEST_F(AdaptersTest, ADeckIsMadeByAScript) {
    const vellox::test::TempFolder folder;
    const ObjectRef deck = host.construct("Presentation", {makeChar(folder / L"deck")});
    EXPECT_EQ(errorOf([&] {
                  host.call(deck, "add", {makeChar(L"Title Only"), makeNumeric({1})});
              }),
              "ppt_error:badSlideSubscript 1 0");
    EXPECT_EQ(host.show(host.call(deck, "open")), "true");
    EXPECT_EQ(host.show(host.call(deck, "getMasterNames")), "[Vellox]");
    const std::string layouts = host.show(host.call(deck, "getLayoutNames", {makeChar(L"Vellox")}));
    EXPECT_NE(layouts.find("Title and Content"), std::string::npos);
    EXPECT_EQ(host.show(host.call(deck, "getLayoutNames", {makeNumeric({5})})), "[]");
    EXPECT_NE(host.show(host.call(deck, "getTableStyleNames")).find("Plain Grid {"), std::string::npos);

    const ObjectRef slide = host.objectOf(host.call(deck, "add", {makeChar(L"Title and Content")}));
    EXPECT_EQ(errorOf([&] {
                  host.call(deck, "add", {makeChar(L"Title Only"), makeNumeric({0})});
              }),
              "ppt_error:positiveSubscript");
    host.call(deck, "add", {makeChar(L"Title Only"), makeNumeric({1})});
    EXPECT_EQ(shown(deck, "Children"), "[Slide Slide]");
    EXPECT_EQ(shown(slide, "Children"), "[TextBoxPlaceholder ContentPlaceholder]");
    EXPECT_EQ(host.objectOf(host.get(slide, "Parent")).get(), deck.get());
    EXPECT_EQ(errorOf([&] {
                  host.call(slide, "replace", {makeChar(L""), makeNumeric({1})});
              }),
              "ppt_error:invalidReplaceArg");
    EXPECT_EQ(errorOf([&] {
                  host.call(slide, "replace", {makeChar(L"Content"), empty});
              }),
              "ppt_error:invalidReplaceArg");
    host.call(slide, "replace", {makeChar(L"Content"), makeCell({makeChar(L"one"), makeNumeric({2})})});
    host.call(slide, "replace", {makeChar(L"Title"), makeChar(L"Made by a script")});
    host.call(slide, "add", {valueOf(host.construct("TextBox"))});
    EXPECT_EQ(host.show(host.call(deck, "close")), "true");
    EXPECT_EQ(host.show(host.call(deck, "close")), "false");
    const vellox::test::Parts parts = vellox::test::readParts(folder / L"deck.pptx");
    EXPECT_EQ(vellox::test::runsOf(parts.at("ppt/slides/slide2.xml")), "Made by a script|one|2");
}

TEST_F(AdaptersTest, AnObjectHasOneHostObjectAtATime) {
    const ObjectRef box = host.construct("TextBox");
    const HostResult added = host.call(box, "add", {makeChar(L"text")});
    const HostResult children = host.get(box, "Children");
    const ObjectRef paragraph = host.objectOf(added);
    EXPECT_EQ(host.objectOf(std::get<ObjectArray>(children)[0]).get(), paragraph.get());
    EXPECT_EQ(host.objectOf(host.get(paragraph, "Parent")).get(), box.get());
    // The host drops its object; the library's lives on and gets another.
    host.announced.clear();
    EXPECT_EQ(host.objectOf(added)->bound.name, std::string("Paragraph"));
    EXPECT_EQ(host.show(host.get(box, "Children")), "[Paragraph]");
}

TEST_F(AdaptersTest, ListenersSeeObjectsComeAndGo) {
    MessageFilter filter = MessageDispatcher::getTheDispatcher().getMessageFilter();
    filter.setDebugMessagesPass(true);
    std::vector<ObjectRef> seen;
    const auto token = MessageDispatcher::getTheDispatcher().addListener([&](const MessageEventData& event) {
        seen.push_back(host.objectOf(HostResult(event.getMessage().getSource())));
    });
    ObjectRef table = host.construct("Table");
    ASSERT_EQ(seen.size(), 2u);
    // First seen under construction, as a shape; then as what it is.
    EXPECT_EQ(host.announced.size(), 2u);
    EXPECT_EQ(seen[0]->bound.name, std::string("Shape"));
    EXPECT_EQ(seen[1]->bound.name, std::string("Table"));
    // Only the one that the script made stands for the table now.
    EXPECT_FALSE(seen[0]->getProxy());
    EXPECT_FALSE(seen[1]->getProxy());
    seen.clear();
    host.announced.clear();
    EXPECT_EQ(host.objectOf(table->getProxy()).get(), table.get());
    table.reset();
    // What is kept of an object that has ended holds nothing.
    EXPECT_EQ(seen.size(), 2u);
    EXPECT_FALSE(seen.at(0)->getProxy());
    EXPECT_FALSE(seen.at(1)->getProxy());
    MessageDispatcher::getTheDispatcher().removeListener(token);
    filter.setDebugMessagesPass(false);
}

} // namespace
