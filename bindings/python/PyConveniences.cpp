#include "bindings/python/PyConveniences.h"

#include <cstring>

namespace vellox::ppt::python {

namespace {

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
    }
    return PyRef::share(Py_False).release();
}

PyMethodDef presentationMethods[] = {
    {"__enter__", enter, METH_NOARGS, "Gives the presentation itself."},
    {"__exit__", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(leave)), METH_FASTCALL,
     "Closes the presentation, unless the block was left by an error."},
    {}};

} // namespace

PyMethodDef* findConveniences(const hostbind::BoundClass& bound) {
    return std::strcmp(bound.name, "Presentation") == 0 ? presentationMethods : nullptr;
}

} // namespace vellox::ppt::python
