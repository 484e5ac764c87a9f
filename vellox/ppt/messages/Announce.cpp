#include "vellox/ppt/messages/Announce.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/messages/MessageImpl.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

namespace vellox::ppt {

namespace {

// The dispatcher has one, and keeps it. Every object that comes or goes asks, so that even a handle would cost.
const MessageFilter& getFilter() {
    static const MessageFilter& filter =
        *new MessageFilter(MessageDispatcher::getTheDispatcher().getMessageFilter());
    return filter;
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

bool holdsShapes(const PPTNodeImpl& node) {
    const NodeType type = node.getNodeType();
    return type == NodeType::Slide || type == NodeType::Group;
}

} // namespace

void report(const MsgID& finding, const PPTNodeImpl& node) {
    ReportPlace place;
    for (const PPTNodeImpl *step = &node, *next = nullptr; step; step = next) {
        next = step->getParent(); // the presentation, the last, may be gone when all have heard it
        if (step->getNodeType() == NodeType::Slide)
            place.slide = step;
        else if (!place.shape && next && holdsShapes(*next))
            place.shape = step;
        step->hear(finding, place);
    }
}

bool isHeard(const PPTNodeImpl& node) {
    for (const PPTNodeImpl* step = &node; step; step = step->getParent())
        if (step->listens())
            return true;
    return false;
}

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
