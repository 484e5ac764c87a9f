#include "bindings/python/PyValue.h"

#include "bindings/python/PyBuffer.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "vellox/host/binding/BindingRegistry.h"

#include <algorithm>
#include <limits>

namespace vellox::ppt::python {

using hostbind::isLong;
using hostbind::kDeepestList;
using hostbind::wantsDigits;

namespace {

constexpr char kFrames[] = "vellox._frames";
constexpr int kUnknownClass = 0;
constexpr int kInt32Class = 12;

bool fitsInt(double number) {
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

bool isList(PyObject* object) {
    return PyList_Check(object) || PyTuple_Check(object);
}

bool isLong(PyObject* number) {
    int overflow = 0;
    const long long value = PyLong_AsLongLongAndOverflow(number, &overflow);
    return overflow != 0 || hostbind::isLong(static_cast<double>(value));
}

bool has(PyObject* object, const char* attribute) {
    return PyObject_HasAttrString(object, attribute) != 0;
}

/// Arrays some of whose entries are missing, though their memory holds something there.
bool isMasked(PyObject* object) {
    return has(object, "mask") && has(object, "filled") && has(object, "tolist");
}

/// What a function of the package's own makes of an object of another library.
PyRef readForeign(const char* moduleName, const char* function, PyObject* object) {
    const PyRef module = checked(PyImport_ImportModule(moduleName));
    return checked(PyObject_CallMethod(module.get(), function, "(O)", object));
}

} // namespace

/// What only lists and arrays need.
struct PyValue::Elements {
    std::vector<std::size_t> shape; // of more or fewer than two dimensions
    std::vector<double> numbers;
    std::unique_ptr<bool[]> logicals;
    bool hasFields = false;
    std::vector<std::wstring> names; // of fields
    std::vector<PyRef> items;        // of fields, or column after column
    std::vector<std::unique_ptr<PyValue>> cells;
};

PyValue::PyValue(PyObject* object, const Reading& reading)
    : object_(object),
      reading_(reading),
      code_(kUnknownClass) {
    read();
}

void PyValue::read() {
    if (reading_.depth > kDeepestList)
        throw PythonError(PyExc_ValueError, "lists are nested too deeply");
    static_cast<void>(readPlain() || readImage() || readList() || readBuffer(object_) || readFrame() ||
                      readArray() || readFields() || readDictionary() || readNumberLike() || readPath() ||
                      readText()); // else it stays unknown
}

PyValue::~PyValue() = default;

// Kinds of objects

bool PyValue::readPlain() {
    if (PyUnicode_Check(object_)) {
        setText(PyRef::share(object_));
    } else if (object_ == Py_None) {
        code_ = HvDoubleClass;
        setShape(0, 0);
    } else if (PyBool_Check(object_)) {
        setScalar(HvLogicalClass, object_ == Py_True ? 1 : 0);
    } else if (PyFloat_Check(object_)) {
        setScalar(HvDoubleClass, PyFloat_AS_DOUBLE(object_));
    } else if (PyLong_Check(object_)) {
        setInteger(object_);
    } else if (isInstance(object_)) {
        code_ = HvObjectClass;
    } else {
        return false;
    }
    return true;
}

/// Images, in what they are kept in or made by.
bool PyValue::readImage() {
    if (!reading_.imagesAreBytes)
        return false;
    PyRef bytes = readForeign("vellox._images", "read_image", object_);
    if (!PyBytes_Check(bytes.get()))
        return false;
    image_ = std::move(bytes);
    code_ = HvUint8Class;
    setShape(1, static_cast<std::size_t>(PyBytes_GET_SIZE(image_.get())));
    return true;
}

bool PyValue::readList() {
    if (!isList(object_))
        return false;
    // A list may change while its elements are read.
    const PyRef items = checked(PySequence_Tuple(object_));
    readRow(items);
    if (reading_.rowsAreTables && PyTuple_GET_SIZE(items.get()) > 1)
        readTableRows(items);
    return true;
}

void PyValue::readRow(const PyRef& items) {
    const Py_ssize_t count = PyTuple_GET_SIZE(items.get());
    code_ = HvCellClass;
    setShape(count == 0 ? 0 : 1, static_cast<std::size_t>(count));
    elements().items.clear();
    for (Py_ssize_t i = 0; i < count; ++i)
        elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(items.get(), i)));
}

/// Takes the items of a list for rows, if they are lists of one length.
void PyValue::readTableRows(const PyRef& rows) {
    const Py_ssize_t nRows = PyTuple_GET_SIZE(rows.get());
    std::vector<PyRef> inner;
    for (Py_ssize_t r = 0; r < nRows; ++r) {
        PyObject* row = PyTuple_GET_ITEM(rows.get(), r);
        if (!isList(row))
            return;
        inner.push_back(checked(PySequence_Tuple(row)));
        if (PyTuple_GET_SIZE(inner.back().get()) != PyTuple_GET_SIZE(inner.front().get()))
            return;
    }
    const Py_ssize_t nColumns = nRows == 0 ? 0 : PyTuple_GET_SIZE(inner.front().get());
    if (nColumns == 0)
        return;
    elements().items.clear();
    for (Py_ssize_t c = 0; c < nColumns; ++c)
        for (const PyRef& row : inner)
            elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(row.get(), c)));
    setShape(static_cast<std::size_t>(nRows), static_cast<std::size_t>(nColumns));
}

bool PyValue::readBuffer(PyObject* object) {
    const PyBuffer buffer(object);
    if (!buffer.isReadable() || isMasked(object))
        return false;
    const std::vector<std::size_t>& shape = buffer.getShape();
    code_ = buffer.getClassCode();
    if (shape.size() > 2) {
        nDimensions_ = static_cast<unsigned int>(shape.size());
        elements().shape =
            shape; // such an array is no content: its first element is all that is ever asked for
        number_ = getNElements() == 0 ? 0 : buffer.readFirst();
        return true;
    }
    setShape(shape.size() == 2 ? shape[0] : 1, shape.empty() ? 1 : shape.back());
    if (getNElements() == 0)
        return true;
    if (code_ == HvLogicalClass) {
        elements().logicals = buffer.readLogicals();
        number_ = elements().logicals[0] ? 1 : 0;
        return true;
    }
    std::vector<double>& numbers = elements().numbers = buffer.readNumbers();
    number_ = numbers.front();
    if (code_ < HvFirstIntegerClass)
        return true;
    const bool hasLong = std::any_of(numbers.begin(), numbers.end(), [](double n) { return isLong(n); });
    if (hasLong && wantsDigits(reading_.digits, numbers.size() > 1 || reading_.depth > 0)) {
        elements().items = buffer.readIntegers();
        code_ = HvCellClass;
        if (numbers.size() == 1)
            setInteger(PyRef(elements().items.front()).get());
    } else if (!std::all_of(numbers.begin(), numbers.end(), fitsInt)) {
        code_ = HvDoubleClass; // contents of integers hold an int each
    }
    return true;
}

/// Tables with named columns, whatever library they are of.
bool PyValue::readFrame() {
    const bool isFrame = has(object_, "columns") && has(object_, "to_numpy");
    if (!isFrame && !has(object_, "__dataframe__"))
        return false;
    const PyRef rows = checked(PySequence_Tuple(readForeign(kFrames, "read_frame", object_).get()));
    readRow(rows);
    readTableRows(rows);
    return true;
}

/// Columns by their names. One that is an item of something is shown as what it is.
bool PyValue::readDictionary() {
    if (!PyDict_Check(object_) || reading_.depth > 0)
        return false;
    const PyRef rows = checked(PySequence_Tuple(readForeign(kFrames, "read_dictionary", object_).get()));
    readRow(rows);
    readTableRows(rows);
    return true;
}

/// Arrays whose elements aren't numbers, and what gives an array.
bool PyValue::readArray() {
    if (isMasked(object_)) {
        readItems(object_);
        return true;
    }
    if (!has(object_, "__array__"))
        return false;
    const PyRef array = has(object_, "to_numpy")
                            ? readForeign(kFrames, "read_column", object_)
                            : checked(PyObject_CallMethod(object_, "__array__", nullptr));
    if (isList(array.get()))
        readRow(checked(PySequence_Tuple(array.get())));
    else if (!readBuffer(array.get()))
        readItems(array.get());
    return true;
}

namespace {

PyRef getAttribute(PyObject* object, const char* name) {
    return checked(PyObject_GetAttrString(object, name));
}

std::vector<std::size_t> getArrayShape(PyObject* array) {
    const PyRef sizes = checked(PySequence_Tuple(getAttribute(array, "shape").get()));
    std::vector<std::size_t> shape;
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(sizes.get()); ++i) {
        shape.push_back(PyLong_AsSize_t(PyTuple_GET_ITEM(sizes.get(), i)));
        if (PyErr_Occurred())
            throw PythonError();
    }
    return shape;
}

/// Arrays of times, whose elements are numbers of units. As scalars they are texts of what they mean.
bool holdsTimes(PyObject* array) {
    const PyRef kind = getAttribute(getAttribute(array, "dtype").get(), "kind");
    return PyUnicode_Check(kind.get()) && (PyUnicode_CompareWithASCIIString(kind.get(), "M") == 0 ||
                                           PyUnicode_CompareWithASCIIString(kind.get(), "m") == 0);
}

} // namespace

/// The elements of an array as the Python objects that it gives for them.
void PyValue::readItems(PyObject* array) {
    const std::vector<std::size_t> shape = getArrayShape(array);
    code_ = HvCellClass;
    if (shape.size() > 2) {
        nDimensions_ = static_cast<unsigned int>(shape.size());
        elements().shape = shape; // such an array counts as empty: nothing more is read
        return;
    }
    if (shape.empty())
        return readOnlyElement(array);
    const std::size_t rows = shape.size() == 2 ? shape[0] : 1;
    const std::size_t columns = shape.back();
    setShape(rows, columns);
    const PyRef flat = checked(PyObject_CallMethod(array, "ravel", "s", "F"));
    const PyRef list = holdsTimes(array) ? flat : checked(PyObject_CallMethod(flat.get(), "tolist", nullptr));
    const PyRef items = checked(PySequence_Tuple(list.get()));
    const auto count = static_cast<std::size_t>(PyTuple_GET_SIZE(items.get()));
    // Neither number is above the count unless there is nothing; so their product can't wrap.
    const bool fits =
        count == 0 ? rows == 0 || columns == 0 : rows <= count && columns <= count && rows * columns == count;
    if (!fits)
        throw PythonError(PyExc_ValueError, "an array holds other than its shape says");
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(items.get()); ++i)
        elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(items.get(), i)));
}

/// An array without dimensions is what it holds.
void PyValue::readOnlyElement(PyObject* array) {
    element_ = checked(PyObject_CallMethod(array, "tolist", nullptr));
    const bool isMissing = element_.get() == Py_None && isMasked(array);
    if (holdsTimes(array) && !isMissing)
        element_ = checked(PyObject_Str(array));
    object_ = element_.get();
    ++reading_.depth; // it may hold itself
    read();
}

/// A dictionary, and what else has keys and values for them.
bool PyValue::readFields() {
    if (!reading_.fields || (!PyDict_Check(object_) && !(has(object_, "keys") && PyMapping_Check(object_))))
        return false;
    const PyRef pairs = checked(PyMapping_Items(object_));
    const PyRef rows = checked(PySequence_Tuple(pairs.get()));
    elements().hasFields = true;
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(rows.get()); ++i) {
        const PyRef row = checked(PySequence_Tuple(PyTuple_GET_ITEM(rows.get(), i)));
        if (PyTuple_GET_SIZE(row.get()) != 2)
            throw PythonError(PyExc_ValueError, "a mapping gives other than keys with their values");
        elements().names.push_back(toWide(checked(PyObject_Str(PyTuple_GET_ITEM(row.get(), 0))).get()));
        elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(row.get(), 1)));
    }
    return true;
}

bool PyValue::readNumberLike() {
    if (PyIndex_Check(object_)) {
        setInteger(checked(PyNumber_Index(object_)).get());
        return true;
    }
    const PyNumberMethods* methods = Py_TYPE(object_)->tp_as_number;
    if (!methods || !methods->nb_float)
        return false;
    const double number = PyFloat_AsDouble(object_);
    if (number == -1 && PyErr_Occurred())
        throw PythonError();
    setScalar(HvDoubleClass, number);
    return true;
}

bool PyValue::readPath() {
    if (!has(object_, "__fspath__"))
        return false;
    PyObject* text = nullptr;
    if (!PyUnicode_FSDecoder(object_, &text))
        throw PythonError();
    setText(PyRef::take(text));
    return true;
}

namespace {

/// Whether a class of objects says in words what they are. To users that is `str`; what only programmers read, such
/// as a dictionary's text, is better than nothing in a list, where it can't be refused.
bool hasText(PyObject* object, bool isItem) {
    const PyTypeObject* type = Py_TYPE(object);
    if (PyBytes_Check(object) || PyByteArray_Check(object))
        return isItem;
    return PyComplex_Check(object) || type->tp_str != PyBaseObject_Type.tp_str ||
           (isItem && type->tp_repr != PyBaseObject_Type.tp_repr);
}

} // namespace

bool PyValue::readText() {
    if (!hasText(object_, reading_.depth > 0))
        return false;
    // Python may be told to warn of bytes that are made a text, and both ways give the same.
    const bool isBytes = PyBytes_Check(object_) || PyByteArray_Check(object_);
    setText(checked(isBytes ? PyObject_Repr(object_) : PyObject_Str(object_)));
    return true;
}

// What they have in common

void PyValue::setScalar(int code, double number) {
    code_ = code;
    number_ = number;
}

void PyValue::setInteger(PyObject* number) {
    if (isLong(number) && wantsDigits(reading_.digits, reading_.depth > 0))
        return setText(checked(PyNumber_ToBase(number, 10)));
    const double value = PyLong_AsDouble(number);
    if (value == -1 && PyErr_Occurred())
        throw PythonError();
    setScalar(fitsInt(value) ? kInt32Class : HvDoubleClass, value);
}

void PyValue::setText(PyRef text) {
    code_ = HvCharClass;
    const auto length = static_cast<std::size_t>(PyUnicode_GET_LENGTH(text.get()));
    setShape(length == 0 ? 0 : 1, length);
    text_ = std::move(text);
}

void PyValue::setShape(std::size_t rows, std::size_t columns) {
    dimensions_[0] = rows;
    dimensions_[1] = columns;
}

PyValue::Elements& PyValue::elements() {
    if (!elements_)
        elements_ = std::make_unique<Elements>();
    return *elements_;
}

// Reading

std::string PyValue::getClassName() const {
    return Py_TYPE(object_)->tp_name;
}

std::size_t PyValue::getDimension(unsigned int i) const {
    return nDimensions_ == 2 ? dimensions_[i] : elements_->shape[i];
}

double PyValue::getDouble() const {
    return number_;
}

int PyValue::getInteger() const {
    return fitsInt(number_) ? static_cast<int>(number_) : 0;
}

bool PyValue::getLogical() const {
    return number_ != 0;
}

std::wstring PyValue::getString() const {
    return text_ ? toWide(text_.get()) : std::wstring();
}

const bool* PyValue::getLogicals() const {
    return elements_ ? elements_->logicals.get() : nullptr;
}

const double* PyValue::getDoubles() const {
    return elements_ ? elements_->numbers.data() : nullptr;
}

std::vector<unsigned char> PyValue::getBytes() const {
    if (!image_)
        return hvArray::getBytes();
    const auto* bytes = reinterpret_cast<const unsigned char*>(PyBytes_AS_STRING(image_.get()));
    return {bytes, bytes + PyBytes_GET_SIZE(image_.get())};
}

const hvArray* PyValue::getCell(std::size_t i) const {
    if (!elements_ || i >= elements_->items.size())
        return nullptr;
    elements_->cells.resize(elements_->items.size());
    std::unique_ptr<PyValue>& cell = elements_->cells[i];
    if (!cell)
        cell = std::make_unique<PyValue>(
            elements_->items[i].get(),
            Reading{false, false, reading_.digits, reading_.depth + 1, reading_.fields});
    return cell.get();
}

bool PyValue::hasFields() const {
    return elements_ && elements_->hasFields;
}

std::size_t PyValue::getNFields() const {
    return hasFields() ? elements_->names.size() : 0;
}

std::wstring PyValue::getFieldName(std::size_t i) const {
    return elements_->names[i];
}

const hvArray& PyValue::getField(std::size_t i) const {
    return *getCell(i);
}

boost::shared_ptr<objreg::HostInterface> PyValue::getObject(std::size_t) const {
    objreg::HostInterface* slot = code_ == HvObjectClass ? findSlot(object_) : nullptr;
    // The object that Python holds lives as long as this view.
    return boost::shared_ptr<objreg::HostInterface>(boost::shared_ptr<void>(), slot);
}

} // namespace vellox::ppt::python
