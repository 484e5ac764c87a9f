/// @file
/// The pairs of objects of the library and objects of the host.

#ifndef VELLOX_HOST_BINDING_BINDINGREGISTRY_H
#define VELLOX_HOST_BINDING_BINDINGREGISTRY_H

#include "vellox/Api.h"
#include "vellox/host/binding/HostResult.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox::ppt::hostbind {

/// Ties each object of the library to at most one object of the host at a time. The pair is kept in the object
/// itself, which says so to the host's object when it ends (HostInterface::retract()).
class VELLOX_API BindingRegistry {
public:
    /// The host object of an object of the library: the one that there is, or a new one of the object's own
    /// class. A host must be in force.
    static objreg::HostInterface& announce(const ObjectPtr& object);

    /// Ties an object to the host object that is being made for it. Another one that a listener got while the
    /// object was under construction is retracted.
    static void announceForConstructor(const ObjectPtr& object, objreg::HostInterface& hostObject);

    /// For a host that drops its object: unties the pair. The object of the library lives on if somebody holds
    /// it, and gets a new host object when it is announced again. Does nothing if another host object has
    /// taken over.
    static void remove(const ObjectPtr& object, const objreg::HostInterface& hostObject);

    /// @{ Whether a listener hears of an object that isn't whole: nothing may fail while one is under construction,
    /// and of one that is ending only what PPTObject itself has may be read.
    static bool isUnderConstruction(const PPTObject& object);
    static bool isEnding(const PPTObject& object);
    /// @}

    /// Makes a handle stand for nothing without releasing what it stood for. For a host object whose object
    /// ends, in HostInterface::retract().
    static void abandon(PPTObject& handle) noexcept;
};

} // namespace vellox::ppt::hostbind

#endif
