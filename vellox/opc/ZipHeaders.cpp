#include "vellox/opc/ZipHeaders.h"

#include <algorithm>

namespace opc {

namespace {

// The end of an archive, its larger relative, and the headers; APPNOTE 4.3.
constexpr char kEnd[] = "PK\5\6", kLocator[] = "PK\6\7", kWideEnd[] = "PK\6\6", kDirectory[] = "PK\1\2";
constexpr std::size_t kEndSize = 22, kLocatorSize = 20, kWideEndSize = 56, kDirectorySize = 46;
constexpr std::size_t kLongestComment = 0xFFFF;
constexpr std::size_t kSignatureSize = 4;
constexpr std::uint64_t kNarrow = 0xFFFFFFFF; // in place of what stands in a wide field
constexpr std::uint16_t kWideFields = 1;
constexpr unsigned kDeflateFlags = 6, kUtf8Flag = 0x800;

std::uint64_t numberAt(const std::string& bytes, std::size_t place, std::size_t size) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size && place + i < bytes.size(); ++i)
        number |= std::uint64_t(static_cast<unsigned char>(bytes[place + i])) << (8 * i);
    return number;
}

std::string readAt(std::istream& archive, std::uint64_t place, std::size_t size) {
    std::string bytes(size, '\0');
    archive.clear();
    archive.seekg(static_cast<std::streamoff>(place));
    archive.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(archive.gcount()));
    return bytes;
}

bool isOne(const std::string& bytes, const char* signature) {
    return bytes.compare(0, kSignatureSize, signature, kSignatureSize) == 0;
}

struct Directory {
    std::uint64_t place = 0, count = 0;
};

// What is too large for the end of an archive stands in another one, before it.
Directory findWideDirectory(std::istream& archive, std::uint64_t endPlace) {
    if (endPlace < kLocatorSize)
        return {};
    const std::string locator = readAt(archive, endPlace - kLocatorSize, kLocatorSize);
    if (!isOne(locator, kLocator))
        return {};
    const std::string end = readAt(archive, numberAt(locator, 8, 8), kWideEndSize);
    return isOne(end, kWideEnd) ? Directory{numberAt(end, 48, 8), numberAt(end, 32, 8)} : Directory();
}

Directory findDirectory(std::istream& archive) {
    archive.clear();
    const auto size = static_cast<std::uint64_t>(archive.seekg(0, std::ios::end).tellg());
    const std::uint64_t tailSize = std::min<std::uint64_t>(size, kEndSize + kLongestComment);
    const std::string tail = readAt(archive, size - tailSize, tailSize);
    const std::size_t place = tail.rfind(std::string(kEnd, kSignatureSize));
    if (place == std::string::npos)
        return {};
    const Directory narrow{numberAt(tail, place + 16, 4), numberAt(tail, place + 10, 2)};
    const Directory wide = findWideDirectory(archive, size - tailSize + place);
    return wide.count > 0 ? wide : narrow;
}

// The last of those wide fields whose narrow ones are full.
std::uint64_t findWidePlace(const std::string& header, const std::string& extra) {
    for (std::size_t at = 0; at + 4 <= extra.size(); at += 4 + numberAt(extra, at + 2, 2)) {
        if (numberAt(extra, at, 2) != kWideFields)
            continue;
        const std::size_t before =
            (numberAt(header, 24, 4) == kNarrow ? 8 : 0) + (numberAt(header, 20, 4) == kNarrow ? 8 : 0);
        return numberAt(extra, at + 4 + before, 8);
    }
    return kNarrow;
}

} // namespace

std::vector<ZipHeader> readZipHeaders(std::istream& archive) {
    const Directory directory = findDirectory(archive);
    std::vector<ZipHeader> headers;
    std::uint64_t place = directory.place;
    archive.clear();
    archive.seekg(static_cast<std::streamoff>(place));
    for (std::uint64_t i = 0; i < directory.count; ++i) {
        std::string fixed(kDirectorySize, '\0');
        if (!archive.read(fixed.data(), kDirectorySize) || !isOne(fixed, kDirectory))
            return {};
        ZipHeader header;
        const std::uint64_t name = numberAt(fixed, 28, 2), comment = numberAt(fixed, 32, 2);
        std::string extra(numberAt(fixed, 30, 2), '\0');
        archive.ignore(static_cast<std::streamsize>(name));
        archive.read(extra.data(), static_cast<std::streamsize>(extra.size()));
        if (!archive.ignore(static_cast<std::streamsize>(comment)))
            return {};
        header.directoryPlace = place;
        header.localPlace = numberAt(fixed, 42, 4);
        if (header.localPlace == kNarrow)
            header.localPlace = findWidePlace(fixed, extra);
        header.flags = static_cast<std::uint16_t>(numberAt(fixed, 8, 2));
        header.time = static_cast<std::uint32_t>(numberAt(fixed, 12, 4));
        place += kDirectorySize + name + extra.size() + comment;
        headers.push_back(header);
    }
    return headers;
}

void copyZipHeader(std::iostream& archive, const ZipHeader& header, const ZipHeader& source) {
    const auto flags = static_cast<std::uint16_t>((header.flags & ~kDeflateFlags) |
                                                  (source.flags & (kDeflateFlags | kUtf8Flag)));
    if (flags == header.flags && source.time == header.time)
        return;
    const auto put = [&](std::uint64_t place, std::uint32_t number, std::size_t size) {
        archive.seekp(static_cast<std::streamoff>(place));
        for (std::size_t i = 0; i < size; ++i)
            archive.put(static_cast<char>(number >> (8 * i) & 255));
    };
    put(header.directoryPlace + 8, flags, 2);
    put(header.directoryPlace + 12, source.time, 4);
    put(header.localPlace + 6, flags, 2);
    put(header.localPlace + 10, source.time, 4);
}

} // namespace opc
