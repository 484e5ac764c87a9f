/// @file
/// Xerces, started once it is needed.

#ifndef VELLOX_OPC_XERCESPROCESS_H
#define VELLOX_OPC_XERCESPROCESS_H

namespace opc {

/// Whoever owns a Xerces object has one of these, declared ahead of the object. The first starts Xerces, which
/// takes milliseconds; nothing ends it, since a presentation may be made, or closed, in the last moments of the
/// process.
class XercesProcess {
public:
    XercesProcess();
};

} // namespace opc

#endif
