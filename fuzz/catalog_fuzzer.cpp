// The input is the file of a message catalog: it is read, or refused as a whole.

#include "vellox/foundation/CatalogFile.h"

#include <cstdint>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        vellox::readCatalogFile({data, data + size});
    } catch (const std::runtime_error&) {
    }
    return 0;
}
