// The input is an archive: its entries are read, or an error says why not.

#include "vellox/opc/Exception.h"
#include "vellox/opc/ZipPhysicalPackage.h"

#include <boost/make_shared.hpp>
#include <cstdint>
#include <sstream>
#include <string>

namespace {

constexpr std::size_t kMostBytes = 1 << 20; // of one input, so that none takes long

void readAll(opc::InputStream& stream, std::size_t& budget) {
    unsigned char block[4096];
    while (budget > 0) {
        const std::size_t count = stream.read(block, sizeof block);
        if (count == 0)
            return;
        budget -= count < budget ? count : budget;
    }
}

void readEntries(opc::PhysicalPackage& archive) {
    std::size_t budget = kMostBytes;
    if (archive.hasContentTypeStream())
        readAll(*archive.getContentTypeInputStream(), budget);
    for (const auto& part : archive.getParts()) {
        try {
            readAll(*part->openInput(), budget);
        } catch (const opc::Exception&) { // the next entry may be sound
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    opc::ZipPhysicalPackage archive(
        boost::make_shared<opc::StdIStreamAdaptor>(boost::make_shared<std::istringstream>(bytes)));
    try {
        archive.open(opc::OpenMode::Read);
        readEntries(archive);
        archive.close(false);
    } catch (const opc::Exception&) {
    }
    return 0;
}
