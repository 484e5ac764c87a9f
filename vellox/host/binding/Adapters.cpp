#include "vellox/host/binding/Adapters.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"

namespace vellox::ppt::hostbind {

bool toLogical(const hvArray& value) {
    const int code = value.getClassCode();
    if (code == HvLogicalClass && value.getNElements() == 1)
        return value.getLogical();
    if (code >= HvDoubleClass && code <= HvLastIntegerClass && value.getNElements() > 0)
        return value.getDouble() != 0;
    raise(ppt_error::invalidLogicalPropertyValue());
}

} // namespace vellox::ppt::hostbind
