/// @file
/// What the XML of one package may cost.

#ifndef VELLOX_OPC_XMLBUDGET_H
#define VELLOX_OPC_XMLBUDGET_H

#include <algorithm>
#include <cstdint>

#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"

namespace opc {

/// One account for all that is read of a package: parts that are modest each can be too much together, and a
/// part that is read again costs again. It grows with the container, so that a large deck is no hostile one.
class XmlBudget {
public:
    explicit XmlBudget(std::uint64_t containerBytes)
        : left_(std::clamp(std::min(containerBytes, kXmlCostCeiling) * kXmlCostPerByte, kXmlCostFloor,
                           kXmlCostCeiling)) {}

    /// @throws opc::Exception if there isn't as much left
    void take(std::uint64_t cost) {
        if (cost > left_)
            throw Exception("all that is read of the package is far too much for a file of its size");
        left_ -= cost;
    }

private:
    std::uint64_t left_;
};

} // namespace opc

#endif
