/// @file
/// Owning references to Python objects, and texts both ways.

#ifndef BINDINGS_PYTHON_PYREF_H
#define BINDINGS_PYTHON_PYREF_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <string>
#include <utility>

namespace vellox::ppt::python {

/// One reference to a Python object, or none.
class PyRef {
public:
    PyRef() = default;
    /// Takes over a reference that the caller owns; null stands for none.
    static PyRef take(PyObject* object) { return PyRef(object); }
    /// Adds a reference of its own.
    static PyRef share(PyObject* object) {
        Py_XINCREF(object);
        return PyRef(object);
    }
    PyRef(PyRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    PyRef(const PyRef& other) : object_(other.object_) { Py_XINCREF(object_); }
    PyRef& operator=(PyRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~PyRef() { Py_XDECREF(object_); }

    PyObject* get() const { return object_; }
    /// Gives the reference to the caller.
    PyObject* release() { return std::exchange(object_, nullptr); }
    explicit operator bool() const { return object_ != nullptr; }

private:
    explicit PyRef(PyObject* object) : object_(object) {}

    PyObject* object_ = nullptr;
};

/// Takes over what a function of Python's returned.
/// @throws PythonError if that is null, which says that an error is set
PyRef checked(PyObject* object);

/// @{ Texts. Both sides hold whole code points.
/// @throws PythonError for a text with lone surrogates
std::wstring toWide(PyObject* text);
PyRef toPython(const std::wstring& text);
/// @}

/// Keeps the error that is set aside while other Python code runs.
class ErrorKept {
public:
    ErrorKept() { PyErr_Fetch(&type_, &value_, &traceback_); }
    ~ErrorKept() { PyErr_Restore(type_, value_, traceback_); }
    ErrorKept(const ErrorKept&) = delete;
    ErrorKept& operator=(const ErrorKept&) = delete;

private:
    PyObject* type_ = nullptr;
    PyObject* value_ = nullptr;
    PyObject* traceback_ = nullptr;
};

} // namespace vellox::ppt::python

#endif
