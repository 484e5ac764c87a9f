#include "vellox/host/services/FileSystem.h"

#include "vellox/host/services/Utf8.h"

#include <system_error>

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

void copyFile(const Path& source, const Path& target) {
    std::error_code failure;
    fs::copy_file(source.native(), target.native(), failure);
    if (failure && failure != std::errc::file_exists) {
        std::error_code ignored;
        fs::remove(target.native(), ignored);
    }
    check(failure, "copy", source);
}

void replaceFile(const Path& source, const Path& target, const Path& freshName) {
    std::error_code failure;
    fs::path place = fs::canonical(target.native(), failure);
    if (failure)
        place = target.native();
    const Path fresh = Path(place.parent_path()) / freshName;
    copyFile(source, fresh);
    fs::rename(fresh.native(), place, failure);
    if (failure) {
        std::error_code ignored;
        fs::remove(fresh.native(), ignored);
    }
    check(failure, "rename", target);
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
