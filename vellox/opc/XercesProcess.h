/// @file
/// Xerces, started once it is needed.

#ifndef VELLOX_OPC_XERCESPROCESS_H
#define VELLOX_OPC_XERCESPROCESS_H

#include <xercesc/framework/MemoryManager.hpp>

namespace opc {

/// Whoever owns a Xerces object has one of these, declared ahead of the object. The first starts Xerces, which
/// takes milliseconds; nothing ends it, since a presentation may be made, or closed, in the last moments of the
/// process.
class XercesProcess {
public:
    XercesProcess();
};

/// Where the Xerces of this library takes its memory. It throws std::bad_alloc where there is no more; Xerces'
/// own throws a class that no handler of std::exception catches. Lives as long as the process.
xercesc::MemoryManager& getXercesMemory();

} // namespace opc

#endif
