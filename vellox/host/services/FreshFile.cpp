#include "vellox/host/services/FreshFile.h"

#include "vellox/host/services/RandomName.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

namespace hostfx::filesystem {

namespace {

constexpr std::size_t kBlock = 64 << 10;
constexpr mode_t kRights = 0777; // the bits that a deck may take over: no set-uid, no sticky bit

[[noreturn]] void failFor(const Path& path, int code) {
    // Streams don't promise to keep the system's code.
    throw FsysExceptionBase(std::generic_category().message(code ? code : EIO), path.native());
}

int create(const Path& path, mode_t mode) {
    int descriptor;
    do
        descriptor = ::open(path.native().c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0)
        failFor(path, errno);
    return descriptor;
}

bool isThere(const Path& path, struct stat& facts) {
    if (::stat(path.native().c_str(), &facts) == 0)
        return true;
    if (errno != ENOENT)
        failFor(path, errno);
    return false;
}

void requireRegular(const Path& path, const struct stat& facts) {
    if (S_ISDIR(facts.st_mode))
        failFor(path, EISDIR);
    if (!S_ISREG(facts.st_mode))
        throw FsysExceptionBase("it is no regular file", path.native());
}

// Made so that nobody can read it before it has the rights of the file that it replaces.
int createFor(const Path& place, const Path& path) {
    struct stat former {};
    return create(path, isThere(place, former) ? S_IRUSR | S_IWUSR : 0666);
}

Path makeName(const Path& place) {
    return Path(place.native().parent_path() / ("vellox-" + vellox::host::makeRandomName() + ".tmp"));
}

// Gives all that a file holds to a taker, block by block.
template <class Take> void readBlocks(const Path& source, Take take) {
    struct stat facts {};
    if (!isThere(source, facts))
        failFor(source, ENOENT);
    requireRegular(source, facts); // a pipe might never answer
    errno = 0;
    std::ifstream from(source.native(), std::ios::binary);
    if (!from)
        failFor(source, errno);
    std::array<char, kBlock> block;
    do {
        errno = 0;
        from.read(block.data(), block.size());
        if (from.bad())
            failFor(source, errno);
        take(block.data(), from.gcount());
    } while (from);
}

} // namespace

void checkReplaceable(const Path& place) {
    struct stat former {};
    if (!isThere(place, former))
        return;
    requireRegular(place, former);
    // The superuser may write all; a file that was made read-only is meant to stay nevertheless.
    if ((former.st_mode & S_IWUSR) == 0 || ::access(place.native().c_str(), W_OK) != 0)
        throw FsysExceptionBase("it is read-only", place.native());
}

void checkMakeable(const Path& place) {
    checkReplaceable(place);
    const Path folder = place.getParent();
    if (::access(folder.native().c_str(), W_OK | X_OK) != 0)
        failFor(folder, errno);
}

FreshFile::FreshFile(const Path& place)
    : place_(followLinks(place)),
      path_(makeName(place_)),
      descriptor_((checkReplaceable(place_), createFor(place_, path_))),
      buffer_(descriptor_, std::ios::in | std::ios::out | std::ios::binary, kBlock),
      stream_(&buffer_) {
    struct stat former {};
    if (::stat(place_.native().c_str(), &former) == 0)
        inheritRights(former);
}

FreshFile::~FreshFile() {
    if (!isPlaced_)
        ::unlink(path_.native().c_str());
}

// What isn't allowed here is no reason to lose a deck.
void FreshFile::inheritRights(const struct stat& former) {
    mode_t mode = former.st_mode & kRights;
    if (::fchown(descriptor_, former.st_uid, former.st_gid) != 0 &&
        ::fchown(descriptor_, static_cast<uid_t>(-1), former.st_gid) != 0)
        mode = (mode & ~S_IRWXG) | ((mode & S_IRWXO) << 3); // another group gets no more than everybody
    static_cast<void>(::fchmod(descriptor_, mode));
}

void FreshFile::fail() const {
    failFor(path_, errno);
}

void FreshFile::append(const Path& source) {
    readBlocks(source, [&](const char* block, std::streamsize count) {
        if (!stream_.write(block, count))
            fail();
    });
}

void FreshFile::append(const std::string& bytes) {
    errno = 0;
    if (!stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        fail();
}

void FreshFile::takeModeOf(const Path& source) {
    struct stat facts {};
    if (::stat(source.native().c_str(), &facts) != 0)
        failFor(source, errno);
    if (::fchmod(descriptor_, facts.st_mode & kRights) != 0)
        fail();
}

FileIdentity FreshFile::takePlace() {
    errno = 0;
    if (!stream_.flush())
        fail();
    const FileIdentity identity = identify(path_);
    if (identity.size < 0)
        fail();
    errno = 0;
    if (!buffer_.close())
        fail();
    if (::rename(path_.native().c_str(), place_.native().c_str()) != 0)
        failFor(place_, errno);
    isPlaced_ = true;
    return identity;
}

void copyFile(const Path& source, const Path& target) {
    FreshFile fresh(target);
    fresh.takeModeOf(source);
    fresh.append(source);
    fresh.takePlace();
}

FileIdentity replaceFile(const Path& source, const Path& target) {
    FreshFile fresh(target);
    fresh.append(source);
    return fresh.takePlace();
}

FileIdentity replaceFile(const std::string& bytes, const Path& target) {
    FreshFile fresh(target);
    fresh.append(bytes);
    return fresh.takePlace();
}

std::string readFile(const Path& source, std::size_t limit) {
    std::string bytes;
    readBlocks(source, [&](const char* block, std::streamsize count) {
        bytes.append(block, static_cast<std::size_t>(count));
        if (bytes.size() > limit)
            failFor(source, EFBIG);
    });
    return bytes;
}

} // namespace hostfx::filesystem
