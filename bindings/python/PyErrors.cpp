#include "bindings/python/PyErrors.h"

#include "vellox/foundation/NameHint.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/engine/Presentation.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <cwctype>
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
enum class Kind { Value, Type, Subscript, Name, File, Path, Access, IsFolder, NoFolder, State, Count };

struct KindRow {
    const char* name;
    const char* doc;
    PyObject* const* builtin;
    bool isOfFile; ///< derives from FileError, which stands ahead of it
    PyObject* type;
};

KindRow kinds[] = {
    {"vellox.ppt.BadValueError", "A value isn't one that is understood.", &PyExc_ValueError, false, nullptr},
    {"vellox.ppt.BadTypeError", "A value is of a kind that can't be used here.", &PyExc_TypeError, false,
     nullptr},
    {"vellox.ppt.BadSubscriptError", "A subscript is 0 or above the count.", &PyExc_IndexError, false,
     nullptr},
    {"vellox.ppt.UnknownNameError", "The template has nothing of this name.", &PyExc_LookupError, false,
     nullptr},
    {"vellox.ppt.FileError", "A file can't be worked with.", &PyExc_OSError, false, nullptr},
    {"vellox.ppt.PathNotFoundError", "A file or a folder doesn't exist.", &PyExc_FileNotFoundError, true,
     nullptr},
    {"vellox.ppt.PermissionDeniedError", "A file may not be read or written.", &PyExc_PermissionError, true,
     nullptr},
    {"vellox.ppt.IsFolderError", "What should be a file is a folder.", &PyExc_IsADirectoryError, true,
     nullptr},
    {"vellox.ppt.NoFolderError", "What should be a folder is a file.", &PyExc_NotADirectoryError, true,
     nullptr},
    {"vellox.ppt.StateError", "What is asked isn't possible any more, or not yet.", &PyExc_RuntimeError,
     false, nullptr},
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
    {"invalidCellRange", Kind::Subscript},
    {"cellsAlreadyMerged", Kind::Value},
    {"tableCannotBeReplaced", Kind::State},
    {"placeholderWasReplacedByObject", Kind::State},
    {"missingPictureFile", Kind::File},
    {"invalidSvg", Kind::Value},
    {"svgNeedsRenderer", Kind::State},
    {"slideNotInPresentation", Kind::State},
    {"unknownShape", Kind::Name},
    {"ambiguousShape", Kind::Name},
    {"shapeRefusesContent", Kind::Type},
    {"shapeFilledTwice", Kind::Value},
    {"emptyHandle", Kind::State},
    {"wrongClass", Kind::Type},
    {"tokensLeft", Kind::Value},
    {"unknownImageBytes", Kind::Value},
    {"noSuchChart", Kind::Name},
    {"invalidChartData", Kind::Type},
    {"chartDataEmpty", Kind::Value},
    {"chartDataRagged", Kind::Value},
    {"chartDataTooLarge", Kind::Value},
    {"chartValueNoNumber", Kind::Value},
    {"unsupportedChart", Kind::Value},
    {"chartWorkbookFailed", Kind::File},
    {"invalidLayoutName", Kind::Name},
    {"notAsAsked", Kind::Value},
    {"invalidLayoutOrSlideMasterName", Kind::Name},
    {"cannotOpenFile", Kind::File},
    {"cannotOpenTemplate", Kind::File},
    {"invalidTemplate", Kind::Value},
    {"pathNotFound", Kind::Path},
    {"partDOMBuildError", Kind::Value},
};

PyObject* errorType = nullptr;
PyObject* warningType = nullptr;

PyObject* getType(Kind kind) {
    return kinds[static_cast<std::size_t>(kind)].type;
}

/// The kind of an identifier; Count for one that the table doesn't know.
Kind findKind(const MsgID& id) {
    for (const auto& row : kKindOfIdentifier)
        if (id.id == row.identifier)
            return row.kind;
    return Kind::Count;
}

/// The text of an error is the library's, whatever else Python keeps with errors of its kind.
PyObject* getErrorText(PyObject* self, PyObject*) {
    return guarded<PyObject*>(nullptr, [&] {
        const PyRef arguments = checked(PyObject_GetAttrString(self, "args"));
        const Py_ssize_t count = PyTuple_Check(arguments.get()) ? PyTuple_GET_SIZE(arguments.get()) : 0;
        return count == 0 ? PyUnicode_FromString("")
                          : PyObject_Str(PyTuple_GET_ITEM(arguments.get(), count - 1));
    });
}

PyMethodDef errorTextMethod = {"__str__", getErrorText, METH_NOARGS, "The text of the error."};

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
    const PyRef text =
        checked(PyDescr_NewMethod(reinterpret_cast<PyTypeObject*>(errorType), &errorTextMethod));
    const PyRef noArguments = checked(PyTuple_New(0));
    const PyRef noIdentifier = toPython(std::wstring());
    if (PyObject_SetAttrString(errorType, "__str__", text.get()) < 0 ||
        PyObject_SetAttrString(errorType, "identifier", noIdentifier.get()) < 0 ||
        PyObject_SetAttrString(errorType, "arguments", noArguments.get()) < 0)
        throw PythonError();
    for (KindRow& row : kinds)
        row.type =
            addType(module, row.name, row.doc,
                    checked(PyTuple_Pack(2, row.isOfFile ? getType(Kind::File) : errorType, *row.builtin)));
    warningType =
        addType(module, "vellox.ppt.PresentationWarning",
                "What the library did not do as asked, and went on.", PyRef::share(PyExc_UserWarning));
}

PyObject* getWarningType() {
    return warningType;
}

// Given

std::string Given::describe() const {
    return className_ + (member_ ? "." + std::string(member_) : "") + " was given " +
           describeValues(values_, count_) + ".";
}

std::string describeValues(PyObject* const* values, std::size_t count) {
    const PyRef module = PyRef::take(PyImport_ImportModule("reprlib"));
    std::string words;
    for (std::size_t i = 0; i < count; ++i) {
        PyErr_Clear(); // a value that fails to say what it is
        const PyRef text =
            PyRef::take(module ? PyObject_CallMethod(module.get(), "repr", "(O)", values[i]) : nullptr);
        const char* utf8 = text && PyUnicode_Check(text.get()) ? PyUnicode_AsUTF8(text.get()) : nullptr;
        words += (i == 0 ? "" : ", ") + std::string(utf8 ? utf8 : Py_TYPE(values[i])->tp_name);
    }
    PyErr_Clear();
    return words;
}

// Translation

namespace {

/// A file that an error is about, and the system's number for what is wrong with its path: 0 if nothing is, so that
/// what stands there must be at fault.
struct PathFault {
    std::wstring path;
    int number = 0;
};

bool isAllowed(const std::string& path, int access) {
    return faccessat(AT_FDCWD, path.c_str(), access, AT_EACCESS) == 0;
}

/// @param isOutput whether the file is one to be made
int findFault(const std::string& path, bool isOutput) {
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode))
            return EISDIR;
        return isAllowed(path, isOutput ? R_OK | W_OK : R_OK) ? 0 : errno;
    }
    const int number = errno;
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    const bool isFolderShut = isOutput && number == ENOENT && !folder.empty() &&
                              stat(folder.c_str(), &status) == 0 && !isAllowed(folder, W_OK);
    return isFolderShut ? errno : number;
}

/// The error names its file in words, beside what else there is to say; so it is one of those that the presentation
/// knows. A path alone is a folder that doesn't exist, which is known before there is a presentation.
PathFault findPathFault(const std::wstring& words, const Given* given) {
    const auto* deck = given ? dynamic_cast<const Presentation*>(given->getSelf()) : nullptr;
    const std::wstring output = deck ? deck->getOutputPath() : std::wstring();
    const std::wstring source = deck ? deck->getTemplatePath() : std::wstring();
    for (const std::wstring& path : {output, source, words})
        if (!path.empty() && path.front() == L'/' && words.find(path) != std::wstring::npos)
            return {path, findFault(toUtf8(path), path == output)};
    return {};
}

PyRef makeTuple(const std::vector<std::wstring>& texts) {
    PyRef tuple = checked(PyTuple_New(static_cast<Py_ssize_t>(texts.size())));
    for (std::size_t i = 0; i < texts.size(); ++i)
        PyTuple_SET_ITEM(tuple.get(), static_cast<Py_ssize_t>(i), toPython(texts[i]).release());
    return tuple;
}

PyRef fromUtf8Text(const char* text) {
    return checked(PyUnicode_DecodeUTF8(text, static_cast<Py_ssize_t>(std::strlen(text)), "replace"));
}

/// An error of a file, as Python's own: with the system's number for what is wrong with the path, if it can tell.
PyRef makeFileError(PyObject* type, const PyRef& text, const std::vector<std::wstring>& arguments,
                    const Given* given) {
    constexpr struct {
        int number;
        Kind kind;
    } kKindOfNumber[] = {{ENOENT, Kind::Path},  {EACCES, Kind::Access},   {EPERM, Kind::Access},
                         {EROFS, Kind::Access}, {EISDIR, Kind::IsFolder}, {ENOTDIR, Kind::NoFolder}};
    const PathFault fault = arguments.size() == 1 ? findPathFault(arguments.front(), given) : PathFault();
    if (fault.number == 0)
        return checked(PyObject_CallOneArg(type, text.get()));
    for (const auto& row : kKindOfNumber)
        if (fault.number == row.number)
            type = getType(row.kind);
    const PyRef path = toPython(fault.path);
    return checked(PyObject_CallFunction(type, "iOO", fault.number, text.get(), path.get()));
}

/// The nearest names to one that doesn't exist, as a note. The text is the same in all profiles.
void addNote(const PyRef& error, const NameHint& hint) {
    if (hint.text.empty())
        return;
    std::wstring note = hint.text;
    note.front() = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(note.front())));
    checked(PyObject_CallMethod(error.get(), "add_note", "O", toPython(note + L".").get()));
}

/// @param given null where nothing is known of the call
void setError(const hostfx::except::IMsgIDException& error, const Given* given) {
    const MsgID& id = error.getMsgID();
    const Kind kind = findKind(id);
    PyObject* type = kind == Kind::Count ? errorType : getType(kind);
    const auto* hinted = dynamic_cast<const IHintedError*>(&error);
    std::string words = hinted ? hinted->getPlainText() : error.what();
    if (kind == Kind::Type && id.args.empty() && given)
        words += " " + given->describe();
    const PyRef text = fromUtf8Text(words.c_str());
    const bool isOfFile = kind == Kind::File || kind == Kind::Path;
    const PyRef made =
        isOfFile ? makeFileError(type, text, id.args, given) : checked(PyObject_CallOneArg(type, text.get()));
    const PyRef identifier = fromUtf8Text(error.getErrorID().c_str());
    const PyRef arguments = makeTuple(id.args);
    if (PyObject_SetAttrString(made.get(), "identifier", identifier.get()) < 0 ||
        PyObject_SetAttrString(made.get(), "arguments", arguments.get()) < 0)
        throw PythonError();
    if (hinted)
        addNote(made, hinted->getHint());
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(made.get())), made.get());
}

/// An error without an identifier is an Error all the same.
void setPlainError(const std::exception& error) {
    PyErr_SetObject(errorType, fromUtf8Text(error.what()).get());
}

} // namespace

void Given::setIdentifiedError(const hostfx::except::IMsgIDException& error) const {
    setError(error, this);
}

void translateToPython() {
    try {
        try {
            throw;
        } catch (const PythonError&) {
            throw;
        } catch (const hostfx::except::IMsgIDException& error) {
            setError(error, nullptr);
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
