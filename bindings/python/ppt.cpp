// The module vellox.ppt.

#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyRef.h"
#include "vellox/foundation/MsgID.h"
#include "vellox/host/binding/Module.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/ppt/messages/MessageDispatcher.h"

namespace vellox::ppt::python {

namespace {

/// The services of the process, but for warnings, which Python shows, counts or turns into errors.
class PyServices : public host::HostServices {
public:
    void raiseWarning(const MsgID&, const std::wstring& text) override {
        const PyRef words = toPython(text);
        if (PyErr_WarnFormat(getWarningType(), 1, "%U", words.get()) < 0)
            throw PythonError();
    }
};

PyServices& getServices() {
    static PyServices& services = *new PyServices; // objects that outlive the interpreter may still ask it
    return services;
}

/// Python is about to end: from here on the library is on its own.
PyObject* endModule(PyObject*, PyObject*) {
    return guarded<PyObject*>(nullptr, [] {
        HostTerminate_vellox_ppt();
        PyClassSystem::get().end();
        host::setHostServices(nullptr);
        return PyRef::share(Py_None).release();
    });
}

PyMethodDef endMethod = {"endModule", endModule, METH_NOARGS, nullptr};

void callAtExit() {
    const PyRef atExit = checked(PyImport_ImportModule("atexit"));
    const PyRef function = checked(PyCFunction_New(&endMethod, nullptr));
    checked(PyObject_CallMethod(atExit.get(), "register", "O", function.get()));
}

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "vellox.ppt",
                          "PowerPoint decks by program.\n\n"
                          "    import vellox.ppt as ppt\n\n"
                          "    with ppt.Presentation(\"report.pptx\") as deck:\n"
                          "        slide = deck.add(\"Title and Content\")\n"
                          "        slide.replace(\"Title\", \"Weekly report\")\n"
                          "        slide.add(\"Content\", \"All went well.\")\n",
                          -1, // its state is the process's
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

/// The functions of the layer in Python, which stand beside the classes.
void addUnits(PyObject* module) {
    const PyRef units = checked(PyImport_ImportModule("vellox._units"));
    const PyRef names = checked(PyObject_GetAttrString(units.get(), "__all__"));
    const PyRef all = checked(PySequence_Tuple(names.get()));
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(all.get()); ++i) {
        PyObject* name = PyTuple_GET_ITEM(all.get(), i);
        const PyRef function = checked(PyObject_GetAttr(units.get(), name));
        if (PyObject_SetAttr(module, name, function.get()) < 0)
            throw PythonError();
    }
}

PyObject* makeModule() {
    if (PyInterpreterState_Get() != PyInterpreterState_Main())
        throw PythonError(PyExc_ImportError, "vellox.ppt works in the main interpreter only");
    PyRef module = checked(PyModule_Create(&definition));
    addErrorTypes(module.get());
    host::setHostServices(&getServices());
    hostbind::setHostClassSystem(&PyClassSystem::get());
    HostInitialize_vellox_ppt();
    PyClassSystem::get().addTypes(module.get());
    addUnits(module.get());
    if (PyModule_AddStringConstant(module.get(), "__version__", VELLOX_VERSION) < 0)
        throw PythonError();
    callAtExit();
    return module.release();
}

} // namespace

} // namespace vellox::ppt::python

PyMODINIT_FUNC PyInit_ppt();

PyMODINIT_FUNC PyInit_ppt() {
    using namespace vellox::ppt::python;
    return guarded<PyObject*>(nullptr, makeModule);
}
