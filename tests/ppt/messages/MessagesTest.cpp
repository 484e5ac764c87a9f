#include "vellox/ppt/messages/MessageDispatcher.h"

#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/Expect.h"

using namespace vellox::ppt;
using vellox::test::MessageLog;

namespace {

/// Puts the dispatcher's filter back as it was.
class MessagesTest : public testing::Test {
protected:
    ~MessagesTest() override {
        filter.unsetGlobalFilter();
        filter.unsetSourceFilter();
        filter.setDebugMessagesPass(false);
        filter.setWarningMessagesPass(true);
    }

    MessageFilter filter = MessageDispatcher::getTheDispatcher().getMessageFilter();
};

TEST_F(MessagesTest, FilterDecidesInItsOrder) {
    const Paragraph one, two;
    const WarningMessage about(L"text", one), aboutNothing(L"text");
    EXPECT_TRUE(about.passesFilter(filter));
    EXPECT_FALSE(DebugMessage(L"text").passesFilter(filter));
    EXPECT_TRUE(ProgressMessage(L"text").passesFilter(filter));
    EXPECT_TRUE(ErrorMessage(L"text").passesFilter(filter));

    filter.setWarningMessagesPass(false);
    EXPECT_FALSE(about.passesFilter(filter));
    filter.setGlobalFilter(L"pass"); // goes before the flags
    EXPECT_TRUE(about.passesFilter(filter));
    EXPECT_TRUE(DebugMessage(L"text").passesFilter(filter));
    filter.setSourceFilter(two); // and this before that
    EXPECT_FALSE(about.passesFilter(filter));
    EXPECT_TRUE(aboutNothing.passesFilter(filter));
    filter.setSourceFilter(Paragraph(one)); // another handle on the same object
    EXPECT_TRUE(about.passesFilter(filter));
    for (const wchar_t* other : {L"Pass", L"block", L""}) {
        filter.setGlobalFilter(other);
        EXPECT_FALSE(about.passesFilter(filter));
    }
    filter.unsetGlobalFilter();
    EXPECT_FALSE(about.passesFilter(filter));
}

TEST_F(MessagesTest, Formats) {
    Paragraph source;
    source.setTag(L"the <source>");
    EXPECT_EQ(ErrorMessage(L"text").formatAsText(), L"text");
    EXPECT_EQ(ErrorMessage(L"text").formatAsHTML(), L"<p>text</p>");
    EXPECT_EQ(ErrorMessage(L"text", source).formatAsText(), L"the <source> text");
    EXPECT_EQ(ErrorMessage(L"text", source).formatAsHTML(), L"<p>the <source> text</p>");
}

TEST_F(MessagesTest, ReachListenersInOrderAndMayChangeTheList) {
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    dispatcher.dispatch(ErrorMessage(L"to nobody"));
    std::wstring heard;
    MessageDispatcher::ListenerToken second = 0;
    const auto first = dispatcher.addListener([&](const MessageEventData& event) {
        heard += L"1" + event.getMessage().getText();
        dispatcher.removeListener(second);
    });
    second = dispatcher.addListener([&](const MessageEventData&) { heard += L"2"; });
    const auto third = dispatcher.addListener([&](const MessageEventData&) { throw 7; });
    EXPECT_THROW(dispatcher.dispatch(ErrorMessage(L"a")), int);
    EXPECT_EQ(heard, L"1a");
    dispatcher.removeListener(first);
    dispatcher.removeListener(third);
    dispatcher.removeListener(third);
    EXPECT_TRUE(MessageDispatcher::getTheDispatcher() == dispatcher);
}

// Or a listener that makes objects would be called for each of them, without end.
TEST_F(MessagesTest, WhatListenersMakeIsNotReported) {
    filter.setDebugMessagesPass(true);
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    int lives = 0, texts = 0;
    const auto empty = dispatcher.addListener({});
    const auto maker = dispatcher.addListener([&](const MessageEventData& event) {
        if (event.getMessage().getText() == L"text") {
            ++texts;
            return;
        }
        ++lives;
        Paragraph(L"made by a listener");
        dispatcher.dispatch(ErrorMessage(L"text")); // this is heard
    });
    Paragraph();
    dispatcher.removeListener(maker);
    dispatcher.removeListener(empty);
    EXPECT_EQ(lives, 2);
    EXPECT_EQ(texts, 2);
}

TEST_F(MessagesTest, LifeIsReportedLevelByLevel) {
    filter.setDebugMessagesPass(true);
    const MessageLog log;
    std::wstring id;
    {
        const Table table;
        id = table.getId();
    }
    EXPECT_EQ(log.texts, (std::vector<std::wstring>{
                             L"Created ppt.Shape:" + id + L".", L"Created ppt.Table:" + id + L".",
                             L"Destroyed ppt.Table:" + id + L".", L"Destroyed ppt.Shape:" + id + L"."}));
    EXPECT_EQ(log.lines[2], L"ppt.Table:" + id + L" Destroyed ppt.Table:" + id + L".");
}

TEST_F(MessagesTest, AMessageAboutAnEndLetsGoOfItsSource) {
    filter.setDebugMessagesPass(true);
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    std::vector<Message> kept;
    auto paragraph = boost::make_shared<Paragraph>();
    const auto token = dispatcher.addListener([&](const MessageEventData& event) {
        EXPECT_TRUE(event.getMessage().getSource());
        kept.push_back(event.getMessage());
    });
    paragraph.reset();
    dispatcher.removeListener(token);
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_FALSE(kept[0].getSource());
}

TEST_F(MessagesTest, EveryObjectThatIsMadeEnds) {
    filter.setDebugMessagesPass(true);
    const MessageLog log;
    {
        TextBox box(L"Box");
        box.add(Paragraph(L"one")).append(L"two");
        box.replace(box.add(L"three"));
        const auto copy = box.clone();
        const auto kept = copy->getChildren()[0];
    }
    int balance = 0;
    for (const std::wstring& text : log.texts)
        balance += text.find(L"Created") != std::wstring::npos ? 1 : -1;
    EXPECT_EQ(balance, 0);
}

TEST_F(MessagesTest, AListenerThatFailsAtAnEndBecomesAWarning) {
    filter.setDebugMessagesPass(true);
    vellox::test::WarningLog warnings;
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    const Paragraph paragraph;
    const auto token = dispatcher.addListener([](const MessageEventData&) { throw std::runtime_error("x"); });
    EXPECT_THROW(Paragraph(), std::runtime_error); // a making can fail
    const std::size_t before = warnings.ids.size();
    { const Paragraph ending = paragraph; }
    EXPECT_EQ(warnings.ids.size(), before); // still held
    {
        dispatcher.removeListener(token);
        Paragraph ending;
        const auto again =
            dispatcher.addListener([](const MessageEventData&) { throw std::runtime_error("x"); });
        ending = paragraph;
        dispatcher.removeListener(again);
    }
    ASSERT_GT(warnings.ids.size(), before);
    EXPECT_EQ(warnings.ids.back(), "objDestroyed");
}

} // namespace
