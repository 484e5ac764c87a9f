#include "bindings/python/PyPrimitives.h"

#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/HostCall.h"

namespace vellox::ppt::python {

namespace {

PyRef makeTwin(PyObject* self) {
    const PyClass& owner = PyClassSystem::get().getClassOf(Py_TYPE(self));
    const ObjectPtr facade = requireFacade(self, owner, Use::Any);
    const PyClass& held = *slotOf(self).getClass();
    if (!held.bound.copy)
        throw PythonError(PyExc_TypeError, held.fullName + " objects can't be copied");
    hostbind::HostCall call;
    const ObjectPtr made = held.bound.copy(*facade);
    PyRef twin = allocateInstance(Py_TYPE(self));
    slotOf(twin.get()).hold(held, made);
    hostbind::BindingRegistry::announceForConstructor(made, slotOf(twin.get()));
    call.finish();
    return twin;
}

PyObject* twin(PyObject* self, PyObject*) {
    return guarded<PyObject*>(nullptr, [&] { return makeTwin(self).release(); });
}

PyObject* giveUp(PyObject* self, PyObject*) {
    slotOf(self).setGivenUp();
    return PyRef::share(Py_None).release();
}

} // namespace

std::vector<PyMethodDef> getPrimitives() {
    return {{"__vellox_twin__", twin, METH_NOARGS,
             "__vellox_twin__($self, /)\n--\n\n"
             "Another object of the same class, with copies of all that this one holds in the library."},
            {"__vellox_give_up__", giveUp, METH_NOARGS,
             "__vellox_give_up__($self, /)\n--\n\n"
             "Says that the user knows that what this stands for stays unfinished."}};
}

} // namespace vellox::ppt::python
