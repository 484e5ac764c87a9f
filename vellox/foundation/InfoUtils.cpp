#include "vellox/foundation/InfoUtils.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/ImageProbe.h"
#include "vellox/host/services/Utf8.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

namespace vellox {

namespace {

constexpr double kDefaultSize = 300;
constexpr double kDefaultPixelsPerInch = 96;
constexpr double kHundredthMillimetresPerInch = 2540.0;

// The start of an EMF header: type, size, the bounds (left, top, right, bottom), the frame (likewise).
constexpr std::size_t kEmfHeaderWords = 10;
constexpr std::size_t kFrameLeft = 6, kFrameTop = 7, kFrameRight = 8, kFrameBottom = 9;

using EmfHeader = std::array<std::uint32_t, kEmfHeaderWords>;

bool readEmfHeader(std::istream& image, EmfHeader& header) {
    std::array<unsigned char, 4 * kEmfHeaderWords> bytes{};
    if (!image.read(reinterpret_cast<char*>(bytes.data()), bytes.size()))
        return false;
    for (std::size_t i = 0; i < header.size(); ++i)
        header[i] = std::uint32_t(bytes[4 * i]) | std::uint32_t(bytes[4 * i + 1]) << 8 |
                    std::uint32_t(bytes[4 * i + 2]) << 16 | std::uint32_t(bytes[4 * i + 3]) << 24;
    return true;
}

ImageInfo readEmfSize(std::istream& image, const ImageInfo& unknown) {
    EmfHeader header;
    if (!readEmfHeader(image, header))
        return unknown;
    const double density = InfoUtils::getScreenPixelsPerInch();
    const auto toPixels = [density](std::uint32_t from, std::uint32_t to) {
        return density * static_cast<std::uint32_t>(to - from) / kHundredthMillimetresPerInch;
    };
    return ImageInfo(toPixels(header[kFrameLeft], header[kFrameRight]),
                     toPixels(header[kFrameTop], header[kFrameBottom]));
}

} // namespace

ImageInfo::ImageInfo() = default;
ImageInfo::ImageInfo(double width, double height) : width_(width), height_(height) {}
ImageInfo::ImageInfo(const ImageInfo&) = default;
ImageInfo& ImageInfo::operator=(const ImageInfo&) = default;
ImageInfo::~ImageInfo() = default;

ImageInfo ImageInfo::make(const std::wstring& path) const {
    double width = width_, height = height_;
    const bool isRead = host::getHostServices().probeImage(path, width, height);
    return isRead ? ImageInfo(width, height) : ImageInfo(width_, height_);
}

ImageInfo ImageInfoEMF::make(const std::wstring& path) const {
    const ImageInfo unknown(getWidth(), getHeight());
    std::error_code failure;
    if (!std::filesystem::is_regular_file(toUtf8(path), failure))
        return unknown; // a pipe might never answer
    std::ifstream file(toUtf8(path), std::ios::binary);
    return readEmfSize(file, unknown);
}

ImageInfo ImageInfoSVG::make(const std::wstring&) const {
    return ImageInfo(getWidth(), getHeight());
}

ImageInfo InfoUtils::getImageInfo(const std::wstring& path) {
    static const ImageInfo& plain = *new const ImageInfo(kDefaultSize, kDefaultSize);
    static const ImageInfo& emf = *new const ImageInfoEMF(kDefaultSize, kDefaultSize);
    static const ImageInfo& svg = *new const ImageInfoSVG(kDefaultSize, kDefaultSize);
    static const auto& readers =
        *new const std::map<std::wstring, const ImageInfo*>{{L"emf", &emf}, {L"svg", &svg}};
    const auto found = readers.find(toLowerString(FileUtils::getFileNameExtension(path)));
    return (found == readers.end() ? &plain : found->second)->make(path);
}

ImageInfo InfoUtils::getImageInfo(std::istream& image, const std::wstring& extension) {
    double width = kDefaultSize, height = kDefaultSize;
    if (extension == L"emf")
        return readEmfSize(image, ImageInfo(width, height));
    if (extension != L"svg")
        host::readImageSize(image, width, height);
    return ImageInfo(width, height);
}

double InfoUtils::getScreenPixelsPerInch() {
    static double density = -1.0;
    if (density < 0) {
        if (!host::getHostServices().getScreenPixelsPerInch(density) || !(density > 0))
            density = kDefaultPixelsPerInch;
    }
    return density;
}

} // namespace vellox
