#include "bindings/python/PyErrors.h"

#include "vellox/foundation/IdentifiedException.h"

#include <cstring>
#include <iterator>
#include <new>

namespace vellox::ppt::python {

// PythonError

struct PythonError::Fetched {
    PyRef type;
    PyRef value;
    PyRef traceback;
    std::string text;
};

PythonError::PythonError() {
    fetch();
}

PythonError::PythonError(PyObject* type, const std::string& text) {
    PyErr_SetString(type, text.c_str());
    fetch();
}

void PythonError::fetch() {
    fetched_ = std::make_shared<Fetched>();
    PyObject* type = nullptr;
    PyObject* value = nullptr;
    PyObject* traceback = nullptr;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    fetched_->type = PyRef::take(type);
    fetched_->value = PyRef::take(value);
    fetched_->traceback = PyRef::take(traceback);
    const PyRef text = PyRef::take(value ? PyObject_Str(value) : nullptr);
    const char* utf8 = text ? PyUnicode_AsUTF8(text.get()) : nullptr;
    PyErr_Clear(); // of an error that has no text
    fetched_->text = utf8 ? utf8 : "a Python error";
}

const char* PythonError::what() const noexcept {
    return fetched_->text.c_str();
}

void PythonError::restore() const {
    PyErr_Restore(fetched_->type.release(), fetched_->value.release(), fetched_->traceback.release());
}

// Types

namespace {

/// The kinds of errors: each derives from Error and from what Python itself raises in such a case.
enum class Kind { Value, Type, Subscript, Name, File, Path, State, Count };

struct KindRow {
    const char* name;
    const char* doc;
    PyObject* const* builtin;
    PyObject* type;
};

KindRow kinds[] = {
    {"vellox.ppt.BadValueError", "A value isn't one that is understood.", &PyExc_ValueError, nullptr},
    {"vellox.ppt.BadTypeError", "A value is of a kind that can't be used here.", &PyExc_TypeError, nullptr},
    {"vellox.ppt.BadSubscriptError", "A subscript is 0 or above the count.", &PyExc_IndexError, nullptr},
    {"vellox.ppt.UnknownNameError", "The template has nothing of this name.", &PyExc_LookupError, nullptr},
    {"vellox.ppt.FileError", "A file can't be worked with.", &PyExc_OSError, nullptr},
    {"vellox.ppt.PathNotFoundError", "A folder doesn't exist.", &PyExc_FileNotFoundError, nullptr},
    {"vellox.ppt.StateError", "What is asked isn't possible any more, or not yet.", &PyExc_RuntimeError,
     nullptr},
};
static_assert(std::size(kinds) == static_cast<std::size_t>(Kind::Count));

constexpr struct {
    const char* identifier;
    Kind kind;
} kKindOfIdentifier[] = {
    {"invalidDimensionSign", Kind::Value},
    {"invalidDimensionUnits", Kind::Value},
    {"reservedWindowsFileName", Kind::Value},
    {"reservedWindowsFileNameChar", Kind::Value},
    {"fileSystemError", Kind::File},
    {"cannotCreateTemporaryDirectory", Kind::File},
    {"failedToCombinePaths", Kind::File},
    {"failedToCopyFile", Kind::File},
    {"failedToCreateDirectory", Kind::File},
    {"failedToDetermineFilename", Kind::Value},
    {"failedToQueryFileState", Kind::File},
    {"invalidFilePath", Kind::Value},
    {"entriesColumnsMismatch", Kind::Value},
    {"invalidPropertyValue", Kind::Value},
    {"invalidLogicalPropertyValue", Kind::Type},
    {"invalidFormatStyle", Kind::Type},
    {"invalidConstructorArg", Kind::Type},
    {"invalidAddArg", Kind::Type},
    {"invalidReplaceArg", Kind::Type},
    {"positiveSubscript", Kind::Subscript},
    {"badSlideSubscript", Kind::Subscript},
    {"badRowSubscript", Kind::Subscript},
    {"badColSubscript", Kind::Subscript},
    {"invalidObjectForTable", Kind::Type},
    {"failedToAppendChild", Kind::Value},
    {"pictureCannotBeReplaced", Kind::State},
    {"tableCannotBeReplaced", Kind::State},
    {"placeholderWasReplacedByObject", Kind::State},
    {"invalidLayoutName", Kind::Name},
    {"invalidLayoutOrSlideMasterName", Kind::Name},
    {"cannotOpenFile", Kind::File},
    {"cannotOpenTemplate", Kind::File},
    {"invalidTemplate", Kind::Value},
    {"pathNotFound", Kind::Path},
    {"partDOMBuildError", Kind::Value},
};

PyObject* errorType = nullptr;
PyObject* warningType = nullptr;

PyObject* getErrorType(const MsgID& id) {
    for (const auto& row : kKindOfIdentifier)
        if (id.id == row.identifier)
            return kinds[static_cast<std::size_t>(row.kind)].type;
    return errorType;
}

/// Makes an exception type, adds it to the module and keeps it for good.
PyObject* addType(PyObject* module, const char* fullName, const char* doc, const PyRef& bases) {
    PyObject* type = checked(PyErr_NewExceptionWithDoc(fullName, doc, bases.get(), nullptr)).release();
    if (PyModule_AddObjectRef(module, std::strrchr(fullName, '.') + 1, type) < 0)
        throw PythonError();
    return type;
}

} // namespace

void addErrorTypes(PyObject* module) {
    errorType =
        addType(module, "vellox.ppt.Error",
                "What the library refuses. `identifier` names the case, such as "
                "\"vellox:ppt_error:invalidLayoutName\", `arguments` holds the texts that go with it, "
                "and the error's own text says it in words.",
                PyRef::share(PyExc_Exception));
    const PyRef noArguments = checked(PyTuple_New(0));
    const PyRef noIdentifier = toPython(std::wstring());
    if (PyObject_SetAttrString(errorType, "identifier", noIdentifier.get()) < 0 ||
        PyObject_SetAttrString(errorType, "arguments", noArguments.get()) < 0)
        throw PythonError();
    for (KindRow& row : kinds)
        row.type = addType(module, row.name, row.doc, checked(PyTuple_Pack(2, errorType, *row.builtin)));
    warningType =
        addType(module, "vellox.ppt.PresentationWarning",
                "What the library did not do as asked, and went on.", PyRef::share(PyExc_UserWarning));
}

PyObject* getWarningType() {
    return warningType;
}

// Translation

namespace {

PyRef makeTuple(const std::vector<std::wstring>& texts) {
    PyRef tuple = checked(PyTuple_New(static_cast<Py_ssize_t>(texts.size())));
    for (std::size_t i = 0; i < texts.size(); ++i)
        PyTuple_SET_ITEM(tuple.get(), static_cast<Py_ssize_t>(i), toPython(texts[i]).release());
    return tuple;
}

PyRef fromUtf8Text(const char* text) {
    return checked(PyUnicode_DecodeUTF8(text, static_cast<Py_ssize_t>(std::strlen(text)), "replace"));
}

void setIdentifiedError(const hostfx::except::IMsgIDException& error) {
    PyObject* type = getErrorType(error.getMsgID());
    const PyRef text = fromUtf8Text(error.what());
    const PyRef made = checked(PyObject_CallOneArg(type, text.get()));
    const PyRef identifier = fromUtf8Text(error.getErrorID().c_str());
    const PyRef arguments = makeTuple(error.getMsgID().args);
    if (PyObject_SetAttrString(made.get(), "identifier", identifier.get()) < 0 ||
        PyObject_SetAttrString(made.get(), "arguments", arguments.get()) < 0)
        throw PythonError();
    PyErr_SetObject(type, made.get());
}

/// An error without an identifier is an Error all the same.
void setPlainError(const std::exception& error) {
    PyErr_SetObject(errorType, fromUtf8Text(error.what()).get());
}

} // namespace

void translateToPython() {
    try {
        try {
            throw;
        } catch (const PythonError&) {
            throw;
        } catch (const hostfx::except::IMsgIDException& error) {
            setIdentifiedError(error);
        } catch (const std::bad_alloc&) {
            PyErr_NoMemory();
        } catch (const std::exception& error) {
            setPlainError(error);
        } catch (...) {
            PyErr_SetString(errorType, "an unknown failure");
        }
    } catch (const PythonError& error) {
        error.restore();
    }
}

} // namespace vellox::ppt::python
