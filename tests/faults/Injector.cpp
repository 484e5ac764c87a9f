#include "tests/faults/Injector.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace vellox::test {

namespace {

bool isArmed = false;
bool isStruck = false;
Fault planned;
std::vector<Call> seen;

} // namespace

void arm(const Fault& fault) {
    planned = fault;
    seen.clear();
    isStruck = false;
    isArmed = true;
}

std::vector<Call> disarm() {
    isArmed = false;
    return std::move(seen);
}

bool hasStruck() {
    return isStruck;
}

namespace {

// The file of a call: a path, or what a descriptor stands for.
std::string toPath(const char* path) {
    return path ? path : "";
}

std::string toPath(int descriptor) {
    const std::string entry = "/proc/self/fd/" + std::to_string(descriptor);
    char path[4096];
    const long size = syscall(SYS_readlink, entry.c_str(), path, sizeof path);
    return size > 0 ? std::string(path, static_cast<std::size_t>(size)) : std::string();
}

std::string toPath(FILE* file) {
    return toPath(fileno(file));
}

template <class File> bool isItsTurn(const char* function, File file) {
    if (!isArmed)
        return false;
    const int code = errno;
    isArmed = false; // what happens in here isn't the library's
    const bool isIt = seen.size() == planned.call && planned.kind != Fault::Kind::None;
    seen.push_back({function, toPath(file)});
    isArmed = true;
    errno = code;
    return isIt;
}

// One call, with its turn taken. `halve` cuts its number of bytes and tells whether that leaves any.
template <class File, class Result, class Real, class Halve>
Result perform(const char* function, File file, Result failure, Real real, Halve halve) {
    if (!isItsTurn(function, file))
        return real();
    isStruck = true;
    switch (planned.kind) {
    case Fault::Kind::Error:
        errno = planned.code;
        return failure;
    case Fault::Kind::Short:
        isStruck = halve();
        return real();
    case Fault::Kind::Kill:
        kill(getpid(), SIGKILL);
        break;
    case Fault::Kind::None:
        break;
    }
    return real();
}

template <class File, class Result, class Real>
Result perform(const char* function, File file, Result failure, Real real) {
    return perform(function, file, failure, real, [] { return false; });
}

bool halve(std::size_t& count) {
    count = (count + 1) / 2;
    return true;
}

// The C library's own function of a name.
template <class Function> Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

constexpr int kErrorSeen = 0x20; // what ferror() asks for in the streams of this C library

template <class File, class Real> FILE* performOpen(const char* function, File file, Real real) {
    return perform(function, file, static_cast<FILE*>(nullptr), real);
}

} // namespace

} // namespace vellox::test

using vellox::test::halve;
using vellox::test::next;
using vellox::test::perform;

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static auto* const real = next<int(const char*, int, ...)>("open");
    return perform("open", path, -1, [&] { return real(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static auto* const real = next<int(int, const char*, int, ...)>("openat");
    return perform("openat", path, -1, [&] { return real(folder, path, flags, mode); });
}

FILE* fopen64(const char* path, const char* mode) {
    static auto* const real = next<FILE*(const char*, const char*)>("fopen64");
    return vellox::test::performOpen("fopen64", path, [&] { return real(path, mode); });
}

FILE* fdopen(int descriptor, const char* mode) noexcept {
    static auto* const real = next<FILE*(int, const char*)>("fdopen");
    return vellox::test::performOpen("fdopen", descriptor, [&] { return real(descriptor, mode); });
}

// A file is closed even if that fails.
int fclose(FILE* file) {
    static auto* const real = next<int(FILE*)>("fclose");
    bool isClosed = false;
    const int result = perform("fclose", file, EOF, [&] {
        isClosed = true;
        return real(file);
    });
    const int code = errno;
    if (!isClosed)
        real(file);
    errno = code;
    return result;
}

int close(int descriptor) {
    static auto* const real = next<int(int)>("close");
    bool isClosed = false;
    const int result = perform("close", descriptor, -1, [&] {
        isClosed = true;
        return real(descriptor);
    });
    const int code = errno;
    if (!isClosed)
        real(descriptor);
    errno = code;
    return result;
}

ssize_t read(int descriptor, void* target, size_t count) {
    static auto* const real = next<ssize_t(int, void*, size_t)>("read");
    return perform(
        "read", descriptor, ssize_t(-1), [&] { return real(descriptor, target, count); },
        [&] { return halve(count); });
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    static auto* const real = next<ssize_t(int, const void*, size_t)>("write");
    return perform(
        "write", descriptor, ssize_t(-1), [&] { return real(descriptor, bytes, count); },
        [&] { return halve(count); });
}

ssize_t writev(int descriptor, const iovec* blocks, int count) {
    static auto* const real = next<ssize_t(int, const iovec*, int)>("writev");
    iovec first = blocks[0];
    return perform(
        "writev", descriptor, ssize_t(-1), [&] { return real(descriptor, blocks, count); },
        [&] {
            blocks = &first;
            count = 1;
            return halve(first.iov_len);
        });
}

size_t fread(void* target, size_t size, size_t count, FILE* file) {
    static auto* const real = next<size_t(void*, size_t, size_t, FILE*)>("fread");
    bool isRead = false;
    const size_t result = perform("fread", file, size_t(0), [&] {
        isRead = true;
        return real(target, size, count, file);
    });
    if (!isRead)
        file->_flags |= vellox::test::kErrorSeen;
    return result;
}

int fseeko64(FILE* file, off64_t offset, int whence) {
    static auto* const real = next<int(FILE*, off64_t, int)>("fseeko64");
    return perform("fseeko64", file, -1, [&] { return real(file, offset, whence); });
}

int fseeko(FILE* file, off_t offset, int whence) {
    static auto* const real = next<int(FILE*, off_t, int)>("fseeko");
    return perform("fseeko", file, -1, [&] { return real(file, offset, whence); });
}

off64_t lseek64(int descriptor, off64_t offset, int whence) noexcept {
    static auto* const real = next<off64_t(int, off64_t, int)>("lseek64");
    return perform("lseek64", descriptor, off64_t(-1), [&] { return real(descriptor, offset, whence); });
}

int stat(const char* path, struct stat* facts) noexcept {
    static auto* const real = next<int(const char*, struct stat*)>("stat");
    return perform("stat", path, -1, [&] { return real(path, facts); });
}

int lstat(const char* path, struct stat* facts) noexcept {
    static auto* const real = next<int(const char*, struct stat*)>("lstat");
    return perform("lstat", path, -1, [&] { return real(path, facts); });
}

int fstat(int descriptor, struct stat* facts) noexcept {
    static auto* const real = next<int(int, struct stat*)>("fstat");
    return perform("fstat", descriptor, -1, [&] { return real(descriptor, facts); });
}

int fstat64(int descriptor, struct stat64* facts) noexcept {
    static auto* const real = next<int(int, struct stat64*)>("fstat64");
    return perform("fstat64", descriptor, -1, [&] { return real(descriptor, facts); });
}

int access(const char* path, int rights) noexcept {
    static auto* const real = next<int(const char*, int)>("access");
    return perform("access", path, -1, [&] { return real(path, rights); });
}

int fchmod(int descriptor, mode_t mode) noexcept {
    static auto* const real = next<int(int, mode_t)>("fchmod");
    return perform("fchmod", descriptor, -1, [&] { return real(descriptor, mode); });
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    static auto* const real = next<int(int, const char*, mode_t, int)>("fchmodat");
    return perform("fchmodat", path, -1, [&] { return real(folder, path, mode, flags); });
}

int fchown(int descriptor, uid_t owner, gid_t group) noexcept {
    static auto* const real = next<int(int, uid_t, gid_t)>("fchown");
    return perform("fchown", descriptor, -1, [&] { return real(descriptor, owner, group); });
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = next<int(const char*, const char*)>("rename");
    return perform("rename", to, -1, [&] { return real(from, to); });
}

int remove(const char* path) noexcept {
    static auto* const real = next<int(const char*)>("remove");
    return perform("remove", path, -1, [&] { return real(path); });
}

int unlink(const char* path) noexcept {
    static auto* const real = next<int(const char*)>("unlink");
    return perform("unlink", path, -1, [&] { return real(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept {
    static auto* const real = next<int(int, const char*, int)>("unlinkat");
    return perform("unlinkat", path, -1, [&] { return real(folder, path, flags); });
}

DIR* fdopendir(int descriptor) {
    static auto* const real = next<DIR*(int)>("fdopendir");
    return perform("fdopendir", descriptor, static_cast<DIR*>(nullptr), [&] { return real(descriptor); });
}

char* realpath(const char* path, char* target) noexcept {
    static auto* const real = next<char*(const char*, char*)>("realpath");
    return perform("realpath", path, static_cast<char*>(nullptr), [&] { return real(path, target); });
}

char* getcwd(char* target, size_t size) noexcept {
    static auto* const real = next<char*(char*, size_t)>("getcwd");
    return perform("getcwd", "", static_cast<char*>(nullptr), [&] { return real(target, size); });
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    static auto* const real = next<ssize_t(const char*, char*, size_t)>("readlink");
    return perform("readlink", path, ssize_t(-1), [&] { return real(path, target, size); });
}

} // extern "C"
