/// @file
/// What the layer in Python (vellox/_conveniences.py) can't do without the inside of an object.

#ifndef BINDINGS_PYTHON_PYPRIMITIVES_H
#define BINDINGS_PYTHON_PYPRIMITIVES_H

#include <vector>

#include "bindings/python/PyRef.h"

namespace vellox::ppt::python {

/// Methods of all objects for that layer alone. Their names are such as no user's class has.
std::vector<PyMethodDef> getPrimitives();

} // namespace vellox::ppt::python

#endif
