/// @file
/// The overloads of one name as a Python method.

#ifndef BINDINGS_PYTHON_PYMETHOD_H
#define BINDINGS_PYTHON_PYMETHOD_H

#include "bindings/python/PyClass.h"
#include "bindings/python/PyRef.h"

namespace vellox::ppt::python {

/// A descriptor for a class's dictionary; a static method if the overloads are of the class and not of an object.
PyRef makeMethod(const PyClass& owner, const char* name);

} // namespace vellox::ppt::python

#endif
