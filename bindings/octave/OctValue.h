/// @file
/// A value of Octave as the library reads host values.

#ifndef BINDINGS_OCTAVE_OCTVALUE_H
#define BINDINGS_OCTAVE_OCTVALUE_H

#include <memory>
#include <vector>

#include "bindings/octave/Octave.h"
#include "vellox/host/binding/Digits.h"
#include "vellox/host/values/hvArray.h"
#include "vellox/host/values/hvFields.h"

namespace vellox::ppt::oct {

/// What the reading of a value depends on besides the value.
struct Reading {
    hostbind::Digits digits = hostbind::Digits::OfItems;
    bool fields =
        false; ///< a struct or a containers.Map has fields, unless it is a table within other values
    unsigned int depth = 0; ///< how many cell arrays or fields this value stands in
};

/// A view of a value, which it shares; made for the time of a call. Elements are converted once, when they are first
/// asked for.
///
/// | Octave                                            | host class                                 |
/// |---------------------------------------------------|--------------------------------------------|
/// | double, single, ranges, sparse and other matrices | double, single                             |
/// | integers, beyond the range of int32               | the integer class, double                  |
/// | the same, of 2^53 and more, in an array           | char                                       |
/// | NaN, NA, Inf in an array                          | char                                       |
/// | logical                                           | logical                                    |
/// | char, rows one below the other                    | char                                       |
/// | cell arrays                                       | cells                                      |
/// | a struct or a containers.Map of columns           | cells: the names, then the rows            |
/// | the same, where fields are wanted                 | none, with fields                          |
/// | an array of structs, where fields are wanted      | cells, of one row                          |
/// | objects of the library, and arrays of them        | objects                                    |
/// | function handles, anything else                   | none                                       |
class OctValue : public hvArray, public hvFields {
public:
    /// @throws octave::execution_exception for complex numbers, for cell arrays that are nested too deeply, and for
    /// matrices that are too large to be read
    explicit OctValue(octave_value value, const Reading& reading = {});
    ~OctValue() override;
    OctValue(const OctValue&) = delete;
    OctValue& operator=(const OctValue&) = delete;

    int getClassCode() const override { return code_; }
    std::string getClassName() const override;
    unsigned int getNDimensions() const override { return static_cast<unsigned int>(dimensions_.ndims()); }
    std::size_t getDimension(unsigned int i) const override;

    double getDouble() const override { return number_; }
    int getInteger() const override;
    bool getLogical() const override { return number_ != 0; }
    std::wstring getString() const override;
    const bool* getLogicals() const override;
    const double* getDoubles() const override;
    const hvArray* getCell(std::size_t i) const override;
    boost::shared_ptr<objreg::HostInterface> getObject(std::size_t i) const override;

    bool hasFields() const override { return names_.numel() > 0; }
    std::size_t getNFields() const override { return static_cast<std::size_t>(names_.numel()); }
    std::wstring getFieldName(std::size_t i) const override;
    const hvArray& getField(std::size_t i) const override { return getItem(i); }

private:
    void read();
    void requireUtf8() const;
    std::string getChars() const;
    void readNumbers();
    void readArray();
    void readCells(const Cell& cells);
    void readStructs();
    void readNamed(const Cell& names, const Cell& values);
    bool readColumns(const Cell& names, const Cell& columns);
    const OctValue& getItem(std::size_t i) const;
    void setText(const std::string& text);

    octave_value value_;
    Reading reading_;
    int code_ = 0;
    dim_vector dimensions_;
    double number_ = 0;
    boolNDArray logicals_;
    NDArray numbers_;
    Cell items_;
    Cell names_; // of fields
    mutable std::vector<std::unique_ptr<OctValue>> cells_;
};

} // namespace vellox::ppt::oct

#endif
