#include "cli/Files.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/Console.h"

namespace vellox::cli {

namespace fs = std::filesystem;

std::wstring toPath(const std::string& path) {
    std::wstring wide = fromUtf8(path);
    if (toUtf8(wide) != path)
        throw Failure(path + ": the name of the file isn't in UTF-8");
    return wide;
}

void requireFile(const std::string& path) {
    toPath(path);
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

/// A file among the system's temporary ones.
class Draft {
public:
    Draft() = default;
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    ~Draft() {
        std::error_code ignored;
        fs::remove(toUtf8(path_), ignored);
    }
    const std::wstring& getPath() const { return path_; }

private:
    const std::wstring path_ = FileUtils::getTempName();
};

std::string lowerExtension(const fs::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    return extension;
}

std::string listExtensions(const OutputKind& kind) {
    std::string text;
    for (std::size_t i = 0; i < kind.extensions.size() && kind.extensions[i]; ++i)
        text += (i == 0 ? "" : " or ") + std::string(kind.extensions[i]);
    return text;
}

} // namespace

std::string makeOutput(const std::string& path, const OutputKind& kind,
                       const std::vector<std::string>& inputs) {
    fs::path output(path);
    const fs::path name = output.filename();
    std::error_code ignored;
    if (path.empty())
        throw Failure("the output has no name");
    if (name.empty() || name == "." || name == ".." || fs::is_directory(output, ignored))
        throw Failure(path + ": " + std::strerror(EISDIR));
    if (!output.has_extension())
        output += kind.addition;
    const std::string extension = lowerExtension(output);
    const auto isExtension = [&](const char* known) { return known && extension == known; };
    if (std::none_of(kind.extensions.begin(), kind.extensions.end(), isExtension))
        throw Failure(path + ": " + kind.name + " is " + listExtensions(kind));
    for (const std::string& input : inputs)
        if (fs::equivalent(input, output, ignored))
            throw Failure(path + ": the output would replace what it is made of");
    toPath(output.string());
    return output.string();
}

void writeFile(const std::string& path, const std::string& bytes) {
    const Draft draft;
    errno = 0;
    std::ofstream file(toUtf8(draft.getPath()), std::ios::binary);
    file << bytes;
    file.close();
    if (!file)
        throw Failure(path + ": " + std::strerror(errno != 0 ? errno : EIO));
    copyFile(draft.getPath(), path);
}

void copyFile(const std::wstring& source, const std::string& path) {
    try {
        FileUtils::replaceFile(source, toPath(path));
    } catch (const hostfx::except::IUserException& failure) {
        throw Failure(path + ": " + failure.what(), failure.getErrorID());
    }
}

std::string resolve(const std::string& path, const std::string& fromFile) {
    return (fs::path(fromFile).parent_path() / path).string();
}

} // namespace vellox::cli
