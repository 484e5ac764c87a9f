#include "vellox/host/services/FileSystem.h"

#include "vellox/host/services/Utf8.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>
#include <tuple>

namespace hostfx::filesystem {

namespace fs = std::filesystem;

namespace {

void check(const std::error_code& failure, const char* action, const Path& path) {
    if (!failure)
        return;
    const std::string text = fs::filesystem_error(action, path.native(), failure).what();
    if (failure == std::errc::no_such_file_or_directory || failure == std::errc::not_a_directory)
        throw FsysPathNotFound(text);
    throw FsysExceptionBase(text);
}

} // namespace

Path::Path(const std::wstring& text) {
    if (text.find(L'\0') != std::wstring::npos)
        throw FsysExceptionBase("a path can't hold a NUL character");
    path_ = fs::path(vellox::toUtf8(text));
}

std::wstring Path::toGeneric() const {
    return vellox::fromUtf8(path_.generic_string());
}

const fs::path& Path::requireFilename() const {
    if (!path_.empty() && !path_.has_filename())
        throw FsysExceptionBase("the path has no file name: " + path_.generic_string());
    return path_;
}

std::wstring Path::getFilename() const {
    return Path(requireFilename().filename()).toGeneric();
}

std::wstring Path::getStem() const {
    return Path(requireFilename().stem()).toGeneric();
}

std::wstring Path::getExtension() const {
    const std::wstring withDot = Path(requireFilename().extension()).toGeneric();
    return withDot.empty() ? withDot : withDot.substr(1);
}

bool exists(const Path& path) {
    std::error_code failure;
    const fs::file_status status = fs::status(path.native(), failure);
    if (status.type() == fs::file_type::not_found)
        return false;
    check(failure, "status", path);
    return true;
}

bool lacksOwnerWrite(const Path& path) {
    std::error_code failure;
    const fs::file_status status = fs::status(path.native(), failure);
    if (status.type() == fs::file_type::not_found)
        return false;
    check(failure, "status", path);
    return (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

void addOwnerWrite(const Path& path) {
    std::error_code failure;
    fs::permissions(path.native(), fs::perms::owner_write, fs::perm_options::add, failure);
    check(failure, "permissions", path);
}

Path makeCanonical(const Path& path, const Path& base) {
    std::error_code failure;
    Path result(fs::canonical(base.native() / path.native(), failure));
    check(failure, "canonical", path);
    return result;
}

Path makeAbsolute(const Path& path) {
    std::error_code failure;
    Path result(fs::absolute(path.native(), failure));
    check(failure, "absolute", path);
    return result;
}

bool isRegularFile(const Path& path) {
    std::error_code failure;
    return fs::is_regular_file(path.native(), failure);
}

Path followLinks(const Path& path) {
    constexpr int kMostLinks = 40; // as many as the system follows
    fs::path place = path.native();
    for (int i = 0; i < kMostLinks; ++i) {
        std::error_code failure;
        const fs::file_type type = fs::symlink_status(place, failure).type();
        if (type == fs::file_type::none)
            check(failure, "status", path);
        if (type != fs::file_type::symlink)
            return Path(place);
        const fs::path target = fs::read_symlink(place, failure);
        check(failure, "read link", path);
        place = place.parent_path() / target; // an absolute target stands for itself
    }
    throw FsysExceptionBase("too many links", path.native());
}

bool FileIdentity::operator==(const FileIdentity& other) const {
    const auto all = [](const FileIdentity& one) {
        return std::tie(one.device, one.number, one.size, one.changeSeconds, one.changeNanoseconds);
    };
    return all(*this) == all(other);
}

FileIdentity identify(const Path& path) {
    struct stat facts {};
    if (::stat(path.native().c_str(), &facts) != 0)
        return {};
    return {facts.st_dev, facts.st_ino, facts.st_size, facts.st_mtim.tv_sec, facts.st_mtim.tv_nsec};
}

bool haveSameBytes(const Path& a, const Path& b) {
    std::ifstream first(a.native(), std::ios::binary), second(b.native(), std::ios::binary);
    std::array<char, 16384> one, other;
    while (first && second) {
        first.read(one.data(), one.size());
        second.read(other.data(), other.size());
        if (first.gcount() != second.gcount() ||
            !std::equal(one.data(), one.data() + first.gcount(), other.data()))
            return false;
    }
    return first.eof() && second.eof() && !first.bad() && !second.bad();
}

bool holds(const Path& path, const std::string& bytes) {
    std::ifstream file(path.native(), std::ios::binary);
    std::array<char, 16384> block;
    std::size_t position = 0;
    while (file) {
        file.read(block.data(), block.size());
        const auto count = static_cast<std::size_t>(file.gcount());
        if (bytes.compare(position, count, block.data(), count) != 0)
            return false;
        position += count;
    }
    return file.eof() && !file.bad() && position == bytes.size();
}

void createDirectory(const Path& path) {
    std::error_code failure;
    fs::create_directory(path.native(), failure);
    check(failure, "create directory", path);
}

void removeTree(const Path& path) {
    std::error_code failure;
    fs::remove_all(path.native(), failure);
    check(failure, "remove", path);
}

} // namespace hostfx::filesystem
