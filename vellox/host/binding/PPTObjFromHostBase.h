/// @file
/// A value of the host as an object of the library.

#ifndef VELLOX_HOST_BINDING_PPTOBJFROMHOSTBASE_H
#define VELLOX_HOST_BINDING_PPTOBJFROMHOSTBASE_H

#include <string>

#include "vellox/Api.h"
#include "vellox/host/binding/HostResult.h"
#include "vellox/host/services/Wrappable.h"
#include "vellox/host/values/hvArray.h"

namespace vellox::ppt::hostbind {

/// A view for the time of a call: the first object of a host value, if it is of a class or a subclass of that.
class VELLOX_API PPTObjFromHostBase {
public:
    /// @param className in full, such as "vellox.ppt.Paragraph"
    PPTObjFromHostBase(const hvArray& value, const std::string& className);

    /// The same of an object of the host, or of none.
    PPTObjFromHostBase(const objreg::HostInterface* object, const std::string& className);

    /// Whether there is such an object.
    bool hasImpl() const { return proxy_ != nullptr; }
    /// The facade that the host's object holds; empty if there is none.
    const ObjectPtr& getProxy() const { return proxy_; }

    /// Whether the object is of another class, too; false if there is none.
    bool isA(const std::string& className) const { return proxy_ && isA(*proxy_, className); }
    /// Whether a facade is of the class or a subclass.
    static bool isA(const PPTObject& object, const std::string& className);

private:
    ObjectPtr proxy_;
};

} // namespace vellox::ppt::hostbind

#endif
