// What the cost of a property of vellox.ppt is compared with: an attribute of a type that is written with Python's C
// interface alone, and the same calls in C++.

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <vellox/vellox.h>

#include <chrono>

namespace {

using namespace vellox::ppt;

/// An object with one attribute that holds a Python object, as lean as a getset can be.
struct Bare {
    PyObject_HEAD
    PyObject* value;
};

PyObject* getValue(PyObject* self, void*) {
    PyObject* value = reinterpret_cast<Bare*>(self)->value;
    return Py_NewRef(value ? value : Py_None);
}

int setValue(PyObject* self, PyObject* value, void*) {
    Py_XINCREF(value);
    Py_XSETREF(reinterpret_cast<Bare*>(self)->value, value);
    return 0;
}

void deallocate(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    Py_XDECREF(reinterpret_cast<Bare*>(self)->value);
    type->tp_free(self);
    Py_DECREF(type);
}

PyGetSetDef getSets[] = {{"value", getValue, setValue, nullptr, nullptr}, {}};
PyType_Slot slots[] = {
    {Py_tp_getset, getSets}, {Py_tp_dealloc, reinterpret_cast<void*>(deallocate)}, {0, nullptr}};
PyType_Spec spec = {"baseline.Bare", sizeof(Bare), 0, Py_TPFLAGS_DEFAULT, slots};

/// The seconds that one call takes, of so many.
template <class Call> double measure(unsigned long count, Call call) {
    const auto start = std::chrono::steady_clock::now();
    for (unsigned long i = 0; i < count; ++i)
        call();
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    return spent.count() / static_cast<double>(count);
}

template <class Value> void keep(Value&& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

template <class Call> void add(PyObject* results, const char* name, unsigned long count, Call call) {
    PyObject* seconds = PyFloat_FromDouble(measure(count, call));
    PyDict_SetItemString(results, name, seconds);
    Py_XDECREF(seconds);
}

/// The C++ calls behind the properties that properties.py measures.
PyObject* measureCalls(PyObject*, PyObject* argument) {
    const unsigned long count = PyLong_AsUnsignedLong(argument);
    PyObject* results = PyDict_New();
    TextBox box;
    box.setX(L"2in");
    Paragraph paragraph = box.add(L"text");
    paragraph.setBold(true);
    paragraph.setLevel(3);
    paragraph.setFontColor(L"navy");
    const std::wstring name = L"Remark";
    const std::wstring length = L"2in";
    const std::wstring color = L"navy";
    add(results, "Name get", count, [&] { keep(std::wstring(box.getName())); });
    add(results, "Name set", count, [&] { box.setName(name); });
    add(results, "X get", count, [&] { keep(std::wstring(box.getX().get().getRawValue())); });
    add(results, "X set", count, [&] { box.setX(length); });
    add(results, "Bold get", count, [&] { keep(paragraph.getBold()->getValue()); });
    add(results, "Bold set", count, [&] { paragraph.setBold(true); });
    add(results, "Level get", count, [&] { keep(paragraph.getLevel().get()); });
    add(results, "Level set", count, [&] { paragraph.setLevel(3); });
    add(results, "FontColor get", count, [&] { keep(std::wstring(paragraph.getFontColor()->getValue())); });
    add(results, "FontColor set", count, [&] { paragraph.setFontColor(color); });
    add(results, "Parent get", count, [&] { keep(paragraph.getParent()); });
    return results;
}

PyMethodDef functions[] = {{"measure_calls", measureCalls, METH_O, nullptr}, {}};
PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "baseline", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_baseline();

PyMODINIT_FUNC PyInit_baseline() {
    PyObject* module = PyModule_Create(&definition);
    PyObject* type = PyType_FromSpec(&spec);
    if (!module || !type || PyModule_AddObjectRef(module, "Bare", type) < 0)
        return nullptr;
    return module;
}
