#include "vellox/opc/XercesProcess.h"

#include <new>
#include <xercesc/util/PlatformUtils.hpp>

namespace opc {

namespace {

// The blocks from which a document takes its nodes. A slide is a small document and a deck has thousands:
// Xerces' own sizes (16 kB, doubling up to 128 kB) would leave most of each last block empty.
constexpr XMLSize_t kFirstDomBlock = 8 << 10;
constexpr XMLSize_t kLargestDomBlock = 32 << 10;
constexpr XMLSize_t kLargestFromBlock = 1 << 10;

class Memory : public xercesc::MemoryManager {
public:
    void* allocate(XMLSize_t size) override { return ::operator new(size); }
    void deallocate(void* block) override { ::operator delete(block); }
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
};

} // namespace

xercesc::MemoryManager& getXercesMemory() {
    static Memory& memory = *new Memory; // documents may end later than anything that is static
    return memory;
}

namespace {

bool start() {
    xercesc::XMLPlatformUtils::Initialize(kFirstDomBlock, kLargestDomBlock, kLargestFromBlock,
                                          xercesc::XMLUni::fgXercescDefaultLocale, nullptr, nullptr,
                                          &getXercesMemory());
    return true;
}

} // namespace

XercesProcess::XercesProcess() {
    static const bool isStarted = start();
    static_cast<void>(isStarted);
}

} // namespace opc
