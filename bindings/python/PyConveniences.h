/// @file
/// What Python users expect of objects besides what the class table says.

#ifndef BINDINGS_PYTHON_PYCONVENIENCES_H
#define BINDINGS_PYTHON_PYCONVENIENCES_H

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::python {

/// Methods of a class for Python alone; null if it has none.
PyMethodDef* findConveniences(const hostbind::BoundClass& bound);

} // namespace vellox::ppt::python

#endif
