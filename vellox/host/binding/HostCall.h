/// @file
/// What one call from a host into the library is, and what its listeners may do meanwhile. The same for all hosts.
///
///     HostCall call;
///     const HostResult result = property.get(*facade);
///     call.finish();

#ifndef VELLOX_HOST_BINDING_HOSTCALL_H
#define VELLOX_HOST_BINDING_HOSTCALL_H

#include <exception>
#include <functional>

#include "vellox/Api.h"

namespace vellox::ppt {
class MessageEventData;
}

namespace vellox::ppt::hostbind {

/// A call from a host into the library. What a listener throws while an object is under construction waits until the
/// library has come to the end of the call: the object is whole then, and whoever got hold of it may use it.
class VELLOX_API HostCall {
public:
    HostCall();
    ~HostCall();
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    /// Throws what waits.
    void finish();

private:
    std::exception_ptr outer_;
};

/// Lets a host's listeners hear of a message, in HostClassSystem::fireEvent(). A listener that makes objects of its own
/// doesn't hear of their lives, or it would never come to an end.
/// @param callAll calls the listeners; what it throws goes on, or waits (see HostCall)
VELLOX_API void callHostListeners(const MessageEventData& payload, const std::function<void()>& callAll);

} // namespace vellox::ppt::hostbind

#endif
