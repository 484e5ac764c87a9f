#include "vellox/host/binding/Packages.h"

namespace vellox::ppt::hostbind {

namespace {

constexpr char kParent[] = "vellox";
const velloxPackage theVelloxPackage;
const pptPackage thePptPackage;

void registerInParent(HostClassSystem& host) {
    if (host.hasPackage(kPackage))
        thePptPackage.addContents(host);
    else
        host.addPackage(thePptPackage);
}

} // namespace

const char* velloxPackage::getFullName() const {
    return kParent;
}

void velloxPackage::addContents(HostClassSystem& host) const {
    registerInParent(host);
}

const char* pptPackage::getFullName() const {
    return kPackage;
}

void pptPackage::addContents(HostClassSystem& host) const {
    for (const BoundClass& bound : getBoundClasses())
        host.addClass(bound);
}

void registerPackages(HostClassSystem& host) {
    if (host.hasPackage(kParent))
        registerInParent(host);
    else
        host.addPackage(theVelloxPackage);
}

} // namespace vellox::ppt::hostbind
