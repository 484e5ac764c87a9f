/// @file
/// The one place that all messages go through.
///
///     auto dispatcher = MessageDispatcher::getTheDispatcher();
///     auto token = dispatcher.addListener([](const MessageEventData& event) {
///         std::wcout << event.getMessage().formatAsText() << L"\n";
///     });
///     ...
///     dispatcher.removeListener(token);

#ifndef VELLOX_PPT_MESSAGES_MESSAGEDISPATCHER_H
#define VELLOX_PPT_MESSAGES_MESSAGEDISPATCHER_H

#include <functional>

#include "vellox/Api.h"
#include "vellox/ppt/messages/Message.h"
#include "vellox/ppt/messages/MessageFilter.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class MessageDispatcherImpl;
class MessageEventDataImpl;

/// What a listener gets.
class VELLOX_API MessageEventData : public PPTObject {
public:
    explicit MessageEventData(const Message& message);
    Message getMessage() const;

private:
    friend class MessageEventDataImpl;
    explicit MessageEventData(MessageEventDataImpl* impl);
    const MessageEventDataImpl* pimpl() const;
};

/// Judges messages by its filter and hands them to its listeners. There is one for the process, and its
/// settings outlive any presentation.
class VELLOX_API MessageDispatcher : public PPTObject {
public:
    using Listener = std::function<void(const MessageEventData&)>;
    /// Names a listener; never 0.
    using ListenerToken = unsigned int;

    static MessageDispatcher getTheDispatcher();

    /// A handle on the filter in force: what is changed through it takes effect at once.
    MessageFilter getMessageFilter() const;
    /// Lets all listeners hear a message, in the order in which they were added, if it passes the filter.
    /// What a listener throws comes out here.
    void dispatch(const Message& message);

    /// Adds a listener. An empty function hears nothing. What a listener makes and lets go isn't announced, to no
    /// listener. The source of a message about an object's end is all but gone: its tag may be read,
    /// and no handle on it may be kept beyond the listener's call. What a listener throws on such a message
    /// becomes a warning, since an end can't be stopped. A listener that throws on a message about an object's
    /// making ends the object: no handle on it, and no message about it, may have been kept then.
    ListenerToken addListener(const Listener& listener);
    /// Does nothing for a token that names no listener.
    void removeListener(ListenerToken token);

private:
    friend class MessageDispatcherImpl;
    MessageDispatcher();
    explicit MessageDispatcher(MessageDispatcherImpl* impl);
    MessageDispatcherImpl* pimpl();
    const MessageDispatcherImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
