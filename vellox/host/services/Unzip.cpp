#include "vellox/host/services/Unzip.h"

#include <zip.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

namespace vellox::host {

namespace {

namespace fs = std::filesystem;

constexpr zip_int64_t kMaxEntries = 100000;
constexpr zip_uint64_t kMaxTotalBytes = zip_uint64_t(4) << 30;

using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;
using Entry = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;

bool staysInside(const fs::path& name) {
    if (name.empty() || name.is_absolute())
        return false;
    for (const fs::path& element : name)
        if (element == "..")
            return false;
    return true;
}

bool unpackEntry(zip_t* archive, zip_int64_t index, const fs::path& target, zip_uint64_t& budget) {
    const Entry entry(zip_fopen_index(archive, static_cast<zip_uint64_t>(index), 0), zip_fclose);
    std::ofstream file(target, std::ios::binary);
    if (!entry || !file)
        return false;
    std::array<char, 16384> block;
    for (;;) {
        const zip_int64_t count = zip_fread(entry.get(), block.data(), block.size());
        if (count == 0)
            return file.flush().good();
        if (count < 0 || static_cast<zip_uint64_t>(count) > budget)
            return false;
        budget -= static_cast<zip_uint64_t>(count);
        if (!file.write(block.data(), count))
            return false;
    }
}

} // namespace

bool unpackArchive(const std::string& archivePath, const std::string& folder) {
    int reason = 0;
    const Archive archive(zip_open(archivePath.c_str(), ZIP_RDONLY, &reason), zip_discard);
    if (!archive || zip_get_num_entries(archive.get(), 0) > kMaxEntries)
        return false;
    std::error_code failure;
    fs::create_directories(folder, failure);
    zip_uint64_t budget = kMaxTotalBytes;
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t i = 0; i < count && !failure; ++i) {
        const char* name = zip_get_name(archive.get(), static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS);
        if (!name || !staysInside(name))
            return false;
        const fs::path target = fs::path(folder) / name;
        const bool isFolder = !target.has_filename();
        fs::create_directories(isFolder ? target : target.parent_path(), failure);
        if (!failure && !isFolder && !unpackEntry(archive.get(), i, target, budget))
            return false;
    }
    return !failure;
}

} // namespace vellox::host
