#include "vellox/opc/XercesProcess.h"

#include <xercesc/util/PlatformUtils.hpp>

namespace opc {

namespace {

// The blocks from which a document takes its nodes. A slide is a small document and a deck has thousands:
// Xerces' own sizes (16 kB, doubling up to 128 kB) would leave most of each last block empty.
constexpr XMLSize_t kFirstDomBlock = 8 << 10;
constexpr XMLSize_t kLargestDomBlock = 32 << 10;
constexpr XMLSize_t kLargestFromBlock = 1 << 10;

bool start() {
    xercesc::XMLPlatformUtils::Initialize(kFirstDomBlock, kLargestDomBlock, kLargestFromBlock);
    return true;
}

} // namespace

XercesProcess::XercesProcess() {
    static const bool isStarted = start();
    static_cast<void>(isStarted);
}

} // namespace opc
