/// @file
/// The file system as the library sees it: path values and a handful of operations, every failure of which
/// is an FsysExceptionBase. vellox::FileUtils turns these into the errors that users read.

#ifndef VELLOX_HOST_SERVICES_FILESYSTEM_H
#define VELLOX_HOST_SERVICES_FILESYSTEM_H

#include <filesystem>
#include <stdexcept>
#include <string>

namespace hostfx::filesystem {

/// Any failure of this layer. what() is the system's own text.
class FsysExceptionBase : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    /// One that struck a file: what() is the reason and the path.
    FsysExceptionBase(const std::string& reason, const std::filesystem::path& path)
        : std::runtime_error(reason + ": " + path.generic_string()) {}
};

/// A path, or a folder on the way to it, doesn't exist.
class FsysPathNotFound : public FsysExceptionBase {
public:
    using FsysExceptionBase::FsysExceptionBase;
};

/// A path value, built from and read back to wide text; generic form, with "/" between the elements.
class Path {
public:
    Path() = default;
    /// @throws FsysExceptionBase for a text that can't be a path, such as one with a NUL in it
    explicit Path(const std::wstring& text);
    explicit Path(std::filesystem::path path) : path_(std::move(path)) {}

    std::wstring toGeneric() const;
    const std::filesystem::path& native() const { return path_; }
    bool isEmpty() const { return path_.empty(); }

    /// Joins an element on, with a separator if one is needed. One that begins with a separator doesn't start
    /// anew.
    Path operator/(const Path& tail) const {
        return path_.empty() ? tail : Path(path_ / tail.path_.relative_path());
    }

    Path getParent() const { return Path(path_.parent_path()); }
    /// @{ Parts of the last element; the extension comes without its dot. All are empty for an empty path.
    /// @throws FsysExceptionBase for a path that ends in a separator and so has no last element
    std::wstring getFilename() const;
    std::wstring getStem() const;
    std::wstring getExtension() const;
    /// @}

private:
    const std::filesystem::path& requireFilename() const;

    std::filesystem::path path_;
};

/// True if anything stands at the path.
bool exists(const Path& path);
/// True if the path exists and its owner may not write it.
bool lacksOwnerWrite(const Path& path);
/// Adds the owner's right to write, leaving the others as they are.
void addOwnerWrite(const Path& path);
/// The path with links and dots resolved; a relative one starts from `base`.
/// @throws FsysPathNotFound if an element doesn't exist
Path makeCanonical(const Path& path, const Path& base);
/// The path from the root on; a relative one starts from the current folder. Links and dots stay.
Path makeAbsolute(const Path& path);
/// Whether a regular file stands at the path. Anything else, such as a pipe, might never answer a reader.
bool isRegularFile(const Path& path);
/// The path with the links at its end followed, also to where nothing stands yet. Links further up stay.
Path followLinks(const Path& path);

/// What tells one file from another, and from its own former self. Nothing stands where `size` is negative.
struct FileIdentity {
    unsigned long long device = 0;
    unsigned long long number = 0;
    long long size = -1;
    long long changeSeconds = 0;
    long long changeNanoseconds = 0;

    bool operator==(const FileIdentity& other) const;
    bool operator!=(const FileIdentity& other) const { return !(*this == other); }
};
/// The identity of what stands at the path.
FileIdentity identify(const Path& path);
/// Whether two files can be read and hold the same bytes.
bool haveSameBytes(const Path& a, const Path& b);
/// Whether a file can be read and holds these bytes.
bool holds(const Path& path, const std::string& bytes);
/// Makes one folder; its parent must exist.
void createDirectory(const Path& path);
/// Removes a file, or a folder with all that it holds.
void removeTree(const Path& path);

} // namespace hostfx::filesystem

#endif
