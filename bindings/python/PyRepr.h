/// @file
/// What an object is called in the interpreter: its class, its name, the start of its text.

#ifndef BINDINGS_PYTHON_PYREPR_H
#define BINDINGS_PYTHON_PYREPR_H

#include "bindings/python/PyRef.h"

namespace vellox::ppt::python {

/// The type slot `tp_repr`: such as `<vellox.ppt.TextBox 'Remark': 'Not in the annual means'>`.
PyObject* represent(PyObject* self);

} // namespace vellox::ppt::python

#endif
