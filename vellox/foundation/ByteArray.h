/// @file
/// A block of bytes with a read position.

#ifndef VELLOX_FOUNDATION_BYTEARRAY_H
#define VELLOX_FOUNDATION_BYTEARRAY_H

#include <boost/shared_array.hpp>
#include <string>

#include "vellox/Api.h"

namespace vellox {

/// A value: each copy owns its bytes, and is read from its start.
class VELLOX_API ByteArray {
public:
    ByteArray();
    explicit ByteArray(const std::string& bytes);
    ByteArray(const unsigned char* bytes, unsigned int count);
    ByteArray(const ByteArray& other);
    ByteArray& operator=(const ByteArray& other);
    virtual ~ByteArray();

    /// Equal bytes; the read positions don't count. An array without data differs from an empty one that
    /// was made from bytes.
    bool operator==(const ByteArray& other) const;

    unsigned char* begin() const { return data_.get(); }
    unsigned char* end() const { return data_.get() + size_; }
    unsigned int size() const { return size_; }

    /// True when everything has been read.
    bool isDone() const { return position_ >= size_; }
    /// Copies at most `count` bytes to `target` and moves on behind them.
    /// @return the number of bytes copied, 0 at the end
    unsigned int read(unsigned char* target, unsigned int count);

private:
    boost::shared_array<unsigned char> data_;
    unsigned int size_ = 0;
    unsigned int position_ = 0;
};

} // namespace vellox

#endif
