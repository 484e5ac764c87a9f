/// @file
/// Unpacking an archive onto the disk.

#ifndef VELLOX_HOST_SERVICES_UNZIP_H
#define VELLOX_HOST_SERVICES_UNZIP_H

#include <string>

namespace vellox::host {

/// Unpacks all files of an archive into a folder, which is made if it isn't there. An entry whose name
/// leads out of the folder fails the call, as does an archive beyond the library's limits; what was
/// unpacked until then stays.
bool unpackArchive(const std::string& archiveUtf8, const std::string& folderUtf8);

} // namespace vellox::host

#endif
