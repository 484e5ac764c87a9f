/// @file
/// Xerces, started for as long as anything uses it.

#ifndef VELLOX_OPC_XERCESPROCESS_H
#define VELLOX_OPC_XERCESPROCESS_H

#include <boost/shared_ptr.hpp>

namespace opc {

/// A hold on the running Xerces. It is started by the first holder and ended with the last, which may be a
/// presentation that dies in the last moments of the process: whoever owns a Xerces object keeps one of
/// these, declared ahead of the object.
class XercesProcess {
public:
    XercesProcess();

private:
    class Run;
    boost::shared_ptr<Run> run_;
};

} // namespace opc

#endif
