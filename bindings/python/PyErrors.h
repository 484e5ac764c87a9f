/// @file
/// Errors both ways: what the library throws becomes a Python error, and a Python error that is raised below
/// the library, by a listener say, travels through it as an exception.

#ifndef BINDINGS_PYTHON_PYERRORS_H
#define BINDINGS_PYTHON_PYERRORS_H

#include <exception>
#include <memory>
#include <string>

#include "bindings/python/PyRef.h"
#include "vellox/foundation/IdentifiedException.h"

namespace vellox::ppt {
class PPTObject;
}

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

/// A call into the library, for errors that tell less than Python users expect: which value can't be used, what is
/// wrong with a file.
class Given {
public:
    /// @param self what the call is on; null for none
    /// @param member of the class of that name; null for the making of an object
    Given(const PPTObject* self, const char* className, const char* member, PyObject* const* values,
          std::size_t count)
        : self_(self),
          className_(className),
          member_(member),
          values_(values),
          count_(count) {}

    /// Runs what may throw.
    /// @throws PythonError for an identified error, which is one of Python's from here on
    template <class Function> auto run(Function function) const {
        try {
            return function();
        } catch (const hostfx::except::IMsgIDException& error) {
            setIdentifiedError(error);
            throw PythonError();
        }
    }

    const PPTObject* getSelf() const { return self_; }
    /// Such as "Paragraph.Bold was given 'yes'."
    std::string describe() const;

private:
    void setIdentifiedError(const hostfx::except::IMsgIDException& error) const;

    const PPTObject* self_;
    const char* className_;
    const char* member_;
    PyObject* const* values_;
    std::size_t count_;
};

/// Values in words, such as "'yes', 3"; long ones are cut.
std::string describeValues(PyObject* const* values, std::size_t count);

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
