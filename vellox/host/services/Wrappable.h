/// @file
/// The thread between an object of the library and the object of a host language that stands for it. The
/// library keeps the slot and reports an object's end; everything else is the host binding's.

#ifndef VELLOX_HOST_SERVICES_WRAPPABLE_H
#define VELLOX_HOST_SERVICES_WRAPPABLE_H

#include <boost/shared_ptr.hpp>

#include "vellox/Api.h"

namespace vellox::ppt {
class PPTObject;
}

namespace objreg {

/// One object of the host, as the library sees it.
class VELLOX_API HostInterface {
public:
    virtual ~HostInterface();
    /// A handle on the object of the library behind this one; empty if there is none or it has ended.
    virtual boost::shared_ptr<vellox::ppt::PPTObject> getProxy() const = 0;
    /// The object of the library is ending: no handle on it may be used or released from here on.
    virtual void retract() noexcept = 0;
};

namespace factory::full {

/// The base of everything that a host may wrap. A copy is a new object, which no host has seen yet.
class Wrappable {
public:
    HostInterface* getHostInterface() const { return hostInterface_; }
    void setHostInterface(HostInterface* hostInterface) { hostInterface_ = hostInterface; }

protected:
    Wrappable() = default;
    Wrappable(const Wrappable&) {}
    Wrappable& operator=(const Wrappable&) = delete;
    virtual ~Wrappable();

private:
    HostInterface* hostInterface_ = nullptr;
};

} // namespace factory::full
} // namespace objreg

#endif
