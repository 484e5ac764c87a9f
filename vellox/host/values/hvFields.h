/// @file
/// Values under names, as hosts have them: dictionaries, structures.

#ifndef VELLOX_HOST_VALUES_HVFIELDS_H
#define VELLOX_HOST_VALUES_HVFIELDS_H

#include <string>

#include "vellox/host/values/hvArray.h"

namespace vellox {

/// What an adapter's value can be beside an hvArray.
class VELLOX_API hvFields {
public:
    virtual ~hvFields();

    /// Whether this value holds any. The others then say nothing.
    virtual bool hasFields() const = 0;
    virtual std::size_t getNFields() const = 0;
    /// @param i from 0, below getNFields()
    virtual std::wstring getFieldName(std::size_t i) const = 0;
    /// It belongs to this value.
    virtual const hvArray& getField(std::size_t i) const = 0;
};

/// The fields of a value; null if it has none.
VELLOX_API const hvFields* findFields(const hvArray& value);

} // namespace vellox

#endif
