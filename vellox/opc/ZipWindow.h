/// @file
/// The end of an archive that is being written.

#ifndef VELLOX_OPC_ZIPWINDOW_H
#define VELLOX_OPC_ZIPWINDOW_H

#include <cstdint>
#include <ostream>
#include <string>

namespace opc {

/// Behind the content of each entry libzip goes back to the header, to complete it. What was written last is
/// still here then, so that the stream gets it in large pieces, in order. The stream isn't asked for its place: libzip
/// loses memory when that can't be told.
class ZipWindow {
public:
    explicit ZipWindow(std::ostream& stream);

    /// @{ Where the next bytes go, from 0 to the size.
    std::uint64_t getPlace() const { return place_; }
    void setPlace(std::uint64_t place) { place_ = place; }
    std::uint64_t getSize() const { return start_ + bytes_.size(); }
    /// @}
    /// @{ @return false if the stream takes no more
    bool write(const char* bytes, std::size_t count);
    bool flush();
    /// @}

private:
    bool makeRoom();
    bool put(std::uint64_t place, const char* bytes, std::size_t count);

    std::ostream& stream_;
    std::string bytes_;             // from start_ on
    std::uint64_t start_ = 0;       // all before is in the stream
    std::uint64_t streamPlace_ = 0; // where the stream stands
    std::uint64_t place_ = 0;
};

} // namespace opc

#endif
