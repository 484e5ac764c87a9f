/// @file
/// Compression of a package's entries.

#ifndef VELLOX_OPC_DEFLATER_H
#define VELLOX_OPC_DEFLATER_H

#include <libdeflate.h>
#include <zip.h>

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>

#include "vellox/opc/Compression.h"

namespace opc {

/// The content of an entry as an archive holds it.
struct Deflated {
    std::string bytes;
    std::size_t fullSize = 0;
    zip_uint32_t checksum = 0; ///< of the content

    std::string inflate() const;
};

/// One compressor for all entries of an archive: setting one up costs as much as deflating a small slide.
class Deflater {
public:
    explicit Deflater(Compression compression);

    /// Small contents that have come before, as the relationships of one slide are those of the next, aren't deflated
    /// again.
    boost::shared_ptr<const Deflated> deflate(const std::string& content);
    /// A source for libzip, which copies the bytes as they are.
    /// @return a null pointer with the error in the archive if there is no memory left
    static zip_source_t* makeSource(zip_t* archive, boost::shared_ptr<const Deflated> content);
    /// The level that stands for the same in libzip's own compression, by which files are taken in small blocks.
    zip_uint32_t getZlibLevel() const;

private:
    boost::shared_ptr<const Deflated> makeDeflated(const std::string& content);

    Compression compression_;
    std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor_;
    std::string space_; // to deflate into
    std::unordered_map<std::string, boost::shared_ptr<const Deflated>> small_;
};

} // namespace opc

#endif
