#include "bindings/python/PyCall.h"

#include "bindings/python/PyErrors.h"

namespace vellox::ppt::python {

PyCall::PyCall(PyObject* const* objects, std::size_t count, const Reading& reading)
    : objects_(objects),
      count_(count) {
    for (std::size_t i = 0; i < count_ && i < kMostArguments; ++i)
        pointers_[i] = &values_[i].emplace(objects[i], reading);
}

std::size_t PyCall::select(const std::vector<const hostbind::Signature*>& signatures, const std::string& name,
                           const std::string& takes) const {
    const int found = count_ > kMostArguments ? -1 : hostbind::findOverload(signatures, getArguments());
    if (found < 0)
        throw PythonError(PyExc_TypeError, name + " doesn't take (" + describeValues(objects_, count_) +
                                               "). It takes:\n\n" + takes);
    return static_cast<std::size_t>(found);
}

} // namespace vellox::ppt::python
