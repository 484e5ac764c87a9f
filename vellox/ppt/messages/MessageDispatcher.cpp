#include "vellox/ppt/messages/MessageDispatcher.h"

#include "vellox/ppt/object/PPTObjectImpl.h"

#include <map>
#include <vector>

namespace vellox::ppt {

class MessageEventDataImpl : public PPTObjectImpl {
public:
    explicit MessageEventDataImpl(const Message& given) : message(given) {}
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.MessageEventData"; }
    boost::shared_ptr<PPTObject> makeHandle() override {
        return boost::shared_ptr<PPTObject>(new MessageEventData(this));
    }

    Message message;
};

class MessageDispatcherImpl : public PPTObjectImpl {
public:
    using Token = MessageDispatcher::ListenerToken;

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.MessageDispatcher"; }
    boost::shared_ptr<PPTObject> makeHandle() override {
        return boost::shared_ptr<PPTObject>(new MessageDispatcher(this));
    }
    void dispatch(const Message& message);

    MessageFilter filter;
    std::map<Token, MessageDispatcher::Listener>
        listeners; // tokens grow, so that the order is that of adding
    Token lastToken = 0;

private:
    void callListeners(const Message& message) const;

    bool isListenerRunning_ = false;
};

namespace {

bool isAboutALife(const Message& message) {
    const boost::shared_ptr<PPTObject> source = message.getSource();
    return source && ObjectAccess::getImpl(*source)->getLife() != PPTObjectImpl::Life::Whole;
}

/// Puts a flag back as it was.
class Restored {
public:
    explicit Restored(bool& flag) : flag_(flag), former_(flag) {}
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;
    ~Restored() { flag_ = former_; }

private:
    bool& flag_;
    bool former_;
};

} // namespace

void MessageDispatcherImpl::dispatch(const Message& message) {
    if (!message.passesFilter(filter) || listeners.empty())
        return;
    // Of the objects that listeners make and end nobody hears, or that would never come to an end.
    if (isListenerRunning_ && isAboutALife(message))
        return;
    const Restored restored(isListenerRunning_);
    isListenerRunning_ = true;
    callListeners(message);
}

void MessageDispatcherImpl::callListeners(const Message& message) const {
    const MessageEventData event(message);
    // A listener may add and remove listeners; one that is gone by its turn isn't called.
    std::vector<Token> tokens;
    for (const auto& entry : listeners)
        tokens.push_back(entry.first);
    for (const Token token : tokens) {
        const auto found = listeners.find(token);
        if (found == listeners.end())
            continue;
        const MessageDispatcher::Listener listener = found->second;
        if (listener)
            listener(event);
    }
}

MessageEventData::MessageEventData(const Message& message)
    : MessageEventData(new MessageEventDataImpl(message)) {}
MessageEventData::MessageEventData(MessageEventDataImpl* impl) : PPTObject(impl) {}

const MessageEventDataImpl* MessageEventData::pimpl() const {
    return implOf<MessageEventDataImpl>(*this);
}

Message MessageEventData::getMessage() const {
    return pimpl()->message;
}

MessageDispatcher::MessageDispatcher() : MessageDispatcher(new MessageDispatcherImpl) {}
MessageDispatcher::MessageDispatcher(MessageDispatcherImpl* impl) : PPTObject(impl) {}

MessageDispatcherImpl* MessageDispatcher::pimpl() {
    return implOf<MessageDispatcherImpl>(*this);
}

const MessageDispatcherImpl* MessageDispatcher::pimpl() const {
    return implOf<MessageDispatcherImpl>(*this);
}

MessageDispatcher MessageDispatcher::getTheDispatcher() {
    // Never ended: objects that die in the last moments of the process still report to it.
    static const MessageDispatcher& theDispatcher = *new MessageDispatcher;
    return theDispatcher;
}

MessageFilter MessageDispatcher::getMessageFilter() const {
    return pimpl()->filter;
}

void MessageDispatcher::dispatch(const Message& message) {
    pimpl()->dispatch(message);
}

MessageDispatcher::ListenerToken MessageDispatcher::addListener(const Listener& listener) {
    pimpl()->listeners[++pimpl()->lastToken] = listener;
    return pimpl()->lastToken;
}

void MessageDispatcher::removeListener(ListenerToken token) {
    pimpl()->listeners.erase(token);
}

} // namespace vellox::ppt
