#include "bindings/python/PyConveniences.h"

#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "bindings/python/PyRepr.h"
#include "vellox/host/binding/BindingRegistry.h"

#include <cstring>

namespace vellox::ppt::python {

namespace {

// with

PyObject* enter(PyObject* self, PyObject*) {
    return PyRef::share(self).release();
}

/// Closes the presentation, unless the block was left by an error. One that nothing has opened yet becomes a copy of
/// its template all the same.
PyObject* leave(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
    const bool isSuccess = count == 0 || arguments[0] == Py_None;
    if (isSuccess) {
        for (const char* step : {"open", "close"})
            if (!PyRef::take(PyObject_CallMethod(self, step, nullptr)))
                return nullptr;
    } else {
        slotOf(self).setGivenUp();
    }
    return PyRef::share(Py_False).release();
}

PyMethodDef presentationMethods[] = {
    {"__enter__", enter, METH_NOARGS, "__enter__($self, /)\n--\n\nGives the presentation itself."},
    {"__exit__", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(leave)), METH_FASTCALL,
     "__exit__($self, type=None, value=None, traceback=None, /)\n--\n\n"
     "Closes the presentation, unless the block was left by an error."},
    {}};

// copy

/// What a user's class has put into an object goes along.
void copyAttributes(PyObject* self, const PyRef& copied, PyObject* memo) {
    PyRef attributes = PyRef::take(PyObject_GetAttrString(self, "__dict__"));
    PyErr_Clear(); // of an object of vellox's own class, which has none
    if (!attributes)
        return;
    if (memo) {
        const PyRef module = checked(PyImport_ImportModule("copy"));
        attributes = checked(PyObject_CallMethod(module.get(), "deepcopy", "OO", attributes.get(), memo));
    }
    const PyRef own = checked(PyObject_GetAttrString(copied.get(), "__dict__"));
    if (PyDict_Update(own.get(), attributes.get()) < 0)
        throw PythonError();
}

/// @param memo the objects that are copied already; null for a copy that isn't deep
PyRef copyInstance(PyObject* self, PyObject* memo) {
    const PyClass& owner = PyClassSystem::get().getClassOf(Py_TYPE(self));
    const ObjectPtr facade = requireFacade(self, owner, Use::Any);
    const PyClass& held = *slotOf(self).getClass();
    if (!held.bound.copy)
        throw PythonError(PyExc_TypeError, held.fullName + " objects can't be copied");
    LibraryCall call;
    const ObjectPtr made = held.bound.copy(*facade);
    const PyRef copied = allocateInstance(Py_TYPE(self));
    slotOf(copied.get()).hold(held, made);
    hostbind::BindingRegistry::announceForConstructor(made, slotOf(copied.get()));
    if (memo) { // it may hold itself
        const PyRef key = checked(PyLong_FromVoidPtr(self));
        if (PyDict_SetItem(memo, key.get(), copied.get()) < 0)
            throw PythonError();
    }
    copyAttributes(self, copied, memo);
    call.finish();
    return copied;
}

PyObject* copyShallow(PyObject* self, PyObject*) {
    return guarded<PyObject*>(nullptr, [&] { return copyInstance(self, nullptr).release(); });
}

PyObject* copyDeep(PyObject* self, PyObject* memo) {
    if (!PyDict_Check(memo)) {
        PyErr_Format(PyExc_TypeError, "a memo is a dictionary, not %R", memo);
        return nullptr;
    }
    return guarded<PyObject*>(nullptr, [&] { return copyInstance(self, memo).release(); });
}

PyMethodDef objectMethods[] = {
    {"__copy__", copyShallow, METH_NOARGS,
     "__copy__($self, /)\n--\n\nA copy with copies of all that it holds, without tag, name and parent."},
    {"__deepcopy__", copyDeep, METH_O,
     "__deepcopy__($self, memo, /)\n--\n\nThe same; what your class has added is copied too."},
    {}};

} // namespace

PyMethodDef* findConveniences(const hostbind::BoundClass& bound) {
    if (std::strcmp(bound.name, "Object") == 0)
        return objectMethods;
    return std::strcmp(bound.name, "Presentation") == 0 ? presentationMethods : nullptr;
}

void warnOfLoss(PyObject* self) {
    const PySlot& slot = slotOf(self);
    const ObjectPtr facade = slot.getProxy();
    const bool isOnlyHandle = facade.use_count() == 2; // beside the slot's own
    if (!isOnlyHandle || slot.isGivenUp() || !slot.getClass()->bound.isUnfinished ||
        !slot.getClass()->bound.isUnfinished(*facade))
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

} // namespace vellox::ppt::python
