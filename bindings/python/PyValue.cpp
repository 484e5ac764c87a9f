#include "bindings/python/PyValue.h"

#include "bindings/python/PyBuffer.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "vellox/host/binding/BindingRegistry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vellox::ppt::python {

namespace {

constexpr int kUnknownClass = 0;
constexpr int kInt32Class = 12;
/// Lists in lists beyond this are taken for ones that hold themselves.
constexpr unsigned int kDeepestList = 1000;

bool fitsInt(double number) {
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

bool isList(PyObject* object) {
    return PyList_Check(object) || PyTuple_Check(object);
}

} // namespace

/// What only lists and arrays need.
struct PyValue::Elements {
    std::vector<std::size_t> shape; // of more or fewer than two dimensions
    std::vector<double> numbers;
    std::unique_ptr<bool[]> logicals;
    std::vector<PyRef> items; // column after column
    std::vector<std::unique_ptr<PyValue>> cells;
};

PyValue::PyValue(PyObject* object, const Reading& reading)
    : object_(object),
      reading_(reading),
      code_(kUnknownClass) {
    if (reading_.depth > kDeepestList)
        throw PythonError(PyExc_ValueError, "lists are nested too deeply");
    if (!(readPlain() || readList() || readBuffer(object_) || readFrame() || readArray() ||
          readNumberLike() || readPath()))
        readUnknown();
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

bool PyValue::readList() {
    if (!isList(object_))
        return false;
    // A list may change while its elements are read.
    const PyRef items = checked(PySequence_Tuple(object_));
    const auto count = static_cast<std::size_t>(PyTuple_GET_SIZE(items.get()));
    code_ = HvCellClass;
    setShape(count == 0 ? 0 : 1, count);
    if (reading_.rowsAreTables && count > 1)
        readTableRows(items);
    if (elements().items.empty())
        for (std::size_t i = 0; i < count; ++i)
            elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(items.get(), i)));
    return true;
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
    const Py_ssize_t nColumns = PyTuple_GET_SIZE(inner.front().get());
    for (Py_ssize_t c = 0; c < nColumns; ++c)
        for (const PyRef& row : inner)
            elements().items.push_back(PyRef::share(PyTuple_GET_ITEM(row.get(), c)));
    if (nColumns > 0)
        setShape(static_cast<std::size_t>(nRows), static_cast<std::size_t>(nColumns));
}

bool PyValue::readBuffer(PyObject* object) {
    const PyBuffer buffer(object);
    if (!buffer.isReadable())
        return false;
    const std::vector<std::size_t>& shape = buffer.getShape();
    code_ = buffer.getClassCode();
    if (shape.size() > 2) {
        nDimensions_ = static_cast<unsigned int>(shape.size());
        elements().shape = shape; // such an array counts as empty: nothing more is read
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
    // Contents of integers hold an int each.
    if (code_ >= HvFirstIntegerClass && !std::all_of(numbers.begin(), numbers.end(), fitsInt))
        code_ = HvDoubleClass;
    return true;
}

/// Tables with named columns, whatever library they are of.
bool PyValue::readFrame() {
    if (!PyObject_HasAttrString(object_, "columns") || !PyObject_HasAttrString(object_, "to_numpy"))
        return false;
    const PyRef labels = checked(PySequence_Tuple(checked(PyObject_GetAttrString(object_, "columns")).get()));
    readItems(checked(PyObject_CallMethod(object_, "to_numpy", nullptr)).get());
    const std::size_t nRows = dimensions_[0];
    const std::size_t nColumns = dimensions_[1];
    const bool isTable = code_ == HvCellClass && nDimensions_ == 2;
    if (!isTable || nColumns != static_cast<std::size_t>(PyTuple_GET_SIZE(labels.get())))
        throw PythonError(PyExc_ValueError, "to_numpy() doesn't give a row of what columns says");
    std::vector<PyRef> items;
    for (std::size_t c = 0; c < nColumns; ++c) {
        items.push_back(checked(PyObject_Str(PyTuple_GET_ITEM(labels.get(), static_cast<Py_ssize_t>(c)))));
        for (std::size_t r = 0; r < nRows; ++r)
            items.push_back(elements().items[c * nRows + r]);
    }
    elements().items = std::move(items);
    setShape(nRows + 1, nColumns);
    return true;
}

/// Arrays whose elements aren't numbers, and what gives an array.
bool PyValue::readArray() {
    if (!PyObject_HasAttrString(object_, "__array__"))
        return false;
    const PyRef array = checked(PyObject_CallMethod(object_, "__array__", nullptr));
    if (!readBuffer(array.get()))
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

/// Times count in units of their own as numbers; as texts they are what they mean.
PyRef makeReadable(PyObject* array) {
    const PyRef kind = getAttribute(getAttribute(array, "dtype").get(), "kind");
    const bool isTime =
        PyUnicode_Check(kind.get()) && (PyUnicode_CompareWithASCIIString(kind.get(), "M") == 0 ||
                                        PyUnicode_CompareWithASCIIString(kind.get(), "m") == 0);
    return isTime ? checked(PyObject_CallMethod(array, "astype", "s", "str")) : PyRef::share(array);
}

} // namespace

/// The elements of an array as the Python objects that it gives for them.
void PyValue::readItems(PyObject* array) {
    const std::vector<std::size_t> shape = getArrayShape(array);
    code_ = HvCellClass;
    reading_.textOfUnknown = true;
    if (shape.size() > 2) {
        nDimensions_ = static_cast<unsigned int>(shape.size());
        elements().shape = shape; // such an array counts as empty: nothing more is read
        return;
    }
    if (shape.empty()) { // one element, such as a date
        setText(checked(PyObject_Str(makeReadable(array).get())));
        return;
    }
    const std::size_t rows = shape.size() == 2 ? shape[0] : 1;
    const std::size_t columns = shape.back();
    setShape(rows, columns);
    const PyRef flat = checked(PyObject_CallMethod(makeReadable(array).get(), "ravel", "s", "F"));
    const PyRef list = checked(PyObject_CallMethod(flat.get(), "tolist", nullptr));
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
    if (!PyObject_HasAttrString(object_, "__fspath__"))
        return false;
    PyObject* text = nullptr;
    if (!PyUnicode_FSDecoder(object_, &text))
        throw PythonError();
    setText(PyRef::take(text));
    return true;
}

void PyValue::readUnknown() {
    // Dates and times say what they are.
    if (reading_.textOfUnknown || PyObject_HasAttrString(object_, "isoformat"))
        setText(checked(PyObject_Str(object_)));
}

// What they have in common

void PyValue::setScalar(int code, double number) {
    code_ = code;
    number_ = number;
}

void PyValue::setInteger(PyObject* number) {
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

const hvArray* PyValue::getCell(std::size_t i) const {
    if (!elements_ || i >= elements_->items.size())
        return nullptr;
    elements_->cells.resize(elements_->items.size());
    std::unique_ptr<PyValue>& cell = elements_->cells[i];
    if (!cell)
        cell = std::make_unique<PyValue>(elements_->items[i].get(),
                                         Reading{false, reading_.textOfUnknown, reading_.depth + 1});
    return cell.get();
}

boost::shared_ptr<objreg::HostInterface> PyValue::getObject(std::size_t) const {
    objreg::HostInterface* slot = code_ == HvObjectClass ? findSlot(object_) : nullptr;
    // The object that Python holds lives as long as this view.
    return boost::shared_ptr<objreg::HostInterface>(boost::shared_ptr<void>(), slot);
}

} // namespace vellox::ppt::python
