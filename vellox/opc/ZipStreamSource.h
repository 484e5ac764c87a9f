/// @file
/// Standard streams as libzip wants them.

#ifndef VELLOX_OPC_ZIPSTREAMSOURCE_H
#define VELLOX_OPC_ZIPSTREAMSOURCE_H

#include <zip.h>

#include <istream>
#include <ostream>

namespace opc {

/// A source that reads an archive from a stream, which must outlive it.
zip_source_t* makeReadSource(std::istream& stream, zip_error_t* error);

/// A source that writes a new archive to an empty stream, which must outlive it.
zip_source_t* makeWriteSource(std::ostream& stream, zip_error_t* error);

} // namespace opc

#endif
