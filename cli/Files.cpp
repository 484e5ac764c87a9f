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

std::string resolve(const std::string& path, const std::string& fromFile) {
    return (fs::path(fromFile).parent_path() / path).string();
}

} // namespace vellox::cli
