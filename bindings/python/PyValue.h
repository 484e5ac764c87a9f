/// @file
/// A Python object as the library reads host values.

#ifndef BINDINGS_PYTHON_PYVALUE_H
#define BINDINGS_PYTHON_PYVALUE_H

#include <memory>
#include <string>
#include <vector>

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/Digits.h"
#include "vellox/host/values/hvArray.h"
#include "vellox/host/values/hvFields.h"

namespace vellox::ppt::python {

/// What the reading of a value depends on besides the value.
struct Reading {
    bool rowsAreTables = false;  ///< a list of equally long lists is a table, else a row of rows
    bool imagesAreBytes = false; ///< what holds an image, or can make one, is that image's bytes
    hostbind::Digits digits = hostbind::Digits::OfItems;
    unsigned int depth = 0; ///< how many lists this value stands in
    bool fields = false;    ///< dictionaries are values under names, else they are what their texts say
};

/// A view of a Python object, which it doesn't own; made on the stack for the time of a call. Elements of lists
/// and arrays are converted once, when they are first asked for.
///
/// | Python                                  | host class                                    |
/// |-----------------------------------------|-----------------------------------------------|
/// | None, a masked entry                    | double, empty                                 |
/// | bool                                    | logical                                       |
/// | int, what has `__index__`               | int32, beyond its range double                |
/// | the same, of 2^53 and more, in a list   | char                                          |
/// | float, what has `__float__`             | double                                        |
/// | str, what has `__fspath__`              | char                                          |
/// | list, tuple                             | cells, of one row                             |
/// | buffers, such as arrays of NumPy        | logical, the integer class, single or double  |
/// | arrays of anything else                 | cells of the array's shape                    |
/// | what has `columns` and `to_numpy`       | cells: the names of the columns, then the rows|
/// | a dictionary that stands in no list     | the same, its values being the columns        |
/// | what has `__array__` and `to_numpy`     | as an array, or cells of one row              |
/// | dictionaries, where fields are wanted   | fields                                        |
/// | what has a `__str__` of its own         | char                                          |
/// | in a list, what has a `__repr__` too    | char                                          |
/// | objects of the library                  | object                                        |
/// | where images are bytes: bytes, streams, | uint8, of one row                             |
/// | what has `savefig`, `save`, `_repr_png_`|                                               |
class PyValue : public hvArray, public hvFields {
public:
    /// @throws PythonError for an object that fails to give what it promises
    explicit PyValue(PyObject* object, const Reading& reading = {});
    ~PyValue() override;
    PyValue(const PyValue&) = delete;
    PyValue& operator=(const PyValue&) = delete;

    int getClassCode() const override { return code_; }
    std::string getClassName() const override;
    unsigned int getNDimensions() const override { return nDimensions_; }
    std::size_t getDimension(unsigned int i) const override;

    double getDouble() const override;
    int getInteger() const override;
    bool getLogical() const override;
    std::wstring getString() const override;
    const bool* getLogicals() const override;
    const double* getDoubles() const override;
    std::vector<unsigned char> getBytes() const override;
    const hvArray* getCell(std::size_t i) const override;
    boost::shared_ptr<objreg::HostInterface> getObject(std::size_t i) const override;

    bool hasFields() const override;
    std::size_t getNFields() const override;
    std::wstring getFieldName(std::size_t i) const override;
    const hvArray& getField(std::size_t i) const override;

private:
    struct Elements;

    /// @{ One kind of object each; false if it isn't of the kind.
    bool readPlain();
    bool readImage();
    bool readList();
    bool readBuffer(PyObject* object);
    bool readFrame();
    bool readDictionary();
    bool readArray();
    bool readFields();
    bool readNumberLike();
    bool readText();
    bool readPath();
    /// @}
    void read();

    void setScalar(int code, double number);
    void setInteger(PyObject* number);
    void setText(PyRef text);
    void setShape(std::size_t rows, std::size_t columns);
    void readTableRows(const PyRef& rows);
    void readRow(const PyRef& items);
    void readItems(PyObject* array);
    void readOnlyElement(PyObject* array);
    Elements& elements();

    PyObject* object_;
    PyRef element_; // of an array of one, which is read in the array's place
    Reading reading_;
    int code_;
    unsigned int nDimensions_ = 2;
    std::size_t dimensions_[2] = {1, 1};
    double number_ = 0;
    PyRef text_;
    PyRef image_; // bytes
    std::unique_ptr<Elements> elements_;
};

} // namespace vellox::ppt::python

#endif
