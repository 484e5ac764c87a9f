#include "tests/support/Files.h"

#include "vellox/foundation/FileUtils.h"
#include "vellox/host/services/Utf8.h"

#include <zip.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace vellox::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() : path_(fs::path(toUtf8(FileUtils::makeTempDirectory()))) {}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(path_, ignored);
}

std::wstring TempFolder::operator/(const std::wstring& name) const {
    return fromUtf8((path_ / toUtf8(name)).string());
}

std::vector<std::string> TempFolder::list() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(path_))
        names.push_back(entry.path().lexically_relative(path_).string());
    return names;
}

void writeFile(const std::wstring& path, const std::string& bytes) {
    std::ofstream(toUtf8(path), std::ios::binary) << bytes;
}

std::string readFile(const std::wstring& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(toUtf8(path), std::ios::binary).rdbuf();
    return bytes.str();
}

std::string makePng(unsigned width, unsigned height) {
    std::string bytes("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (const unsigned value : {width, height})
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes.push_back(static_cast<char>(value >> shift & 255));
    return bytes + std::string("\x8\2\0\0\0\0\0\0\0\0\0\0\0IDAT", 17);
}

Parts readParts(const std::wstring& package) {
    const std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
        zip_open(toUtf8(package).c_str(), ZIP_RDONLY, nullptr), zip_discard);
    if (!archive)
        throw std::runtime_error("no archive: " + toUtf8(package));
    Parts parts;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t facts;
        zip_stat_index(archive.get(), index, 0, &facts);
        std::string bytes(facts.size, '\0');
        zip_file_t* file = zip_fopen_index(archive.get(), index, 0);
        zip_fread(file, bytes.data(), bytes.size());
        zip_fclose(file);
        parts[facts.name] = bytes;
    }
    return parts;
}

void writeParts(const std::wstring& package, const Parts& parts, const ZipStyle& style) {
    const std::string types = "[Content_Types].xml";
    std::vector<std::pair<std::string, std::string>> entries;
    if (!style.contentTypesLast && parts.count(types) > 0)
        entries.emplace_back(types, parts.at(types));
    for (const auto& part : parts)
        if (part.first != types)
            entries.push_back(part);
    if (style.contentTypesLast)
        entries.emplace_back(types, parts.at(types));
    for (std::string name : style.twice) {
        const std::string bytes = parts.at(name);
        for (char& c : name)
            c = static_cast<char>(std::toupper(c));
        entries.emplace_back(name, bytes);
    }
    zip_t* archive = zip_open(toUtf8(package).c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    if (style.withFolders)
        zip_dir_add(archive, "ppt", ZIP_FL_ENC_UTF_8);
    for (const auto& entry : entries) {
        zip_source_t* source = zip_source_buffer(archive, entry.second.data(), entry.second.size(), 0);
        const zip_int64_t index = zip_file_add(archive, entry.first.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (style.stored)
            zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
    }
    if (zip_close(archive) != 0)
        throw std::runtime_error("can't write " + toUtf8(package));
}

const Parts& getTemplateParts() {
    static const Parts parts = readParts(FileUtils::appendPath(
        FileUtils::getHostRoot(), L"toolbox/shared/vellox/ppt/resources/templates/pptx/default.pptx"));
    return parts;
}

Parts withChange(Parts parts, const std::string& part, const std::string& from, const std::string& to) {
    std::string& text = parts.at(part);
    const std::size_t at = text.find(from);
    if (at == std::string::npos)
        throw std::runtime_error(part + " has no " + from);
    text.replace(at, from.size(), to);
    return parts;
}

} // namespace vellox::test
