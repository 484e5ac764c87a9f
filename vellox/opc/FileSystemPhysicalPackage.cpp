#include "vellox/opc/FileSystemPhysicalPackage.h"

#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"

#include <array>
#include <boost/make_shared.hpp>
#include <fstream>
#include <system_error>

namespace opc {

namespace fs = std::filesystem;

namespace {

void check(const std::error_code& failure, const fs::path& path) {
    if (failure)
        throw Exception(failure.message() + ": " + path.generic_string());
}

void copyInBlocks(InputStream& from, std::ostream& to) {
    std::array<unsigned char, 16384> block;
    while (const std::size_t count = from.read(block.data(), block.size()))
        to.write(reinterpret_cast<const char*>(block.data()), static_cast<std::streamsize>(count));
}

// The folder itself may be reached through links; what stands in it may not.
void checkNoLinkBelow(const fs::path& folder, const fs::path& file) {
    fs::path step = folder;
    for (const fs::path& element : file.lexically_relative(folder)) {
        step /= element;
        std::error_code failure;
        if (fs::is_symlink(step, failure))
            throw Exception("a link stands in the way of " + file.generic_string());
    }
}

} // namespace

class FileSystemPhysicalPackage::File : public PhysicalPart {
public:
    File(const PartName& name, StandardPartInfo info, fs::path path)
        : PhysicalPart(name, info),
          path_(std::move(path)) {}

    void save(const fs::path& folder) const {
        checkNoLinkBelow(folder, path_);
        std::error_code failure;
        fs::create_directories(path_.parent_path(), failure);
        check(failure, path_);
        try {
            hostfx::filesystem::FreshFile fresh{hostfx::filesystem::Path(path_)};
            copyInBlocks(*openInput(), fresh.getStream());
            fresh.takePlace();
        } catch (const hostfx::filesystem::FsysExceptionBase& failed) {
            throw Exception(failed.what());
        }
    }

protected:
    boost::shared_ptr<InputStream> openOriginal() const override {
        return boost::make_shared<StdIStreamAdaptor>(
            boost::make_shared<std::ifstream>(path_, std::ios::binary));
    }

private:
    fs::path path_;
};

FileSystemPhysicalPackage::FileSystemPhysicalPackage(const std::wstring& path)
    : folder_(vellox::toUtf8(path)) {}

boost::shared_ptr<PhysicalPart> FileSystemPhysicalPackage::makeFile(const PartName& name,
                                                                    StandardPartInfo info) const {
    return boost::make_shared<File>(name, info, folder_ / vellox::toUtf8(name.toString().substr(1)));
}

void FileSystemPhysicalPackage::open(OpenMode mode) {
    if (mode != OpenMode::Write)
        listFiles();
}

void FileSystemPhysicalPackage::listFiles() {
    std::error_code failure;
    std::uint64_t count = 0;
    fs::recursive_directory_iterator entry(folder_, failure);
    for (; !failure && entry != fs::recursive_directory_iterator(); entry.increment(failure)) {
        if (++count > kMaxEntries)
            throw Exception("it has more than " + std::to_string(kMaxEntries) + " files");
        if (entry->symlink_status(failure).type() != fs::file_type::regular)
            continue;
        size_ += entry->file_size(failure);
        const std::wstring name =
            vellox::fromUtf8(entry->path().lexically_relative(folder_).generic_string());
        addEntry(name, makeFile(PartName(L"/" + name), StandardPartInfo()));
    }
    check(failure, folder_);
}

boost::shared_ptr<PhysicalPart> FileSystemPhysicalPackage::createPart(const PartName& name,
                                                                      StandardPartInfo info) {
    const auto part = makeFile(name, info);
    part->startOutput();
    parts_.push_back(part);
    return part;
}

OutputStream& FileSystemPhysicalPackage::getContentTypeOutputStream() {
    if (!contentTypes_)
        contentTypes_ = makeFile(PartName(std::wstring(L"/") + kContentTypesEntry), StandardPartInfo());
    return contentTypes_->startOutput();
}

void FileSystemPhysicalPackage::close(bool save) {
    if (!save)
        return;
    // The list of types goes last: until it stands, the new parts are strangers to every reader.
    for (const auto& part : parts_)
        if (part->getContent() != PhysicalPart::Content::Original)
            static_cast<const File&>(*part).save(folder_);
    if (contentTypes_ && contentTypes_->getContent() != PhysicalPart::Content::Original)
        static_cast<const File&>(*contentTypes_).save(folder_);
}

} // namespace opc
