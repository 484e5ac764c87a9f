#include "vellox/host/binding/Module.h"

#include "vellox/ppt/messages/MessageDispatcher.h"

#include "tests/support/MemoryHost.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace vellox::ppt;
using vellox::test::MemoryHost;
using vellox::test::ObjectRef;

namespace {

TEST(ModuleTest, RegistersListensAndEndsOnce) {
    HostInitialize_vellox_ppt(); // nobody to register with
    MemoryHost host;
    HostInitialize_vellox_ppt();
    HostInitialize_vellox_ppt();
    EXPECT_EQ(host.packages, (std::set<std::string>{"vellox", "vellox.ppt"}));
    EXPECT_EQ(host.classes.size(), 60u);
    EXPECT_EQ(host.classes.front(), "vellox.ppt.Null");
    EXPECT_EQ(host.classes.at(1), "vellox.ppt.Object");
    EXPECT_EQ(host.log, "keepLoaded ");

    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    dispatcher.dispatch(WarningMessage(L"unheard")); // the host has no object to listen on
    const ObjectRef onHost = host.objectOf(boost::make_shared<MessageDispatcher>(dispatcher));
    std::wstring heard;
    onHost->listeners.push_back(
        [&](const MessageEventData& event) { heard += event.getMessage().getText() + L" "; });
    dispatcher.dispatch(WarningMessage(L"heard"));
    EXPECT_EQ(heard, L"heard ");
    EXPECT_EQ(host.log, "keepLoaded Message ");
    onHost->listeners.push_back([](const MessageEventData&) { throw std::runtime_error("from the host"); });
    EXPECT_THROW(dispatcher.dispatch(WarningMessage(L"again")), std::runtime_error);

    MessageFilter filter = dispatcher.getMessageFilter();
    filter.setSourceFilter(dispatcher);
    HostTerminate_vellox_ppt();
    EXPECT_FALSE(filter.getSourceFilter().isSet());
    filter.setSourceFilter(dispatcher);
    HostTerminate_vellox_ppt();
    EXPECT_TRUE(filter.getSourceFilter().isSet());
    filter.unsetSourceFilter();
    heard.clear();
    dispatcher.dispatch(WarningMessage(L"too late"));
    EXPECT_EQ(heard, L"");
}

TEST(ModuleTest, Exports) {
    EXPECT_EQ(std::string(vellox_ppt_version).substr(0, 4), "1.1.");
    EXPECT_EQ(std::string(vellox_ppt_build_date).size(), 11u);
    EXPECT_EQ(*QueryHostFcnTable_vellox_ppt()->functions, nullptr);
}

} // namespace
