/// @file
/// What tests expect of errors and messages.

#ifndef VELLOX_TESTS_SUPPORT_EXPECT_H
#define VELLOX_TESTS_SUPPORT_EXPECT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/messages/MessageDispatcher.h"

namespace vellox::test {

/// The identifier of the error that an action raises, without its first word, and its arguments:
/// "ppt_error:badRowSubscript 3 2". "nothing" if it raises none.
template <class Action> std::string errorOf(Action action) {
    try {
        action();
    } catch (const hostfx::except::IMsgIDException& error) {
        std::string text = error.getErrorID().substr(error.getErrorID().find(':') + 1);
        for (const std::wstring& argument : error.getMsgID().args)
            text += " " + toUtf8(argument);
        return text;
    } catch (const std::exception& error) {
        return std::string("another exception: ") + error.what();
    }
    return "nothing";
}

/// Keeps what warnings are given to the host while it lives.
class WarningLog : public host::HostServices {
public:
    WarningLog() { host::setHostServices(this); }
    ~WarningLog() override { host::setHostServices(nullptr); }
    void raiseWarning(const MsgID& id, const std::wstring& text) override;

    std::vector<std::string> ids;
};

/// Keeps the texts of the messages that pass while it lives; a message itself would keep its source alive.
class MessageLog {
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;

    std::vector<std::wstring> texts;
    std::vector<std::wstring> lines; ///< formatted, with the source

private:
    ppt::MessageDispatcher::ListenerToken token_;
};

} // namespace vellox::test

#endif
