#include "bindings/python/PyRef.h"

#include "bindings/python/PyErrors.h"

namespace vellox::ppt::python {

static_assert(sizeof(wchar_t) == 4, "wide strings hold whole code points");

PyRef checked(PyObject* object) {
    if (!object)
        throw PythonError();
    return PyRef::take(object);
}

namespace {

/// Lone surrogates stand for bytes that are no text, as in some names of files, and can't go into any document.
template <class Unit> std::wstring copyCharacters(PyObject* text, const Unit* units, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i)
        if (units[i] >= 0xD800 && units[i] <= 0xDFFF && !PyUnicode_AsUTF8(text))
            throw PythonError();
    return {units, units + length};
}

} // namespace

std::wstring toWide(PyObject* text) {
    if (PyUnicode_READY(text) < 0)
        throw PythonError();
    const auto length = static_cast<std::size_t>(PyUnicode_GET_LENGTH(text));
    switch (PyUnicode_KIND(text)) {
    case PyUnicode_1BYTE_KIND:
        return {PyUnicode_1BYTE_DATA(text), PyUnicode_1BYTE_DATA(text) + length};
    case PyUnicode_2BYTE_KIND:
        return copyCharacters(text, PyUnicode_2BYTE_DATA(text), length);
    default:
        return copyCharacters(text, PyUnicode_4BYTE_DATA(text), length);
    }
}

PyRef toPython(const std::wstring& text) {
    return checked(
        PyUnicode_FromKindAndData(PyUnicode_4BYTE_KIND, text.data(), static_cast<Py_ssize_t>(text.size())));
}

} // namespace vellox::ppt::python
