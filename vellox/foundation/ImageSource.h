/// @file
/// Where an image comes from.

#ifndef VELLOX_FOUNDATION_IMAGESOURCE_H
#define VELLOX_FOUNDATION_IMAGESOURCE_H

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>

#include "vellox/foundation/ImageTraits.h"
#include "vellox/foundation/InfoUtils.h"

namespace vellox {

/// A file, or bytes in memory, or nothing. A value; copies share the bytes.
class ImageSource {
public:
    using Bytes = boost::shared_ptr<const std::string>;

    ImageSource() = default;
    explicit ImageSource(const std::wstring& path) : path_(path) {}
    /// @throws unknownImageBytes for bytes that are no image of a known kind
    explicit ImageSource(std::string bytes);
    /// Bytes of a kind that is known.
    ImageSource(std::string bytes, const std::wstring& extension);

    bool isEmpty() const { return path_.empty() && !bytes_; }
    /// The path of a file; empty for bytes.
    const std::wstring& getPath() const { return path_; }
    /// Null for a file.
    const Bytes& getBytes() const { return bytes_; }
    /// The path of a file; a name with the extension for the kind of the bytes.
    std::wstring getFileName() const;
    /// Of a file by its extension, as InfoUtils has it.
    ImageInfo getInfo() const;
    /// @return nothing that says anything if it can't be read
    ImageTraits getTraits() const;
    /// A stream from the first byte; null for what is no regular file.
    std::unique_ptr<std::istream> open() const;

private:
    std::wstring path_;
    Bytes bytes_;
    std::wstring extension_; // of bytes
};

} // namespace vellox

#endif
