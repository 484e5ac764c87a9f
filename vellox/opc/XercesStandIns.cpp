// What takes the places of parts of Xerces where a program or the library holds its archive; see cmake/Xerces.cmake. The
// linker takes no member of an archive for symbols that it has already.

#include <cstdio>
#include <cstdlib>
#include <xercesc/util/DefaultPanicHandler.hpp>
#include <xercesc/util/NetAccessors/Curl/CurlNetAccessor.hpp>

XERCES_CPP_NAMESPACE_BEGIN

/// @{ Nothing is ever read from the net, and curl brings thirty libraries that each process would load.
const XMLCh CurlNetAccessor::fgMyName[] = {0};

CurlNetAccessor::CurlNetAccessor() = default;
CurlNetAccessor::~CurlNetAccessor() = default;
void CurlNetAccessor::initCurl() {}
void CurlNetAccessor::cleanupCurl() {}

BinInputStream* CurlNetAccessor::makeNew(const XMLURL& url, const XMLNetHTTPInfo*) {
    ThrowXMLwithMemMgr1(NetAccessorException, XMLExcepts::NetAcc_CreateSocket, url.getURLText(),
                        url.getMemoryManager());
}
/// @}

// Xerces' own is compiled for programs, and reaches the standard error stream as no shared library can.
void DefaultPanicHandler::panic(const PanicHandler::PanicReasons reason) {
    std::fprintf(stderr, "Xerces: %s\n", PanicHandler::getPanicReasonString(reason));
    std::exit(-1);
}

XERCES_CPP_NAMESPACE_END

// The tables that Xerces makes for schemas when it starts. Documents are read without, and the tables would take a quarter
// of the time and the memory of a small deck. The linker's --wrap leads Xerces here.
extern "C" { // NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
void __wrap__ZN11xercesc_3_214XMLInitializer23initializeRangeTokenMapEv() {}
void __wrap__ZN11xercesc_3_214XMLInitializer27initializeRegularExpressionEv() {}
void __wrap__ZN11xercesc_3_214XMLInitializer34initializeDatatypeValidatorFactoryEv() {}
void __wrap__ZN11xercesc_3_214XMLInitializer31initializeGeneralAttributeCheckEv() {}
void __wrap__ZN11xercesc_3_214XMLInitializer25initializeComplexTypeInfoEv() {}
} // NOLINTEND(bugprone-reserved-identifier)
