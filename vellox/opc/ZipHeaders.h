/// @file
/// What the headers of an archive's entries say beside what libzip tells and writes.

#ifndef VELLOX_OPC_ZIPHEADERS_H
#define VELLOX_OPC_ZIPHEADERS_H

#include <cstdint>
#include <istream>
#include <vector>

namespace opc {

/// The headers of one entry. libzip takes times through the calendar of this place, where some can't be told
/// (an hour that daylight saving leaves out, a month 0), and chooses flags of its own.
struct ZipHeader {
    std::uint64_t directoryPlace = 0, localPlace = 0; // of the two headers in the archive
    std::uint16_t flags = 0;
    std::uint32_t time = 0; // with the date in the upper half, as the format has it
};

/// Reads the directory of an archive, in its order.
/// @return nothing if it can't be read, or isn't where the end of the archive says
std::vector<ZipHeader> readZipHeaders(std::istream& archive);

/// Gives an entry the time of another, and those flags that tell of its bytes and its name: how hard they were
/// deflated, and whether the name is UTF-8.
/// @param header of the entry, in the archive
void copyZipHeader(std::iostream& archive, const ZipHeader& header, const ZipHeader& source);

} // namespace opc

#endif
