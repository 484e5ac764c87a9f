#include "vellox/host/binding/PPTObjFromHostBase.h"

#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::hostbind {

PPTObjFromHostBase::PPTObjFromHostBase(const hvArray& value, const std::string& className) {
    if (value.getClassCode() != HvObjectClass || value.getNElements() == 0)
        return;
    const boost::shared_ptr<objreg::HostInterface> object = value.getObject(0);
    const ObjectPtr proxy = object ? object->getProxy() : ObjectPtr();
    if (proxy && isA(*proxy, className))
        proxy_ = proxy;
}

bool PPTObjFromHostBase::isA(const PPTObject& object, const std::string& className) {
    const BoundClass* wanted = findBoundClass(className);
    return wanted && wanted->isInstance && wanted->isInstance(object);
}

} // namespace vellox::ppt::hostbind
