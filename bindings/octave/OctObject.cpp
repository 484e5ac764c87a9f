#include "bindings/octave/OctObject.h"

#include "bindings/octave/OctClassSystem.h"
#include "bindings/octave/OctErrors.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/Descriptions.h"

#include <unordered_map>

namespace vellox::ppt::oct {

using namespace hostbind;

DEFINE_OV_TYPEID_FUNCTIONS_AND_DATA(OctSlot, "vellox_slot", "vellox_slot");

namespace {

/// The slots by their Octave objects.
auto& getSlots() {
    static auto& slots = *new std::unordered_map<const octave::cdef_object_rep*, OctSlot*>;
    return slots;
}

/// An object of Octave that is used without counting as a holder of it.
union Borrowed {
    octave::cdef_object object;

    explicit Borrowed(const octave::cdef_object_rep* rep)
        : object(const_cast<octave::cdef_object_rep*>(rep)) {}
    ~Borrowed() {}
    Borrowed(const Borrowed&) = delete;
    Borrowed& operator=(const Borrowed&) = delete;
};

} // namespace

// OctSlot

OctSlot& OctSlot::put(const octave::cdef_object& object) {
    static const bool isRegistered = [] {
        OctSlot::register_type();
        return true;
    }();
    static_cast<void>(isRegistered);
    auto* slot = new OctSlot;
    const octave_value holder(slot);
    slot->owner_ = object.get_rep();
    getSlots()[slot->owner_] = slot;
    octave::cdef_object(object).put(kProperty, holder);
    return *slot;
}

namespace {

/// Warns of an object that is dropped with work in it that nobody else can finish.
void warnOfLoss(const BoundClass& bound, const ObjectPtr& facade) {
    if (OctClassSystem::get().isEnding() || !isLost(bound, facade))
        return;
    const std::string name = toUtf8(std::get<std::wstring>(getTelling(bound, *facade)));
    warnAtEnd("vellox:notClosed", name + " wasn't closed: its slides are lost");
}

} // namespace

OctSlot::~OctSlot() {
    const auto own = getSlots().find(owner_);
    if (own != getSlots().end() && own->second == this) // an object that is made once more has another by now
        getSlots().erase(own);
    owner_ = nullptr;
    drop();
}

octave_value OctSlot::getOwner() const {
    if (!owner_)
        return octave_value();
    const Borrowed borrowed(owner_);
    return octave::to_ov(octave::cdef_object(borrowed.object));
}

void OctSlot::hold(const BoundClass& bound, ObjectPtr proxy) {
    while (proxy_) // a listener that hears of the end may make another one
        drop();
    class_ = &bound;
    proxy_ = std::move(proxy);
}

void OctSlot::drop() {
    if (!proxy_)
        return;
    const ObjectPtr held = proxy_; // a handle beside the slot's own
    warnOfLoss(*class_, held);
    BindingRegistry::remove(proxy_, *this);
    ObjectPtr dropped;
    dropped.swap(proxy_);
    OctClassSystem::get().letEnd(std::move(dropped));
}

void OctSlot::retract() noexcept {
    BindingRegistry::abandon(*proxy_);
    proxy_.reset();
}

// Objects

OctSlot* findSlot(const octave::cdef_object& object) {
    const auto found = getSlots().find(object.get_rep());
    return found == getSlots().end() ? nullptr : found->second;
}

OctSlot* findSlot(const octave_value& value) {
    return value.is_classdef_object() ? findSlot(value.classdef_object_value()->get_object_ref()) : nullptr;
}

bool isBoundObject(const octave_value& value) {
    return value.is_classdef_object() && (findSlot(value) || value.classdef_object_value()->is_instance_of(
                                                                 std::string(kPackage) + ".Null"));
}

ObjectPtr requireFacade(const octave_value& self, const BoundClass& owner, Use use) {
    const OctSlot* slot = findSlot(self);
    ObjectPtr facade = slot ? slot->getProxy() : ObjectPtr();
    const std::string name = "this " + self.class_name();
    if (!facade && self.is_classdef_object() && self.numel() != 1)
        raiseError("vellox:notOneObject",
                   "an array of " + self.class_name() + " isn't one object: index it first");
    if (!facade)
        raiseError("vellox:noObject",
                   name + (slot && slot->getClass() ? " has ended" : " stands for nothing"));
    if (!owner.isInstance(*facade))
        raiseError("vellox:noObject", name + " is no " + owner.getFullName());
    const bool isRoot = owner.getSuperclass() == &getBoundClasses().front();
    if (BindingRegistry::isEnding(*facade) && !(use == Use::ReadOfRoot && isRoot))
        raiseError("vellox:noObject", name + " is ending: only Tag and Id are left");
    return facade;
}

octave::cdef_object allocateObject(const BoundClass& bound) {
    octave::cdef_class octaveClass = getInterpreter().get_cdef_manager().find_class(bound.getFullName());
    octave::cdef_object object(new octave::handle_cdef_object);
    object.set_class(octaveClass);
    octaveClass.initialize_object(object);
    object.mark_as_constructed();
    return object;
}

octave_value toOctave(const ObjectPtr& object) {
    if (!object)
        return octave::to_ov(allocateObject(getBoundClasses().front()));
    OctClassSystem& host = OctClassSystem::get();
    auto* slot = static_cast<OctSlot*>(&BindingRegistry::announce(object));
    octave_value owner = slot->getOwner();
    if (owner.is_undefined()) { // it is just being dropped, and what ends with it asks
        BindingRegistry::remove(slot->getProxy(), *slot);
        slot = static_cast<OctSlot*>(&BindingRegistry::announce(object));
        owner = slot->getOwner();
    }
    host.releaseMade();
    return owner;
}

} // namespace vellox::ppt::oct
