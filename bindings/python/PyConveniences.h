/// @file
/// What Python users expect of objects besides what the class table says.

#ifndef BINDINGS_PYTHON_PYCONVENIENCES_H
#define BINDINGS_PYTHON_PYCONVENIENCES_H

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::python {

/// Methods of a class for Python alone; null if it has none.
PyMethodDef* findConveniences(const hostbind::BoundClass& bound);

/// Warns of a Python object that is dropped with work in it that nobody else can finish.
void warnOfLoss(PyObject* self);

} // namespace vellox::ppt::python

#endif
