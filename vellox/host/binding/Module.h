/// @file
/// What a host finds by name when it loads the library as a module.

#ifndef VELLOX_HOST_BINDING_MODULE_H
#define VELLOX_HOST_BINDING_MODULE_H

#include <cstdint>

#include "vellox/Api.h"

extern "C" {

/// The functions of the module that a host could call directly. There are none: all access goes through the
/// bound classes.
struct HostFcnTable {
    const void* const* functions; ///< ends with a null pointer; empty
    std::uint32_t stamps[2];
    std::uintptr_t reserved[3];
};

/// Registers the packages with the host in force, and connects its listeners. A second call does nothing, nor
/// does a call while no host is in force.
VELLOX_API void HostInitialize_vellox_ppt();

/// Lets go of what a user's filter holds, and disconnects the host's listeners. A second call does nothing.
VELLOX_API void HostTerminate_vellox_ppt();

VELLOX_API const HostFcnTable* QueryHostFcnTable_vellox_ppt();

/// Four decimal numbers with dots between them.
extern VELLOX_API const char* const vellox_ppt_version;
/// Such as "Mar  1 2026".
extern VELLOX_API const char* const vellox_ppt_build_date;

} // extern "C"

#endif
