#include "vellox/ppt/writers/ImageIndex.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/FileUtils.h"

#include <array>
#include <boost/functional/hash.hpp>
#include <string_view>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

std::wstring getExtension(const ImageSource& image) {
    return toLowerString(FileUtils::getFileNameExtension(image.getFileName()));
}

bool haveSameBytes(const ImageSource& a, const ImageSource& b) {
    if (a.getBytes() && b.getBytes())
        return *a.getBytes() == *b.getBytes();
    if (!a.getBytes() && !b.getBytes())
        return fsys::haveSameBytes(fsys::Path(a.getPath()), fsys::Path(b.getPath()));
    return a.getBytes() ? fsys::holds(fsys::Path(b.getPath()), *a.getBytes())
                        : fsys::holds(fsys::Path(a.getPath()), *b.getBytes());
}

} // namespace

// An image is copied when the package is saved, and that would be too late to find out that it can't be had in whole:
// the presentation is closed by then.
bool ImageIndex::read(const ImageSource& image, bool wantsHash, Reading& reading) {
    reading.image = image;
    if (!image.getBytes())
        reading.file = fsys::identify(fsys::Path(image.getPath()));
    const auto stream = image.open();
    if (!stream)
        return false;
    std::array<char, 64 << 10> block;
    while (*stream) {
        stream->read(block.data(), block.size());
        const auto count = static_cast<std::size_t>(stream->gcount());
        reading.size += count;
        if (wantsHash)
            boost::hash_combine(reading.hash, std::hash<std::string_view>()({block.data(), count}));
    }
    return stream->eof() && !stream->bad();
}

// The extension tells what kind of image a file is.
ImageIndex::FileKey ImageIndex::makeKey(const std::wstring& path, const fsys::FileIdentity& file) {
    return {toLowerString(FileUtils::getFileNameExtension(path)),
            file.device,
            file.number,
            file.size,
            file.changeSeconds,
            file.changeNanoseconds};
}

std::wstring ImageIndex::findSource(const ImageSource& image) const {
    if (image.getBytes()) {
        const auto found = memory_.find(image.getBytes().get());
        return found == memory_.end() ? std::wstring() : found->second.partName;
    }
    const auto found = files_.find(makeKey(image.getPath(), fsys::identify(fsys::Path(image.getPath()))));
    return found == files_.end() ? std::wstring() : found->second;
}

std::wstring ImageIndex::findEqual(const Reading& reading) {
    for (const Entry& entry : contents_[{getExtension(reading.image), reading.size, reading.hash}]) {
        if (!haveSameBytes(entry.reading.image, reading.image))
            continue;
        const std::wstring partName = entry.partName;
        remember(reading, partName);
        return partName;
    }
    return {};
}

void ImageIndex::add(const Reading& reading, const std::wstring& partName) {
    contents_[{getExtension(reading.image), reading.size, reading.hash}].push_back({reading, partName});
    remember(reading, partName);
}

void ImageIndex::remember(const Reading& reading, const std::wstring& partName) {
    if (reading.image.getBytes()) // which the entry keeps, so that nothing else comes to lie in their place
        memory_[reading.image.getBytes().get()] = {reading, partName};
    else
        files_[makeKey(reading.image.getPath(), reading.file)] = partName;
}

} // namespace vellox::ppt
