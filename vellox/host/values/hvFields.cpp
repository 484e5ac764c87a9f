#include "vellox/host/values/hvFields.h"

namespace vellox {

hvFields::~hvFields() = default;

const hvFields* findFields(const hvArray& value) {
    const auto* fields = dynamic_cast<const hvFields*>(&value);
    return fields && fields->hasFields() ? fields : nullptr;
}

} // namespace vellox
