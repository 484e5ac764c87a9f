#include "vellox/host/binding/HostCall.h"

#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/ppt/messages/MessageDispatcher.h"

#include <utility>

namespace vellox::ppt::hostbind {

namespace {

bool isListenerRunning = false;

/// What a listener threw that heard of an object under construction. Never ended: the host that it belongs to may have
/// ended before.
std::exception_ptr& getFailure() {
    static std::exception_ptr& failure = *new std::exception_ptr;
    return failure;
}

/// A flag that is up while this lives.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag), former_(std::exchange(flag, true)) {}
    ~Raised() { flag_ = former_; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
    bool former_;
};

} // namespace

HostCall::HostCall() : outer_(std::exchange(getFailure(), nullptr)) {}

HostCall::~HostCall() {
    // What nobody heard of, because the call failed in another way, ends last: code of the host may run then.
    std::swap(outer_, getFailure());
}

void HostCall::finish() {
    if (const std::exception_ptr failure = std::exchange(getFailure(), nullptr))
        std::rethrow_exception(failure);
}

void callHostListeners(const MessageEventData& payload, const std::function<void()>& callAll) {
    const auto source = payload.getMessage().getSource();
    const bool isMade = source && BindingRegistry::isUnderConstruction(*source);
    if (isListenerRunning && (isMade || (source && BindingRegistry::isEnding(*source))))
        return;
    const Raised running(isListenerRunning);
    try {
        callAll();
    } catch (...) {
        if (!isMade)
            throw;
        if (!getFailure())
            getFailure() = std::current_exception();
    }
}

} // namespace vellox::ppt::hostbind
