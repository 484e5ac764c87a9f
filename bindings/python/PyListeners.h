/// @file
/// Python callables that listen to an event of an object.
///
/// The listeners hang on the object's Python object, which the collector of cycles sees through: a listener that
/// refers to that object, and that nothing else refers to, is collected together with it. A Python object that is
/// merely dropped while it has listeners passes them on, so that they stay in force.

#ifndef BINDINGS_PYTHON_PYLISTENERS_H
#define BINDINGS_PYTHON_PYLISTENERS_H

#include <vector>

#include "bindings/python/PyInstance.h"

namespace vellox::ppt {
class MessageEventData;
}

namespace vellox::ppt::python {

/// The layout of Python objects that can have listeners.
struct PyListeningInstance {
    PyInstance base;
    PyObject* listeners; ///< null or a list
    bool isUnreachable;  ///< the collector has found it in a cycle
};

/// @{ The type slots and the methods that a type whose objects have listeners needs.
std::vector<PyType_Slot> getListeningSlots();
std::vector<PyMethodDef> getListeningMethods();
/// @}

/// Calls the listeners of an object, in the order in which they were added.
/// @throws PythonError what a listener raises
void callListeners(PyObject* object, const MessageEventData& payload);

} // namespace vellox::ppt::python

#endif
