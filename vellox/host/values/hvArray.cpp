#include "vellox/host/values/hvArray.h"

namespace vellox {

hvArray::~hvArray() = default;

std::size_t hvArray::getNElements() const {
    std::size_t count = 1;
    for (unsigned int i = 0; i < getNDimensions(); ++i)
        count *= getDimension(i);
    return getNDimensions() == 0 ? 0 : count;
}

std::size_t hvArray::getSubscript(const std::vector<unsigned int>& indices) const {
    std::size_t subscript = 0;
    for (std::size_t i = indices.size(); i-- > 0;)
        subscript = subscript * getDimension(static_cast<unsigned int>(i)) + indices[i];
    return subscript;
}

double hvArray::getDouble() const {
    return 0;
}

int hvArray::getInteger() const {
    return 0;
}

bool hvArray::getLogical() const {
    return false;
}

std::wstring hvArray::getString() const {
    return {};
}

const bool* hvArray::getLogicals() const {
    return nullptr;
}

const double* hvArray::getDoubles() const {
    return nullptr;
}

std::vector<unsigned char> hvArray::getBytes() const {
    const double* numbers = getClassCode() == HvUint8Class ? getDoubles() : nullptr;
    return numbers ? std::vector<unsigned char>(numbers, numbers + getNElements())
                   : std::vector<unsigned char>();
}

const hvArray* hvArray::getCell(std::size_t) const {
    return nullptr;
}

boost::shared_ptr<objreg::HostInterface> hvArray::getObject(std::size_t) const {
    return {};
}

} // namespace vellox
