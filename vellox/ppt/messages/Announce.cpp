#include "vellox/ppt/messages/Announce.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/messages/MessageImpl.h"

namespace vellox::ppt {

namespace {

MessageFilter getFilter() {
    return MessageDispatcher::getTheDispatcher().getMessageFilter();
}

void dispatch(const Message& message) {
    MessageDispatcher::getTheDispatcher().dispatch(message);
}

// A message that may be kept by a listener, about an object that may be gone right after.
class LifeMessage {
public:
    LifeMessage(const MsgID& id, PPTObjectImpl& object, PPTObjectImpl::Life life)
        : guard_(object, life),
          message_(id, ObjectAccess::makeHandle(&object)) {}
    LifeMessage(const LifeMessage&) = delete;
    LifeMessage& operator=(const LifeMessage&) = delete;
    ~LifeMessage() {
        if (mustForget_)
            implOf<MessageImpl>(message_)->forgetSource();
    }

    void send() { dispatch(message_); }
    void keepSource() { mustForget_ = false; }

private:
    PPTObjectImpl::LifeGuard guard_; // outlives the message's handle on the object
    DebugMessage message_;
    bool mustForget_ = true;
};

} // namespace

void announceCreated(PPTObjectImpl& object) {
    if (!getFilter().getDebugMessagesPass())
        return;
    LifeMessage message(ppt_debug::objCreated(object.getTag()), object,
                        PPTObjectImpl::Life::UnderConstruction);
    message.send();
    message.keepSource();
}

void announceDestroyed(PPTObjectImpl& object) noexcept {
    if (!getFilter().getDebugMessagesPass())
        return;
    const ppt_debug::objDestroyed id(object.getTag());
    try {
        LifeMessage(id, object, PPTObjectImpl::Life::Ending).send();
    } catch (const std::exception& failure) {
        host::raiseWarningAtEnd(id, fromUtf8(failure.what()));
    } catch (...) {
        host::raiseWarningAtEnd(id, L"a listener failed");
    }
}

bool wantsProgress() {
    return getFilter().getProgressMessagesPass();
}

bool wantsWarnings() {
    return getFilter().getWarningMessagesPass();
}

bool wantsErrors() {
    return getFilter().getErrorMessagesPass();
}

} // namespace vellox::ppt
