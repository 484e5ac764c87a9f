#include "bindings/python/PyBuffer.h"

#include "bindings/python/PyErrors.h"
#include "vellox/host/values/hvArray.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <tuple>

namespace vellox::ppt::python {

namespace {

template <class T> double readAs(const char* element) {
    T value;
    std::memcpy(&value, element, sizeof value); // elements needn't be aligned
    return static_cast<double>(value);
}

double readHalf(const char* element) {
    return PyFloat_Unpack2(element, PY_LITTLE_ENDIAN);
}

/// How the elements of a format are read. Formats name C types, whose sizes depend on a prefix; so the size is
/// part of the key.
constexpr struct {
    const char* formats;
    std::size_t size;
    int code;
    double (*read)(const char* element);
} kReaders[] = {
    {"?", 1, HvLogicalClass, readAs<std::uint8_t>},
    {"bhilqn", 1, 8, readAs<std::int8_t>},
    {"BHILQN", 1, 9, readAs<std::uint8_t>},
    {"bhilqn", 2, 10, readAs<std::int16_t>},
    {"BHILQN", 2, 11, readAs<std::uint16_t>},
    {"bhilqn", 4, 12, readAs<std::int32_t>},
    {"BHILQN", 4, HvUint32Class, readAs<std::uint32_t>},
    {"bhilqn", 8, 14, readAs<std::int64_t>},
    {"BHILQN", 8, HvLastIntegerClass, readAs<std::uint64_t>},
    {"e", 2, HvSingleClass, readHalf},
    {"f", 4, HvSingleClass, readAs<float>},
    {"d", 8, HvDoubleClass, readAs<double>},
    {"g", sizeof(long double), HvDoubleClass, readAs<long double>},
};

constexpr std::size_t kLargestElement = sizeof(long double);

/// The letter of a format of one element, and whether its bytes are in the order that isn't this machine's; 0 for
/// the format of several elements.
std::pair<char, bool> readFormat(const char* format) {
    if (!format)
        return {'B', false};
    const char* native = PY_LITTLE_ENDIAN ? "@=<" : "@=>!";
    const bool hasOrder = *format != 0 && std::strchr("@=<>!", *format);
    const bool isSwapped = hasOrder && !std::strchr(native, *format);
    const char* letter = hasOrder ? format + 1 : format;
    return {std::strlen(letter) == 1 ? *letter : '\0', isSwapped};
}

} // namespace

PyBuffer::PyBuffer(PyObject* object) {
    // The bytes of an encoded text are no numbers to show.
    if (!PyObject_CheckBuffer(object) || PyBytes_Check(object) || PyByteArray_Check(object))
        return;
    if (PyObject_GetBuffer(object, &view_, PyBUF_FULL_RO) < 0) {
        PyErr_Clear(); // some arrays, such as those of dates, can't be opened
        return;
    }
    isOpen_ = true;
    if (view_.ndim > 0 && !view_.strides) { // asked for, but not always given
        // A single date of NumPy gives its bytes in this way, an array of ctypes its elements.
        if (!view_.shape || PyObject_HasAttrString(object, "dtype"))
            return;
        strides_.resize(static_cast<std::size_t>(view_.ndim));
        PyBuffer_FillContiguousStrides(view_.ndim, view_.shape, strides_.data(),
                                       static_cast<int>(view_.itemsize), 'C');
        view_.strides = strides_.data();
    }
    char letter = '\0';
    std::tie(letter, isSwapped_) = readFormat(view_.format);
    for (const auto& row : kReaders) {
        if (letter != 0 && std::strchr(row.formats, letter) &&
            row.size == static_cast<std::size_t>(view_.itemsize)) {
            code_ = row.code;
            read_ = row.read;
        }
    }
    for (int i = 0; i < view_.ndim; ++i)
        shape_.push_back(static_cast<std::size_t>(view_.shape[i]));
}

PyBuffer::~PyBuffer() {
    if (isOpen_)
        PyBuffer_Release(&view_);
}

/// Calls use(element) for each element, column after column, with its bytes in this machine's order.
template <class Use> void PyBuffer::visit(Use use) const {
    Py_ssize_t indices[2] = {0, 0};
    const std::size_t rows = shape_.size() == 2 ? shape_[0] : 1;
    const std::size_t columns = shape_.empty() ? 1 : shape_.back();
    Py_ssize_t& row = indices[0];
    Py_ssize_t& column = shape_.size() == 2 ? indices[1] : indices[0];
    for (std::size_t c = 0; c < columns; ++c) {
        for (std::size_t r = 0; r < rows; ++r) {
            row = static_cast<Py_ssize_t>(r);
            column = static_cast<Py_ssize_t>(c);
            useElement(PyBuffer_GetPointer(&view_, indices), use);
        }
    }
}

template <class Use> void PyBuffer::useElement(const void* element, Use use) const {
    const auto* bytes = static_cast<const char*>(element);
    if (!isSwapped_)
        return use(bytes);
    char turned[kLargestElement] = {};
    std::reverse_copy(bytes, bytes + view_.itemsize, turned);
    use(turned);
}

double PyBuffer::readFirst() const {
    const std::vector<Py_ssize_t> start(shape_.size(), 0);
    double first = 0;
    useElement(PyBuffer_GetPointer(&view_, start.data()), [&](const char* e) { first = read_(e); });
    return first;
}

std::vector<double> PyBuffer::readNumbers() const {
    std::vector<double> numbers;
    visit([&](const char* element) { numbers.push_back(read_(element)); });
    return numbers;
}

std::vector<PyRef> PyBuffer::readIntegers() const {
    std::vector<PyRef> integers;
    visit([&](const char* element) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, element, sizeof bits);
        integers.push_back(checked(code_ == HvLastIntegerClass
                                       ? PyLong_FromUnsignedLongLong(bits)
                                       : PyLong_FromLongLong(static_cast<std::int64_t>(bits))));
    });
    return integers;
}

std::unique_ptr<bool[]> PyBuffer::readLogicals() const {
    std::unique_ptr<bool[]> logicals(new bool[static_cast<std::size_t>(view_.len) + 1]);
    bool* next = logicals.get();
    visit([&](const char* element) { *next++ = read_(element) != 0; });
    return logicals;
}

} // namespace vellox::ppt::python
