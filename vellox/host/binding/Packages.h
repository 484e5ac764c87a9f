/// @file
/// The packages of the module: "vellox", and "vellox.ppt" in it.

#ifndef VELLOX_HOST_BINDING_PACKAGES_H
#define VELLOX_HOST_BINDING_PACKAGES_H

#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::ppt::hostbind {

/// The package "vellox".
class velloxPackage : public HostPackageInfo {
public:
    const char* getFullName() const override;
    void addContents(HostClassSystem& host) const override;
};

/// The package "vellox.ppt".
class pptPackage : public HostPackageInfo {
public:
    const char* getFullName() const override;
    void addContents(HostClassSystem& host) const override;
};

/// Adds what the host doesn't have yet: the package "vellox", which then holds all else, or "vellox.ppt" in
/// it, or the classes in that.
void registerPackages(HostClassSystem& host);

} // namespace vellox::ppt::hostbind

#endif
