#include "vellox/opc/XercesProcess.h"

#include <boost/make_shared.hpp>
#include <new>
#include <xercesc/util/PlatformUtils.hpp>

namespace opc {

// The blocks from which a document takes its nodes. A slide is a small document and a deck has thousands:
// Xerces' own sizes (16 kB, doubling up to 128 kB) would leave most of each last block empty.
constexpr XMLSize_t kFirstDomBlock = 8 << 10;
constexpr XMLSize_t kLargestDomBlock = 32 << 10;
constexpr XMLSize_t kLargestFromBlock = 1 << 10;

namespace {

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

class XercesProcess::Run {
public:
    Run() {
        xercesc::XMLPlatformUtils::Initialize(kFirstDomBlock, kLargestDomBlock, kLargestFromBlock,
                                              xercesc::XMLUni::fgXercescDefaultLocale, nullptr, nullptr,
                                              &getXercesMemory());
    }
    ~Run() { xercesc::XMLPlatformUtils::Terminate(); }
};

XercesProcess::XercesProcess() {
    // Starting takes milliseconds, so that one hold is kept between presentations.
    static const boost::shared_ptr<Run> kept = boost::make_shared<Run>();
    run_ = kept;
}

} // namespace opc
