/// @file
/// What the binding asks of a host's class system. An adapter for a host language implements this, puts it in
/// force, and calls HostInitialize_vellox_ppt().

#ifndef VELLOX_HOST_BINDING_HOSTCLASSSYSTEM_H
#define VELLOX_HOST_BINDING_HOSTCLASSSYSTEM_H

#include <string>

#include "vellox/Api.h"
#include "vellox/host/binding/BoundClass.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox::ppt {
class MessageEventData;
}

namespace vellox::ppt::hostbind {

class HostClassSystem;

/// A package, described to a host.
class VELLOX_API HostPackageInfo {
public:
    virtual ~HostPackageInfo();
    virtual const char* getFullName() const = 0;
    /// Adds what the package holds. The host calls this when it first looks into the package.
    virtual void addContents(HostClassSystem& host) const = 0;
};

/// One class of the host while it is declared.
class VELLOX_API HostClass {
public:
    virtual ~HostClass();
    /// @param fullName may name a class of the host's own
    virtual void declareSuperclass(const std::string& fullName) = 0;
    virtual void declareConstructor(const BoundConstructor& constructor) = 0;
    virtual void declareProperty(const BoundProperty& property) = 0;
    /// Overloads come one after another, in their order.
    virtual void declareMethod(const BoundMethod& method) = 0;
    virtual void declareEvent(const BoundEvent& event) = 0;
};

/// Declares one class: its superclasses, its constructors, its properties and methods, its events.
VELLOX_API void initializeClass(HostClass& hostClass, const BoundClass& bound);

/// One host. Everything is called on the host's one interpreter thread.
class VELLOX_API HostClassSystem {
public:
    virtual ~HostClassSystem();

    /// @{ Packages, by their full names.
    virtual bool hasPackage(const std::string& fullName) const = 0;
    /// Adds a package to its parent. What is given lives as long as the module.
    virtual void addPackage(const HostPackageInfo& package) = 0;
    /// Adds a class to the package that it stands in; the host calls initializeClass() at first use, for
    /// superclasses first. What is given lives as long as the module.
    virtual void addClass(const BoundClass& bound) = 0;
    /// Loads the module's own file once more, so that no code goes away under objects of its classes.
    virtual void keepLoaded() = 0;
    /// @}

    /// Makes a host object of a class, which holds a handle on an object of the library.
    virtual objreg::HostInterface& makeInstance(const BoundClass& bound, const ObjectPtr& object) = 0;
    /// Whether listeners can still be reached through a host object.
    virtual bool isValid(const objreg::HostInterface& hostObject) const = 0;
    /// Lets the listeners of an event on a host object hear it, inside this call.
    virtual void fireEvent(objreg::HostInterface& hostObject, const BoundEvent& event,
                           const MessageEventData& payload) = 0;
    /// Turns the exception in flight into an error of the host. To be called in a handler.
    virtual void translateException() = 0;
};

/// Puts a host in force, or none. It isn't owned, and must outlive all objects that it knows.
VELLOX_API void setHostClassSystem(HostClassSystem* host);
/// The host in force; null if there is none.
VELLOX_API HostClassSystem* getHostClassSystem();

} // namespace vellox::ppt::hostbind

#endif
