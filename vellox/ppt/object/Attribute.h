/// @file
/// Optional values. An unset attribute means that the template's value stands.

#ifndef VELLOX_PPT_OBJECT_ATTRIBUTE_H
#define VELLOX_PPT_OBJECT_ATTRIBUTE_H

#include <optional>

namespace vellox::ppt {

/// A value that may be set or not, whatever its type.
class Attribute {
public:
    virtual ~Attribute() = default;
    virtual bool isSet() const = 0;
    /// Forgets the value.
    virtual void unset() = 0;
    /// The same answer as isSet().
    virtual bool hasValue() const = 0;
};

/// An optional value of type T. Copies are independent.
template <class T> class BaseAttribute : public Attribute {
public:
    BaseAttribute() = default;
    explicit BaseAttribute(const T& value) : value_(value) {}

    bool isSet() const override { return value_.has_value(); }
    void unset() override { std::optional<T>().swap(value_); }
    bool hasValue() const override { return isSet(); }
    virtual void set(const T& value) { std::optional<T>(value).swap(value_); }
    /// The value.
    /// @throws std::bad_optional_access if there is none
    const T& get() const { return value_.value(); }

private:
    std::optional<T> value_; // a former value ends last: what ends with it may ask for this attribute
};

} // namespace vellox::ppt

#endif
