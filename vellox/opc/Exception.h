/// @file
/// The one exception of the package layer.

#ifndef VELLOX_OPC_EXCEPTION_H
#define VELLOX_OPC_EXCEPTION_H

#include <exception>
#include <string>

namespace opc {

/// A package, a part or its XML can't be read or written. The text says what and where, in English and
/// UTF-8; the callers of the layer put it into identified errors.
class Exception : public std::exception {
public:
    explicit Exception(std::string message) : message_(std::move(message)) {}
    const char* what() const noexcept override { return message_.c_str(); }

private:
    std::string message_;
};

} // namespace opc

#endif
