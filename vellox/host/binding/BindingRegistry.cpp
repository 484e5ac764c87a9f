#include "vellox/host/binding/BindingRegistry.h"

#include "vellox/host/binding/HostClassSystem.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/object/PPTClientImpl.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

#include <boost/make_shared.hpp>
#include <cstring>

namespace vellox::ppt::hostbind {

namespace {

/// An object that was announced by a listener while it was under construction stands under a class above its
/// own.
bool standsUnderOwnClass(const objreg::HostInterface& hostObject, const PPTObjectImpl& impl) {
    const ObjectPtr proxy = hostObject.getProxy();
    const BoundClass* own = findBoundClass(impl.getFullyQualifiedHostTypeName());
    return !own || (proxy && own->isInstance(*proxy));
}

} // namespace

objreg::HostInterface& BindingRegistry::announce(const ObjectPtr& object) {
    PPTObjectImpl* impl = implOf<PPTObjectImpl>(*object);
    objreg::HostInterface* existing = impl->getHostInterface();
    if (existing && standsUnderOwnClass(*existing, *impl))
        return *existing;
    const ObjectPtr own = impl->makeHandle();
    const BoundClass* bound = findBoundClass(impl->getFullyQualifiedHostTypeName());
    objreg::HostInterface& made = getHostClassSystem()->makeInstance(*bound, own);
    announceForConstructor(own, made);
    return made;
}

void BindingRegistry::announceForConstructor(const ObjectPtr& object, objreg::HostInterface& hostObject) {
    PPTObjectImpl* impl = implOf<PPTObjectImpl>(*object);
    objreg::HostInterface* former = impl->getHostInterface();
    if (former && former != &hostObject) {
        former->retract();
        intrusive_ptr_release(impl); // for the handle that was abandoned there; `object` holds on
    }
    impl->setHostInterface(&hostObject);
    // Presentations report their progress while they have a client.
    if (implAs<PresentationImpl>(*object) && !impl->getClient())
        impl->setClient(boost::make_shared<PPTClientImpl>());
}

void BindingRegistry::remove(const ObjectPtr& object, const objreg::HostInterface& hostObject) {
    PPTObjectImpl* impl = object ? implOf<PPTObjectImpl>(*object) : nullptr;
    if (!impl || impl->getHostInterface() != &hostObject)
        return;
    impl->setHostInterface(nullptr);
    impl->setClient({});
}

bool BindingRegistry::isUnderConstruction(const PPTObject& object) {
    return implOf<PPTObjectImpl>(object)->getLife() == PPTObjectImpl::Life::UnderConstruction;
}

bool BindingRegistry::isEnding(const PPTObject& object) {
    return implOf<PPTObjectImpl>(object)->getLife() == PPTObjectImpl::Life::Ending;
}

void BindingRegistry::abandon(PPTObject& handle) noexcept {
    ObjectAccess::abandon(handle);
}

} // namespace vellox::ppt::hostbind
