#include "vellox/foundation/ByteArray.h"

#include <algorithm>
#include <cstring>

namespace vellox {

ByteArray::ByteArray() = default;

ByteArray::ByteArray(const std::string& bytes)
    : ByteArray(reinterpret_cast<const unsigned char*>(bytes.data()),
                static_cast<unsigned int>(bytes.size())) {}

ByteArray::ByteArray(const unsigned char* bytes, unsigned int count)
    : data_(bytes ? new unsigned char[count] : nullptr),
      size_(bytes ? count : 0) {
    if (size_ > 0)
        std::memcpy(data_.get(), bytes, size_);
}

ByteArray::ByteArray(const ByteArray& other) : ByteArray(other.begin(), other.size_) {}

ByteArray& ByteArray::operator=(const ByteArray& other) {
    if (this != &other) {
        const ByteArray copy(other);
        data_ = copy.data_;
        size_ = copy.size_;
        position_ = 0;
    }
    return *this;
}

ByteArray::~ByteArray() = default;

bool ByteArray::operator==(const ByteArray& other) const {
    if (!data_ || !other.data_)
        return !data_ && !other.data_;
    return size_ == other.size_ && std::equal(begin(), end(), other.begin());
}

unsigned int ByteArray::read(unsigned char* target, unsigned int count) {
    const unsigned int copied = isDone() ? 0 : std::min(count, size_ - position_);
    if (copied > 0)
        std::memcpy(target, data_.get() + position_, copied);
    position_ += copied;
    return copied;
}

} // namespace vellox
