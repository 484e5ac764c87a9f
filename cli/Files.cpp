#include "cli/Files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/Console.h"

namespace vellox::cli {

namespace fs = std::filesystem;

void requireFile(const std::string& path) {
    if (::access(path.c_str(), R_OK) != 0)
        throw Failure(path + ": " + std::strerror(errno));
}

std::string readTextFile(const std::string& path) {
    requireFile(path);
    std::error_code failure;
    if (fs::is_directory(path, failure))
        throw Failure(path + ": " + std::strerror(EISDIR));
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file)
        throw Failure(path + ": it can't be read");
    std::string bytes = text.str();
    constexpr char kMark[] = "\xEF\xBB\xBF";
    if (bytes.compare(0, 3, kMark) == 0)
        bytes.erase(0, 3);
    if (toUtf8(fromUtf8(bytes)) != bytes)
        throw Failure(path + ": it isn't in UTF-8");
    return bytes;
}

std::string findTemplate(const std::string& name) {
    std::error_code ignored;
    if (name == "default" && !fs::exists(name, ignored))
        return toUtf8(ppt::Template().getPath());
    requireFile(name);
    return name;
}

namespace {

/// A file that becomes another one once it is complete.
class Draft {
public:
    explicit Draft(std::string target)
        : target_(std::move(target)),
          path_(target_ + "." + std::to_string(::getpid()) + ".tmp") {}
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    ~Draft() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }

    const std::string& getPath() const { return path_; }
    void finish() const {
        std::error_code failure;
        fs::rename(path_, target_, failure);
        check(failure);
    }
    void check(const std::error_code& failure) const {
        if (failure)
            throw Failure(target_ + ": " + failure.message());
    }

private:
    std::string target_, path_;
};

} // namespace

void writeWhole(const std::string& path, const std::string& bytes) {
    const Draft draft(path);
    errno = 0;
    std::ofstream file(draft.getPath(), std::ios::binary);
    file << bytes;
    file.close();
    if (!file)
        draft.check(std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
    draft.finish();
}

void copyWhole(const std::string& from, const std::string& to) {
    const Draft draft(to);
    std::error_code failure;
    fs::copy_file(from, draft.getPath(), failure);
    draft.check(failure);
    fs::permissions(draft.getPath(), fs::perms::owner_write, fs::perm_options::add, failure);
    draft.check(failure);
    draft.finish();
}

std::string resolve(const std::string& path, const std::string& fromFile) {
    return (fs::path(fromFile).parent_path() / path).string();
}

} // namespace vellox::cli
