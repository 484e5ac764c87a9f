#include "vellox/opc/ZipDirectory.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Limits.h"

#include <zip.h>

#include <filesystem>
#include <memory>

namespace opc {

std::vector<ZipEntryFacts> listZipEntries(const std::wstring& path) {
    std::vector<ZipEntryFacts> entries;
    int failure = 0;
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(vellox::toUtf8(path), ignored))
        return entries; // a pipe might never answer
    const std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
        zip_open(vellox::toUtf8(path).c_str(), ZIP_RDONLY, &failure), zip_discard);
    const zip_int64_t count = archive ? zip_get_num_entries(archive.get(), 0) : 0;
    if (static_cast<std::uint64_t>(count) > kMaxEntries)
        return entries;
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(count); ++i) {
        zip_stat_t facts;
        if (zip_stat_index(archive.get(), i, ZIP_FL_ENC_GUESS, &facts) != 0)
            break;
        const bool isEncrypted =
            (facts.valid & ZIP_STAT_ENCRYPTION_METHOD) && facts.encryption_method != ZIP_EM_NONE;
        entries.push_back({facts.name, isEncrypted,
                           facts.comp_method == ZIP_CM_STORE || facts.comp_method == ZIP_CM_DEFLATE});
    }
    return entries;
}

} // namespace opc
