#include "vellox/opc/ZipWindow.h"

#include <algorithm>

namespace opc {

namespace {

constexpr std::size_t kCapacity = 512 << 10; // a picture of usual size, with its header

}

ZipWindow::ZipWindow(std::ostream& stream) : stream_(stream) {
    bytes_.reserve(kCapacity); // of which the system gives what is used
}

bool ZipWindow::put(std::uint64_t place, const char* bytes, std::size_t count) {
    if (place != streamPlace_)
        stream_.seekp(static_cast<std::streamoff>(place));
    stream_.write(bytes, static_cast<std::streamsize>(count));
    streamPlace_ = place + count;
    return stream_.good();
}

bool ZipWindow::makeRoom() {
    const bool isPut = put(start_, bytes_.data(), bytes_.size());
    start_ += bytes_.size();
    bytes_.clear();
    return isPut;
}

bool ZipWindow::write(const char* bytes, std::size_t count) {
    if (place_ >= start_ && place_ - start_ + count > kCapacity && !makeRoom())
        return false;
    const std::size_t before = place_ < start_ ? std::min<std::uint64_t>(count, start_ - place_) : 0;
    if (before > 0 && !put(place_, bytes, before))
        return false;
    place_ += count;
    if (before == count)
        return true;
    const std::size_t rest = count - before;
    const std::size_t at = place_ - start_ - rest;
    bytes_.replace(at, rest, bytes + before, rest); // of fewer bytes at the end
    return true;
}

bool ZipWindow::flush() {
    return makeRoom() && stream_.flush().good();
}

} // namespace opc
