#include "vellox/host/binding/PPTObjFromHostBase.h"

#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::hostbind {

namespace {

boost::shared_ptr<objreg::HostInterface> getFirstObject(const hvArray& value) {
    const bool isObject = value.getClassCode() == HvObjectClass && value.getNElements() > 0;
    return isObject ? value.getObject(0) : boost::shared_ptr<objreg::HostInterface>();
}

} // namespace

PPTObjFromHostBase::PPTObjFromHostBase(const hvArray& value, const std::string& className)
    : PPTObjFromHostBase(getFirstObject(value).get(), className) {}

PPTObjFromHostBase::PPTObjFromHostBase(const objreg::HostInterface* object, const std::string& className) {
    const ObjectPtr proxy = object ? object->getProxy() : ObjectPtr();
    if (proxy && isA(*proxy, className))
        proxy_ = proxy;
}

bool PPTObjFromHostBase::isA(const PPTObject& object, const std::string& className) {
    const BoundClass* wanted = findBoundClass(className);
    return wanted && wanted->isInstance && wanted->isInstance(object);
}

} // namespace vellox::ppt::hostbind
