/// @file
/// A block of bytes as a stream of the package layer.

#ifndef VELLOX_OPC_BYTEARRAYINPUTSTREAM_H
#define VELLOX_OPC_BYTEARRAYINPUTSTREAM_H

#include <algorithm>
#include <limits>

#include "vellox/foundation/ByteArray.h"
#include "vellox/opc/Streams.h"

/// Reads a ByteArray, which it doesn't own, from the array's own position on.
class ByteArrayInputStream : public opc::InputStream {
public:
    explicit ByteArrayInputStream(vellox::ByteArray* bytes) : bytes_(bytes) {}
    std::size_t read(unsigned char* target, std::size_t count) override {
        constexpr std::size_t kMost = std::numeric_limits<unsigned int>::max();
        return bytes_->read(target, static_cast<unsigned int>(std::min(count, kMost)));
    }
    bool isDone() const override { return bytes_->isDone(); }

private:
    vellox::ByteArray* bytes_;
};

#endif
