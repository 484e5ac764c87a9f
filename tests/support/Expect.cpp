#include "tests/support/Expect.h"

#include "vellox/foundation/MsgID.h"

namespace vellox::test {

void WarningLog::raiseWarning(const MsgID& id, const std::wstring&) {
    ids.push_back(id.id);
}

MessageLog::MessageLog()
    : token_(
          ppt::MessageDispatcher::getTheDispatcher().addListener([this](const ppt::MessageEventData& event) {
              texts.push_back(event.getMessage().getText());
              lines.push_back(event.getMessage().formatAsText());
          })) {}

MessageLog::~MessageLog() {
    ppt::MessageDispatcher::getTheDispatcher().removeListener(token_);
}

} // namespace vellox::test
