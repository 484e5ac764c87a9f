/// @file
/// The entries of an archive as they stand in its directory, before anything is made of them.

#ifndef VELLOX_OPC_ZIPDIRECTORY_H
#define VELLOX_OPC_ZIPDIRECTORY_H

#include <string>
#include <vector>

namespace opc {

struct ZipEntryFacts {
    std::string name; // UTF-8, as it is spelled
    bool isEncrypted;
    bool isUsualCompression; // stored or deflated
};

/// For those who ask what is wrong with an archive. ZipPhysicalPackage refuses what it can't use, and says why;
/// so there are no entries here for what is no archive, or a damaged, endless one.
std::vector<ZipEntryFacts> listZipEntries(const std::wstring& path);

} // namespace opc

#endif
