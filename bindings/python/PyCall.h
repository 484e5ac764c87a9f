/// @file
/// The arguments of a Python call, and which overload they mean.

#ifndef BINDINGS_PYTHON_PYCALL_H
#define BINDINGS_PYTHON_PYCALL_H

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "bindings/python/PyValue.h"
#include "vellox/host/binding/Signature.h"

namespace vellox::ppt::python {

/// Views of the arguments, on the stack.
class PyCall {
public:
    /// No bound function takes more.
    static constexpr std::size_t kMostArguments = 8;

    /// @param names of the last arguments, a tuple; null if none has one
    PyCall(PyObject* const* objects, std::size_t count, const Reading& reading = {},
           PyObject* names = nullptr);

    hostbind::Arguments getArguments() const { return {pointers_.data(), count_ - named_.size()}; }
    /// All of them as a signature that fits has them.
    std::vector<const hvArray*> orderFor(const hostbind::Signature& signature) const {
        return *hostbind::orderArguments(signature, getArguments(), named_);
    }

    /// The position of the signature that fits.
    /// @throws PythonError a TypeError that lists what would fit
    std::size_t select(const std::vector<const hostbind::Signature*>& signatures, const std::string& name,
                       const std::string& takes) const;

private:
    PyObject* const* objects_;
    std::size_t count_;
    std::array<std::optional<PyValue>, kMostArguments> values_;
    std::array<const hvArray*, kMostArguments> pointers_ = {};
    std::vector<hostbind::NamedArgument> named_; // the last of them
};

} // namespace vellox::ppt::python

#endif
