/// @file
/// Xerces, started for as long as anything uses it.

#ifndef VELLOX_OPC_XERCESPROCESS_H
#define VELLOX_OPC_XERCESPROCESS_H

#include <boost/shared_ptr.hpp>
#include <xercesc/framework/MemoryManager.hpp>

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

/// Where the Xerces of this library takes its memory. It throws std::bad_alloc where there is no more; Xerces'
/// own throws a class that no handler of std::exception catches. Lives as long as the process.
xercesc::MemoryManager& getXercesMemory();

} // namespace opc

#endif
