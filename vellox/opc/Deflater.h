/// @file
/// Compression of a package's entries.

#ifndef VELLOX_OPC_DEFLATER_H
#define VELLOX_OPC_DEFLATER_H

#include <libdeflate.h>
#include <zip.h>

#include <memory>
#include <string>

#include "vellox/opc/Compression.h"

namespace opc {

/// One compressor for all entries of an archive: setting one up costs as much as deflating a small slide.
class Deflater {
public:
    explicit Deflater(Compression compression);

    /// A source whose bytes arrive deflated, for libzip to copy as they are. They are deflated when libzip comes
    /// to them, so that one entry at a time is in memory twice. Bytes and deflater must outlive the source.
    /// @return a null pointer with the error in the archive if there is no memory left
    zip_source_t* makeSource(zip_t* archive, const std::string& bytes) const;
    /// The level that stands for the same in libzip's own compression, by which files are taken in small blocks.
    zip_uint32_t getZlibLevel() const;

private:
    Compression compression_;
    std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor_;
};

} // namespace opc

#endif
