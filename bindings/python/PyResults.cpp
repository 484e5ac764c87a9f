#include "bindings/python/PyResults.h"

#include "bindings/python/PyInstance.h"

namespace vellox::ppt::python {

using namespace hostbind;

namespace {

template <class Item> PyRef makeList(const std::vector<Item>& items) {
    PyRef list = checked(PyList_New(static_cast<Py_ssize_t>(items.size())));
    for (std::size_t i = 0; i < items.size(); ++i)
        PyList_SET_ITEM(list.get(), static_cast<Py_ssize_t>(i), toPython(items[i]).release());
    return list;
}

PyRef makeRows(const TextCells& cells) {
    PyRef list = checked(PyList_New(0));
    for (std::size_t start = 0; start < cells.texts.size(); start += cells.nColumns) {
        const PyRef row = checked(PyTuple_New(static_cast<Py_ssize_t>(cells.nColumns)));
        for (std::size_t c = 0; c < cells.nColumns; ++c)
            PyTuple_SET_ITEM(row.get(), static_cast<Py_ssize_t>(c),
                             toPython(cells.texts[start + c]).release());
        if (PyList_Append(list.get(), row.get()) < 0)
            return checked(nullptr);
    }
    return list;
}

struct Converter {
    PyRef operator()(const Void&) const { return PyRef::share(Py_None); }
    PyRef operator()(const Empty&) const { return PyRef::share(Py_None); }
    PyRef operator()(bool value) const { return PyRef::share(value ? Py_True : Py_False); }
    PyRef operator()(unsigned int value) const { return checked(PyLong_FromUnsignedLong(value)); }
    PyRef operator()(double value) const { return checked(PyFloat_FromDouble(value)); }
    PyRef operator()(const std::wstring& text) const { return toPython(text); }
    PyRef operator()(const ObjectPtr& object) const { return toPython(object); }
    PyRef operator()(const ObjectArray& objects) const { return makeList(objects); }
    PyRef operator()(const ObjectCells& cells) const { return makeList(cells.objects); }
    PyRef operator()(const TextCells& cells) const {
        return cells.nColumns == 1 ? makeList(cells.texts) : makeRows(cells);
    }
};

} // namespace

PyRef toPython(const HostResult& result) {
    return std::visit(Converter(), result);
}

} // namespace vellox::ppt::python
