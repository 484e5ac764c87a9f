/// @file
/// The elements of what has the buffer protocol, such as an array of NumPy, in whatever layout it keeps them.

#ifndef BINDINGS_PYTHON_PYBUFFER_H
#define BINDINGS_PYTHON_PYBUFFER_H

#include <memory>
#include <vector>

#include "bindings/python/PyRef.h"

namespace vellox::ppt::python {

/// The numbers of an array, copied into the order that the library reads: the first dimension fastest.
/// Their bytes may stand in either order.
class PyBuffer {
public:
    /// Opens an object's buffer. Whoever has none, or one of elements that are no numbers, is not readable.
    explicit PyBuffer(PyObject* object);
    ~PyBuffer();
    PyBuffer(const PyBuffer&) = delete;
    PyBuffer& operator=(const PyBuffer&) = delete;

    bool isReadable() const { return code_ != 0; }
    /// The host class of the elements.
    int getClassCode() const { return code_; }
    const std::vector<std::size_t>& getShape() const { return shape_; }

    /// The first element of a readable buffer that has one.
    double readFirst() const;
    /// @{ Of a readable buffer of at most two dimensions; one dimension is a row.
    std::vector<double> readNumbers() const;
    /// Whole numbers of eight bytes, of which no digit is lost.
    std::vector<PyRef> readIntegers() const;
    std::unique_ptr<bool[]> readLogicals() const;
    /// @}

private:
    template <class Use> void visit(Use use) const;
    template <class Use> void useElement(const void* element, Use use) const;

    Py_buffer view_ = {};
    std::vector<Py_ssize_t> strides_; // of a view that came without
    bool isOpen_ = false;
    bool isSwapped_ = false; // the bytes of each element stand the other way round
    double (*read_)(const char* element) = nullptr;
    int code_ = 0;
    std::vector<std::size_t> shape_;
};

} // namespace vellox::ppt::python

#endif
