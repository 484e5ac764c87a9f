#include "vellox/ppt/writers/ImageIndex.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/FileUtils.h"

#include <array>
#include <boost/functional/hash.hpp>
#include <string_view>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

constexpr std::size_t kBeginning = 4 << 10; // holds more than a header, and is read at once

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

std::size_t hashBlock(const char* block, std::streamsize count) {
    return std::hash<std::string_view>()({block, static_cast<std::size_t>(count)});
}

// Of what can't be read to its end, which equals nothing, as far as it goes.
std::size_t hashBytes(const ImageSource& image) {
    std::size_t hash = 0;
    std::array<char, 64 << 10> block;
    const auto stream = image.open();
    while (stream && *stream) {
        stream->read(block.data(), block.size());
        boost::hash_combine(hash, hashBlock(block.data(), stream->gcount()));
    }
    return hash;
}

} // namespace

// An image is read when the package is saved, and that would be too late to find out that it can't be had: the
// presentation is closed by then. Only a device that fails within the image makes the saving fail, which leaves
// the output as it was.
bool ImageIndex::look(const ImageSource& image, Look& look) {
    look.image = image;
    if (image.getBytes()) {
        look.size = image.getBytes()->size();
    } else {
        look.file = fsys::identify(fsys::Path(image.getPath()));
        look.size = static_cast<unsigned long long>(look.file.size);
    }
    const auto stream = image.open();
    if (!stream || !*stream)
        return false;
    std::array<char, kBeginning> block;
    stream->read(block.data(), block.size());
    look.beginning = hashBlock(block.data(), stream->gcount());
    return !stream->bad();
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

ImageIndex::Group& ImageIndex::requireGroup(const Look& look) {
    return groups_[{getExtension(look.image), look.size, look.beginning}];
}

std::wstring ImageIndex::findEqual(Look& look) {
    Group& group = requireGroup(look);
    if (group.unread) {
        group.read.emplace(hashBytes(group.unread->look.image), *group.unread);
        group.unread.reset();
    }
    if (group.read.empty())
        return {};
    look.hash = hashBytes(look.image);
    const auto [first, end] = group.read.equal_range(*look.hash);
    for (auto row = first; row != end; ++row) {
        const Entry& entry = row->second;
        if (!haveSameBytes(entry.look.image, look.image))
            continue;
        remember(look, entry.partName);
        return entry.partName;
    }
    return {};
}

void ImageIndex::add(const Look& look, const std::wstring& partName) {
    Group& group = requireGroup(look);
    if (look.hash)
        group.read.emplace(*look.hash, Entry{look, partName});
    else
        group.unread = Entry{look, partName};
    remember(look, partName);
}

void ImageIndex::remember(const Look& look, const std::wstring& partName) {
    if (look.image.getBytes()) // which the entry keeps, so that nothing else comes to lie in their place
        memory_[look.image.getBytes().get()] = {look, partName};
    else
        files_[makeKey(look.image.getPath(), look.file)] = partName;
}

} // namespace vellox::ppt
