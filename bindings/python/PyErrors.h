/// @file
/// Errors both ways: what the library throws becomes a Python error, and a Python error that is raised below
/// the library, by a listener say, travels through it as an exception.

#ifndef BINDINGS_PYTHON_PYERRORS_H
#define BINDINGS_PYTHON_PYERRORS_H

#include <exception>
#include <memory>
#include <string>

#include "bindings/python/PyRef.h"

namespace vellox::ppt::python {

/// The Python error that was set, on its way through C++. Copies share it.
class PythonError : public std::exception {
public:
    /// Takes the error that is set.
    PythonError();
    /// Sets an error of a type and takes it.
    PythonError(PyObject* type, const std::string& text);

    const char* what() const noexcept override;
    /// Sets the error again. To be called once.
    void restore() const;

private:
    struct Fetched;
    void fetch();

    std::shared_ptr<Fetched> fetched_;
};

/// Makes the error types and the type of warnings, and adds them to the module.
void addErrorTypes(PyObject* module);

/// The category of the library's warnings.
PyObject* getWarningType();

/// Sets the Python error that the exception in flight stands for. To be called in a handler.
void translateToPython();

/// Runs what may throw.
/// @return its result, or `failure` with a Python error set
template <class Result, class Function> Result guarded(Result failure, Function function) noexcept {
    try {
        return function();
    } catch (...) {
        translateToPython();
        return failure;
    }
}

} // namespace vellox::ppt::python

#endif
