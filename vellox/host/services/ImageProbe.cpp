#include "vellox/host/services/ImageProbe.h"

#include "vellox/host/services/LateLibrary.h"

#include <stb/stb_image.h>
#include <tiffio.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <system_error>

namespace vellox::host {

namespace {

// A TIFF directory of an honest image is a few kilobytes; its strip tables may be some megabytes.
constexpr tmsize_t kMaxTiffAllocation = 64 << 20;

int readBytes(void* user, char* target, int count) {
    auto& image = *static_cast<std::istream*>(user);
    image.read(target, count);
    return static_cast<int>(image.gcount());
}

void skipBytes(void* user, int count) {
    static_cast<std::istream*>(user)->seekg(count, std::ios::cur);
}

int isAtEnd(void* user) {
    return !static_cast<std::istream*>(user)->good();
}

bool readRasterSize(std::istream& image, double& width, double& height) {
    const stbi_io_callbacks callbacks{readBytes, skipBytes, isAtEnd};
    int w = 0, h = 0, components = 0;
    // A BMP that is stored from the top down says so with a negative height.
    if (!stbi_info_from_callbacks(&callbacks, &image, &w, &h, &components) || w <= 0 || h == 0)
        return false;
    width = w;
    height = std::abs(static_cast<double>(h));
    return true;
}

// What is used of libtiff, which brings eight libraries along.
struct TiffLibrary {
    LateLibrary file{"libtiff.so.6"};
    decltype(&TIFFOpenOptionsAlloc) allocOptions = file.find("TIFFOpenOptionsAlloc");
    decltype(&TIFFOpenOptionsFree) freeOptions = file.find("TIFFOpenOptionsFree");
    decltype(&TIFFOpenOptionsSetMaxSingleMemAlloc) setMaxAllocation =
        file.find("TIFFOpenOptionsSetMaxSingleMemAlloc");
    decltype(&TIFFOpenOptionsSetErrorHandlerExtR) setErrorHandler =
        file.find("TIFFOpenOptionsSetErrorHandlerExtR");
    decltype(&TIFFOpenOptionsSetWarningHandlerExtR) setWarningHandler =
        file.find("TIFFOpenOptionsSetWarningHandlerExtR");
    decltype(&TIFFClientOpenExt) open = file.find("TIFFClientOpenExt");
    decltype(&TIFFGetField) getField = file.find("TIFFGetField");
    decltype(&TIFFClose) close = file.find("TIFFClose");
};

// Returning 1 says that the message is dealt with and needn't go to the standard error stream.
int dropMessage(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

/// @{ A stream as libtiff reads files.
tmsize_t readTiff(thandle_t user, void* target, tmsize_t count) {
    auto& image = *static_cast<std::istream*>(user);
    image.clear();
    image.read(static_cast<char*>(target), count);
    return image.gcount();
}

tmsize_t refuseToWrite(thandle_t, void*, tmsize_t) {
    return 0;
}

toff_t seekTiff(thandle_t user, toff_t offset, int whence) {
    auto& image = *static_cast<std::istream*>(user);
    image.clear();
    const std::ios::seekdir from = whence == SEEK_SET   ? std::ios::beg
                                   : whence == SEEK_CUR ? std::ios::cur
                                                        : std::ios::end;
    image.seekg(static_cast<std::streamoff>(offset), from);
    return static_cast<toff_t>(image.tellg());
}

int closeNothing(thandle_t) {
    return 0;
}

toff_t getTiffSize(thandle_t user) {
    return seekTiff(user, 0, SEEK_END);
}
/// @}

bool readTiffSize(std::istream& image, double& width, double& height) {
    static const TiffLibrary& library = *new const TiffLibrary;
    if (!library.file.isWhole())
        return false;
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(library.allocOptions(),
                                                                                   library.freeOptions);
    library.setMaxAllocation(options.get(), kMaxTiffAllocation);
    library.setErrorHandler(options.get(), dropMessage, nullptr);
    library.setWarningHandler(options.get(), dropMessage, nullptr);
    const std::unique_ptr<TIFF, decltype(&TIFFClose)> tiff(
        library.open("image", "rm", &image, readTiff, refuseToWrite, seekTiff, closeNothing, getTiffSize,
                     nullptr, nullptr, options.get()),
        library.close);
    constexpr std::uint32_t kMost = std::numeric_limits<std::int32_t>::max();
    std::uint32_t w = 0, h = 0;
    if (!tiff || !library.getField(tiff.get(), TIFFTAG_IMAGEWIDTH, &w) ||
        !library.getField(tiff.get(), TIFFTAG_IMAGELENGTH, &h) || w == 0 || h == 0 || w > kMost || h > kMost)
        return false;
    width = w;
    height = h;
    return true;
}

bool looksLikeTiff(std::istream& image) {
    std::array<char, 4> magic{};
    image.read(magic.data(), magic.size());
    image.clear();
    image.seekg(0);
    const bool little = magic[0] == 'I' && magic[1] == 'I' && (magic[2] == 42 || magic[2] == 43);
    const bool big = magic[0] == 'M' && magic[1] == 'M' && (magic[3] == 42 || magic[3] == 43);
    return little || big;
}

} // namespace

bool readImageSize(const std::string& path, double& width, double& height) {
    // Anything but a regular file, such as a pipe, might never answer.
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure))
        return false;
    std::ifstream file(path, std::ios::binary);
    return file && readImageSize(file, width, height);
}

bool readImageSize(std::istream& image, double& width, double& height) {
    return looksLikeTiff(image) ? readTiffSize(image, width, height) : readRasterSize(image, width, height);
}

} // namespace vellox::host
