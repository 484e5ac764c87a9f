#include "bindings/python/PyInstance.h"

#include "bindings/python/PyClass.h"
#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyRepr.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/Descriptions.h"

#include <new>

namespace vellox::ppt::python {

using hostbind::BindingRegistry;

// PySlot

PySlot::~PySlot() {
    drop();
}

void PySlot::hold(const PyClass& pyClass, ObjectPtr proxy) {
    while (proxy_) // a listener that hears of the end may make another one
        drop();
    class_ = &pyClass;
    proxy_ = std::move(proxy);
}

void PySlot::drop() {
    if (!proxy_)
        return;
    BindingRegistry::remove(proxy_, *this);
    // The object may end here, and listeners hear of that.
    const ErrorKept kept;
    ObjectPtr().swap(proxy_);
}

void PySlot::retract() noexcept {
    BindingRegistry::abandon(*proxy_);
    proxy_.reset();
}

// Instances

bool isInstance(PyObject* object) {
    return PyObject_TypeCheck(object, PyClassSystem::get().getRootType());
}

PyRef allocateInstance(PyTypeObject* type) {
    PyRef made = checked(type->tp_alloc(type, 0));
    new (&slotOf(made.get())) PySlot(made.get());
    return made;
}

namespace {

/// Warns of a Python object that is dropped with work in it that nobody else can finish.
void warnOfLoss(PyObject* self) {
    const PySlot& slot = slotOf(self);
    const ObjectPtr facade = slot.getProxy();
    if (!facade || slot.isGivenUp() || !isLost(slot.getClass()->bound, facade))
        return;
    const ErrorKept kept;
    const int result = guarded<int>(-1, [&] {
        // Nothing may hold the object any more, not even for the time of a call.
        const PyRef words = checked(represent(self));
        return PyErr_WarnFormat(PyExc_ResourceWarning, 1, "%U wasn't closed: its slides are lost",
                                words.get());
    });
    if (result < 0)
        PyErr_WriteUnraisable(nullptr);
}

} // namespace

void clearInstance(PyObject* self) {
    warnOfLoss(self);
    if (reinterpret_cast<PyInstanceHead*>(self)->weakReferences)
        PyObject_ClearWeakRefs(self);
    slotOf(self).~PySlot();
}

void freeInstance(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    type->tp_free(self);
    Py_DECREF(type);
}

PySlot* findSlot(PyObject* object) {
    PySlot& slot = slotOf(object);
    return slot.getFacade() && !BindingRegistry::isEnding(*slot.getFacade()) ? &slot : nullptr;
}

ObjectPtr requireFacade(PyObject* self, const PyClass& owner, Use use) {
    const PySlot& slot = slotOf(self);
    ObjectPtr facade = slot.getProxy();
    if (!facade)
        throw PythonError(PyExc_RuntimeError, std::string("this ") + Py_TYPE(self)->tp_name +
                                                  (slot.getClass() ? " has ended"
                                                                   : " isn't made yet: call "
                                                                     "super().__init__()"));
    // The Python class of an object may claim more than what the object holds.
    PyTypeObject* held = slot.getClass()->type;
    if (held != owner.type && !PyType_IsSubtype(held, owner.type))
        throw PythonError(PyExc_TypeError, std::string(held->tp_name) + " is no " + owner.type->tp_name);
    if (BindingRegistry::isEnding(*facade) && !(use == Use::ReadOfRoot && owner.isRoot()))
        throw PythonError(PyExc_RuntimeError, std::string("this ") + Py_TYPE(self)->tp_name +
                                                  " is ending: only Tag and Id are left");
    return facade;
}

PyRef toPython(const ObjectPtr& object) {
    PyClassSystem& host = PyClassSystem::get();
    if (!object)
        return allocateInstance(host.getRootType());
    auto* existing = static_cast<PySlot*>(&BindingRegistry::announce(object));
    if (Py_REFCNT(existing->getOwner()) == 0) { // it is just being dropped, and what ends with it asks
        BindingRegistry::remove(existing->getProxy(), *existing);
        existing = static_cast<PySlot*>(&BindingRegistry::announce(object));
    }
    const PySlot& slot = *existing;
    PyRef made = host.takeMade();
    return made.get() == slot.getOwner() ? made : PyRef::share(slot.getOwner());
}

} // namespace vellox::ppt::python
