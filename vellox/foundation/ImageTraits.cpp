#include "vellox/foundation/ImageTraits.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace vellox {

namespace {

constexpr double kInchPerMetre = 0.0254;
constexpr double kInchPerCentimetre = 2.54;
/// Programs write 1 or 72000000 where they know nothing.
constexpr double kLeastPerInch = 10, kMostPerInch = 20000;

/// Numbers of a stream in either order of bytes. What lies beyond its end is 0.
class Bytes {
public:
    Bytes(std::istream& stream, bool isLittle) : stream_(stream), isLittle_(isLittle) {}

    void seek(std::uint64_t place) {
        stream_.clear();
        stream_.seekg(static_cast<std::streamoff>(place));
    }
    std::uint64_t tell() { return static_cast<std::uint64_t>(std::streamoff(stream_.tellg())); }
    bool isGood() const { return stream_.good(); }
    std::string readText(std::size_t count) {
        std::string text(count, '\0');
        stream_.read(text.data(), static_cast<std::streamsize>(count));
        return text;
    }
    std::uint32_t read(unsigned size) {
        std::array<unsigned char, 4> bytes{};
        stream_.read(reinterpret_cast<char*>(bytes.data()), size);
        std::uint32_t number = 0;
        for (unsigned i = 0; i < size; ++i)
            number |= std::uint32_t(bytes[i]) << 8 * (isLittle_ ? i : size - 1 - i);
        return number;
    }

private:
    std::istream& stream_;
    bool isLittle_;
};

/// Files that count by the metre can't tell 200 pixels per inch from 199.9996.
double roundDensity(double perInch) {
    constexpr double kNear = 0.05;
    return std::fabs(perInch - std::round(perInch)) < kNear ? std::round(perInch) : perInch;
}

void setDensity(ImageTraits& traits, double x, double y) {
    const auto isSensible = [](double density) {
        return density >= kLeastPerInch && density <= kMostPerInch;
    };
    if (!isSensible(x) || !isSensible(y))
        return;
    traits.perInchX = roundDensity(x);
    traits.perInchY = roundDensity(y);
}

// The first directory of a TIFF file, which is also what EXIF consists of.

void readTiff(std::istream& stream, std::uint64_t start, ImageTraits& traits) {
    enum Tag { kOrientation = 0x112, kDensityX = 0x11a, kDensityY = 0x11b, kUnit = 0x128 };
    constexpr unsigned kEntrySize = 12, kCentimetre = 3, kMostTurned = 8;
    Bytes head(stream, true);
    head.seek(start);
    Bytes file(stream, head.readText(2) == "II");
    file.read(2);
    const std::uint64_t directory = start + file.read(4);
    file.seek(directory);
    const unsigned entries = file.read(2);
    double x = 0, y = 0;
    unsigned unit = 2;
    const auto readRatio = [&] {
        file.seek(start + file.read(4));
        const double numerator = file.read(4);
        const double denominator = file.read(4);
        return denominator > 0 ? numerator / denominator : 0;
    };
    for (unsigned i = 0; i < entries && file.isGood(); ++i) {
        file.seek(directory + 2 + std::uint64_t(i) * kEntrySize);
        const unsigned tag = file.read(2);
        file.read(4); // its type, and the upper half of how many there are: those below are one number each
        file.read(2);
        if (tag == kOrientation) {
            const unsigned orientation = file.read(2);
            traits.orientation = orientation >= 1 && orientation <= kMostTurned ? orientation : 1;
        } else if (tag == kUnit) {
            unit = file.read(2);
        } else if (tag == kDensityX) {
            x = readRatio();
        } else if (tag == kDensityY) {
            y = readRatio();
        }
    }
    const double factor = unit == kCentimetre ? kInchPerCentimetre : unit == 2 ? 1 : 0;
    setDensity(traits, x * factor, y * factor);
}

// The segments of a JPEG up to its pixels.

void readJpeg(std::istream& stream, ImageTraits& traits) {
    constexpr unsigned kApp0 = 0xffe0, kApp1 = 0xffe1, kStartOfScan = 0xffda, kFirstMarker = 0xff00;
    Bytes file(stream, false);
    file.seek(2);
    while (file.isGood()) {
        const unsigned marker = file.read(2);
        const std::uint64_t segment = file.tell();
        const unsigned length = file.read(2);
        if (!file.isGood() || marker < kFirstMarker || marker == kStartOfScan || length < 2)
            return;
        if (marker == kApp0 && file.readText(5) == std::string("JFIF\0", 5)) {
            file.read(2); // version
            const unsigned unit = file.read(1);
            const double factor = unit == 1 ? 1 : unit == 2 ? kInchPerCentimetre : 0;
            const unsigned x = file.read(2);
            setDensity(traits, x * factor, file.read(2) * factor);
        } else if (marker == kApp1 && file.readText(6) == std::string("Exif\0\0", 6)) {
            readTiff(stream, file.tell(), traits);
        }
        file.seek(segment + length);
    }
}

// The chunks of a PNG up to its pixels.

void readPng(std::istream& stream, ImageTraits& traits) {
    constexpr unsigned kSignature = 8, kChunkFrame = 12;
    Bytes file(stream, false);
    std::uint64_t chunk = kSignature;
    for (file.seek(chunk); file.isGood(); file.seek(chunk)) {
        const std::uint32_t length = file.read(4);
        const std::string type = file.readText(4);
        if (!file.isGood() || type == "IDAT")
            return;
        if (type == "pHYs") {
            const double x = file.read(4), y = file.read(4);
            if (file.read(1) == 1)
                setDensity(traits, x * kInchPerMetre, y * kInchPerMetre);
            return;
        }
        chunk += kChunkFrame + std::uint64_t(length);
    }
}

void readBmp(std::istream& stream, ImageTraits& traits) {
    constexpr unsigned kDensities = 38;
    Bytes file(stream, true);
    file.seek(kDensities);
    const double x = file.read(4), y = file.read(4);
    setDensity(traits, x * kInchPerMetre, y * kInchPerMetre);
}

struct Row {
    std::string_view magic;
    std::size_t place;
    const wchar_t* extension;
    void (*read)(std::istream&, ImageTraits&);
};

constexpr Row kRows[] = {
    {"\x89PNG\r\n\x1a\n", 0, L"png", readPng},
    {"\xff\xd8\xff", 0, L"jpg", readJpeg},
    {"GIF8", 0, L"gif", nullptr},
    {"BM", 0, L"bmp", readBmp},
    {{"II*\0", 4}, 0, L"tif", [](std::istream& stream, ImageTraits& traits) { readTiff(stream, 0, traits); }},
    {{"MM\0*", 4}, 0, L"tif", [](std::istream& stream, ImageTraits& traits) { readTiff(stream, 0, traits); }},
    {"8BPS", 0, L"psd", nullptr},
    {"WEBP", 8, L"webp", nullptr},
    {" EMF", 40, L"emf", nullptr},
    {"\xd7\xcd\xc6\x9a", 0, L"wmf", nullptr},
    {{"\0\0\1\0", 4}, 0, L"ico", nullptr},
};

const Row* findRow(std::string_view beginning) {
    for (const Row& row : kRows)
        if (beginning.size() > row.place && beginning.compare(row.place, row.magic.size(), row.magic) == 0)
            return &row;
    return nullptr;
}

constexpr std::size_t kBeginning = 64;

} // namespace

ImageTraits readImageTraits(std::istream& image) {
    ImageTraits traits;
    Bytes file(image, true);
    file.seek(0);
    const std::string beginning = file.readText(kBeginning);
    const Row* row = findRow(beginning);
    if (row && row->read)
        row->read(image, traits);
    return traits;
}

std::wstring findImageExtension(std::string_view beginning) {
    if (const Row* row = findRow(beginning))
        return row->extension;
    // Text: what stands ahead of the root is of any length.
    constexpr std::size_t kProlog = 1 << 16;
    const std::string_view prolog = beginning.substr(0, kProlog);
    const std::size_t first = prolog.find_first_not_of("\xef\xbb\xbf \t\r\n");
    const bool isMarkup = first != std::string_view::npos && prolog[first] == '<';
    return isMarkup && prolog.find("<svg") != std::string_view::npos ? L"svg" : L"";
}

} // namespace vellox
