/// @file
/// Results of the library as Python objects.

#ifndef BINDINGS_PYTHON_PYRESULTS_H
#define BINDINGS_PYTHON_PYRESULTS_H

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/HostResult.h"

namespace vellox::ppt::python {

/// The empty array is None, arrays and cells are lists, and cells of several columns are lists of tuples.
PyRef toPython(const hostbind::HostResult& result);

} // namespace vellox::ppt::python

#endif
