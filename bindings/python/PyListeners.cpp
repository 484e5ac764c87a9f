#include "bindings/python/PyListeners.h"

#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyErrors.h"
#include "vellox/ppt/messages/MessageDispatcher.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt::python {

namespace {

PyListeningInstance& asListening(PyObject* object) {
    return *reinterpret_cast<PyListeningInstance*>(object);
}

PyRef takeListeners(PyObject* object) {
    return PyRef::take(std::exchange(asListening(object).listeners, nullptr));
}

bool hasListeners(PyObject* object) {
    PyObject* listeners = asListening(object).listeners;
    return listeners && PyList_GET_SIZE(listeners) > 0;
}

// Type slots

int traverse(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(Py_TYPE(self));
    Py_VISIT(asListening(self).listeners);
    return 0;
}

int clear(PyObject* self) {
    takeListeners(self);
    return 0;
}

/// Only the collector calls this, on all that it is about to end, before it takes anything apart.
void finalize(PyObject* self) {
    asListening(self).isUnreachable = true;
}

/// Gives the listeners to a new Python object of the same object of the library, which is kept.
void passListenersOn(PyObject* self) {
    const ObjectPtr object = slotOf(self).getProxy();
    PyRef listeners = takeListeners(self);
    slotOf(self).drop();
    const PyRef successor = toPython(object);
    asListening(successor.get()).listeners = listeners.release();
    PyClassSystem::get().keepListening(successor);
}

void deallocate(PyObject* self) {
    PyObject_GC_UnTrack(self);
    const bool mustPassOn = hasListeners(self) && !asListening(self).isUnreachable &&
                            slotOf(self).getFacade() && !PyClassSystem::get().isEnding();
    if (mustPassOn) {
        const ErrorKept kept;
        const bool isDone = guarded<bool>(false, [&] {
            passListenersOn(self);
            return true;
        });
        if (!isDone)
            PyErr_WriteUnraisable(nullptr);
    }
    takeListeners(self);
    clearInstance(self);
    freeInstance(self);
}

// Methods

bool isListening(PyObject* listeners, PyObject* listener) {
    for (Py_ssize_t i = 0; listeners && i < PyList_GET_SIZE(listeners); ++i)
        if (PyList_GET_ITEM(listeners, i) == listener)
            return true;
    return false;
}

/// The place of a listener; -1 if it isn't there. The methods of an object are made anew each time that they are
/// asked for, so that one that is equal counts too if the very same isn't there.
Py_ssize_t findListener(PyObject* listeners, PyObject* listener) {
    const bool mustBeSame = isListening(listeners, listener);
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(listeners); ++i) {
        const PyRef present = PyRef::share(PyList_GET_ITEM(listeners, i));
        const int isIt =
            mustBeSame ? present.get() == listener : PyObject_RichCompareBool(present.get(), listener, Py_EQ);
        if (isIt < 0)
            throw PythonError();
        if (isIt > 0)
            return i;
    }
    return -1;
}

PyObject* addListener(PyObject* self, PyObject* listener) {
    if (!PyCallable_Check(listener)) {
        PyErr_Format(PyExc_TypeError, "a listener is called, and %R can't be", listener);
        return nullptr;
    }
    PyListeningInstance& listening = asListening(self);
    if (!listening.listeners)
        listening.listeners = PyList_New(0);
    if (!listening.listeners || PyList_Append(listening.listeners, listener) < 0)
        return nullptr;
    listening.isUnreachable = false;
    return PyRef::share(Py_None).release();
}

PyObject* removeListener(PyObject* self, PyObject* listener) {
    return guarded<PyObject*>(nullptr, [&] {
        const PyRef listeners = PyRef::share(asListening(self).listeners);
        const Py_ssize_t position = listeners ? findListener(listeners.get(), listener) : -1;
        if (position >= 0 && PySequence_DelItem(listeners.get(), position) < 0)
            throw PythonError();
        if (!hasListeners(self))
            PyClassSystem::get().keepListening(PyRef());
        return PyRef::share(Py_None).release();
    });
}

} // namespace

std::vector<PyType_Slot> getListeningSlots() {
    return {{Py_tp_traverse, reinterpret_cast<void*>(traverse)},
            {Py_tp_clear, reinterpret_cast<void*>(clear)},
            {Py_tp_finalize, reinterpret_cast<void*>(finalize)},
            {Py_tp_dealloc, reinterpret_cast<void*>(deallocate)}};
}

std::vector<PyMethodDef> getListeningMethods() {
    return {{"addListener", addListener, METH_O,
             "addListener($self, listener, /)\n--\n\n"
             "addListener(listener: Callable[[MessageEventData], object]) -> None\n"
             "    Lets a callable hear every message that passes the filter. What it raises reaches\n"
             "    whoever caused the message."},
            {"removeListener", removeListener, METH_O,
             "removeListener($self, listener, /)\n--\n\n"
             "removeListener(listener: Callable[[MessageEventData], object]) -> None\n"
             "    Takes a listener off again. Does nothing for one that isn't listening."}};
}

void callListeners(PyObject* object, const MessageEventData& payload) {
    if (!hasListeners(object))
        return;
    const PyRef holder = PyRef::share(object);
    const PyRef turns = checked(PyList_AsTuple(asListening(object).listeners));
    const PyRef event = toPython(boost::make_shared<MessageEventData>(payload));
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(turns.get()); ++i) {
        PyObject* listener = PyTuple_GET_ITEM(turns.get(), i);
        // One that another has taken off in between isn't called.
        if (isListening(asListening(object).listeners, listener))
            checked(PyObject_CallOneArg(listener, event.get()));
    }
}

} // namespace vellox::ppt::python
