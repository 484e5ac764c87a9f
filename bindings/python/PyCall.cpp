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
        throw PythonError(PyExc_TypeError,
                          name + " doesn't take (" + describe() + "). It takes:\n\n" + takes);
    return static_cast<std::size_t>(found);
}

std::string PyCall::describe() const {
    std::string text;
    for (std::size_t i = 0; i < count_; ++i)
        text += (i == 0 ? "" : ", ") + std::string(Py_TYPE(objects_[i])->tp_name);
    return text;
}

} // namespace vellox::ppt::python
