#include "vellox/host/services/Wrappable.h"

namespace objreg {

HostInterface::~HostInterface() = default;

factory::full::Wrappable::~Wrappable() {
    if (hostInterface_)
        hostInterface_->retract();
}

} // namespace objreg
