/// @file
/// Files that become entries of an archive.

#ifndef VELLOX_OPC_ZIPFILESOURCE_H
#define VELLOX_OPC_ZIPFILESOURCE_H

#include <zip.h>

#include <string>

namespace opc {

/// A source that opens a file when libzip comes to it, and reads it once, in blocks. libzip's own takes several
/// times as many calls to the system.
/// @return a null pointer with the error in the archive if there is no memory left
zip_source_t* makeFileSource(zip_t* archive, const std::string& path);

} // namespace opc

#endif
