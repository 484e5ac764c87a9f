/// @file
/// A value of the host language, as the library reads it: a class, dimensions, elements. An adapter for a
/// host fills this record; the library never looks at a host value in any other way.

#ifndef VELLOX_HOST_VALUES_HVARRAY_H
#define VELLOX_HOST_VALUES_HVARRAY_H

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox {

/// The classes of host values that the library tells apart. A host may have others.
enum HvClass : int {
    HvCellClass = 1,
    HvLogicalClass = 3,
    HvCharClass = 4,
    HvDoubleClass = 6,
    HvSingleClass = 7,
    HvFirstIntegerClass = 8, ///< int8; uint8, int16 ... follow
    HvUint8Class = 9,
    HvUint32Class = 13,
    HvLastIntegerClass = 15, ///< uint64
    HvObjectClass = 17
};

/// One host value. Elements are numbered with the first dimension running fastest. An operation that doesn't
/// fit the class of the value gives zero, an empty text or a null pointer.
class VELLOX_API hvArray {
public:
    virtual ~hvArray();

    virtual int getClassCode() const = 0;
    /// The host's own name of the class.
    virtual std::string getClassName() const = 0;
    virtual unsigned int getNDimensions() const = 0;
    /// @param i a dimension, from 0; below getNDimensions()
    virtual std::size_t getDimension(unsigned int i) const = 0;
    /// The product of the dimensions.
    std::size_t getNElements() const;
    /// The number of the element that the indices, from 0, stand for.
    virtual std::size_t getSubscript(const std::vector<unsigned int>& indices) const;

    /// @{ The first element of a numeric or logical value.
    virtual double getDouble() const;
    virtual int getInteger() const;
    virtual bool getLogical() const;
    /// @}
    /// The whole of a char value as one text.
    virtual std::wstring getString() const;
    /// The elements of a logical value; they live as long as the value.
    virtual const bool* getLogicals() const;
    /// The elements of a numeric value of any class, each as a double; they live as long as the value.
    virtual const double* getDoubles() const;
    /// The elements of a uint8 value.
    virtual std::vector<unsigned char> getBytes() const;
    /// Element i of a cell value; it belongs to this value. Null for an element that isn't there.
    virtual const hvArray* getCell(std::size_t i) const;
    /// Element i of an object value; empty if that isn't an object of the host's object system.
    virtual boost::shared_ptr<objreg::HostInterface> getObject(std::size_t i) const;
};

} // namespace vellox

#endif
