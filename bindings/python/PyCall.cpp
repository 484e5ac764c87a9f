#include "bindings/python/PyCall.h"

#include "bindings/python/PyErrors.h"

namespace vellox::ppt::python {

PyCall::PyCall(PyObject* const* objects, std::size_t count, const Reading& reading, PyObject* names)
    : objects_(objects),
      count_(count) {
    for (std::size_t i = 0; i < count_ && i < kMostArguments; ++i)
        pointers_[i] = &values_[i].emplace(objects[i], reading);
    const std::size_t named = names ? static_cast<std::size_t>(PyTuple_GET_SIZE(names)) : 0;
    for (std::size_t i = 0; i < named && count_ <= kMostArguments; ++i) {
        const char* name = PyUnicode_AsUTF8(PyTuple_GET_ITEM(names, static_cast<Py_ssize_t>(i)));
        if (!name)
            throw PythonError();
        named_.push_back({name, pointers_[count_ - named + i]});
    }
}

namespace {

bool hasKeyword(const std::vector<const hostbind::Signature*>& signatures, const std::string& name) {
    for (const hostbind::Signature* signature : signatures)
        for (const hostbind::Parameter& parameter : *signature)
            if (parameter.isKeyword && parameter.name == name)
                return true;
    return false;
}

} // namespace

std::size_t PyCall::select(const std::vector<const hostbind::Signature*>& signatures, const std::string& name,
                           const std::string& takes) const {
    const int found =
        count_ > kMostArguments ? -1 : hostbind::findOverload(signatures, getArguments(), named_);
    for (const hostbind::NamedArgument& argument : named_)
        if (found < 0 && !hasKeyword(signatures, argument.name))
            throw PythonError(PyExc_TypeError, std::string(name)
                                                   .append(" takes no keyword argument '")
                                                   .append(argument.name)
                                                   .append("'. It takes:\n\n")
                                                   .append(takes));
    if (found < 0)
        throw PythonError(PyExc_TypeError, name + " doesn't take (" + describeValues(objects_, count_) +
                                               "). It takes:\n\n" + takes);
    return static_cast<std::size_t>(found);
}

} // namespace vellox::ppt::python
