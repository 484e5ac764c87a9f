#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::ppt::hostbind {

namespace {

HostClassSystem* hostInForce = nullptr;

} // namespace

HostPackageInfo::~HostPackageInfo() = default;
HostClass::~HostClass() = default;
HostClassSystem::~HostClassSystem() = default;

void initializeClass(HostClass& hostClass, const BoundClass& bound) {
    for (const std::string& superclass : bound.superclasses)
        hostClass.declareSuperclass(superclass);
    for (const BoundConstructor& constructor : bound.constructors)
        hostClass.declareConstructor(constructor);
    for (const BoundProperty& property : bound.properties)
        hostClass.declareProperty(property);
    for (const BoundMethod& method : bound.methods)
        hostClass.declareMethod(method);
    for (const BoundEvent& event : bound.events)
        hostClass.declareEvent(event);
}

void setHostClassSystem(HostClassSystem* host) {
    hostInForce = host;
}

HostClassSystem* getHostClassSystem() {
    return hostInForce;
}

} // namespace vellox::ppt::hostbind
