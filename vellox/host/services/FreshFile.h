/// @file
/// Files that come to their place whole or not at all.

#ifndef VELLOX_HOST_SERVICES_FRESHFILE_H
#define VELLOX_HOST_SERVICES_FRESHFILE_H

#include <ext/stdio_filebuf.h>
#include <sys/stat.h>

#include <istream>

#include "vellox/host/services/FileSystem.h"

namespace hostfx::filesystem {

/// A file that is written beside its place and renamed to it once it is complete. Until then the place keeps
/// what stands there.
///
///     FreshFile fresh(place);
///     fresh.getStream().write(...);
///     fresh.takePlace();
///
/// Its own name is "vellox-<uuid>.tmp", however long the name of the place is; that is what a process leaves
/// that is killed in the middle. A file that stands at the place gives its mode and, as far as the system
/// allows, its owner; a new one follows the umask. A link at the place stays, and what it leads to is meant.
class FreshFile {
public:
    /// @throws FsysExceptionBase as checkReplaceable(), or if the file can't be made
    explicit FreshFile(const Path& place);
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;
    /// Removes the file if it hasn't taken its place.
    ~FreshFile();

    /// The file, empty at first, to be written and read. A failure is in the state of the stream, and in errno.
    std::iostream& getStream() { return stream_; }
    /// Appends all that another file holds.
    /// @throws FsysExceptionBase with the file that failed
    void append(const Path& source);
    /// @throws FsysExceptionBase
    void append(const std::string& bytes);
    /// Takes over who may do what with another file.
    void takeModeOf(const Path& source);
    /// @return the identity that the place has from now on
    /// @throws FsysExceptionBase if not all of the file can be written, or if it can't be renamed
    FileIdentity takePlace();

private:
    [[noreturn]] void fail() const;
    void inheritRights(const struct stat& former);

    Path place_, path_;
    int descriptor_;
    __gnu_cxx::stdio_filebuf<char> buffer_;
    std::iostream stream_;
    bool isPlaced_ = false;
};

/// Copies one file to a place, with its mode.
/// @throws FsysExceptionBase with the file that failed
void copyFile(const Path& source, const Path& target);
/// Copies one file to a place, which keeps its own mode.
/// @return the identity that the place has from now on
/// @throws FsysExceptionBase with the file that failed
FileIdentity replaceFile(const Path& source, const Path& target);
/// Puts bytes to a place, which keeps its own mode.
/// @return the identity that the place has from now on
/// @throws FsysExceptionBase
FileIdentity replaceFile(const std::string& bytes, const Path& target);
/// All that a file holds.
/// @throws FsysExceptionBase with the file, if it can't be read, is no regular file, or holds more bytes than the limit
std::string readFile(const Path& source, std::size_t limit);

/// Checks that a new file may take this place: nothing stands there, or a regular file that may be written.
/// @throws FsysExceptionBase
void checkReplaceable(const Path& place);

/// The same, and that its folder takes new files.
/// @throws FsysExceptionBase
void checkMakeable(const Path& place);

} // namespace hostfx::filesystem

#endif
