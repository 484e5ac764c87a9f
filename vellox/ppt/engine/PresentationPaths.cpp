#include "vellox/ppt/engine/PresentationPaths.h"

#include "vellox/foundation/Exception.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"

namespace vellox::ppt {

namespace {

constexpr wchar_t kDefaultTemplate[] = L"toolbox/shared/vellox/ppt/resources/templates/pptx/default.pptx";
constexpr wchar_t kExtension[] = L"pptx";

// Throws what is to be told about the folder of a path, if anything.
void checkFolder(const std::wstring& normalizedPath) {
    const std::wstring folder = FileUtils::extractPath(normalizedPath, false);
    if (folder.empty())
        return;
    try {
        FileUtils::resolvePath(folder);
    } catch (const PathNotFound& failure) {
        raise(ppt_error::pathNotFound(failure.getPathName().empty() ? folder : failure.getPathName()));
    } catch (const FileSystem&) {
        raise(dom_error::invalidFilePath(folder));
    } catch (const Exception&) {
        raise(dom_error::failedToDetermineFilename());
    }
}

} // namespace

std::wstring getDefaultTemplatePath() {
    return FileUtils::appendPath(FileUtils::getHostRoot(), kDefaultTemplate);
}

std::wstring ensureExtension(const std::wstring& path) {
    if (!FileUtils::getFileNameExtension(path).empty())
        return path;
    return FileUtils::appendPath(FileUtils::extractPath(path, true),
                                 FileUtils::extractFilename(path) + L"." + kExtension);
}

std::wstring normalizeAndCheck(const std::wstring& path) {
    try {
        const std::wstring normalized = FileUtils::normalizePath(path);
        checkFolder(normalized);
        return normalized;
    } catch (const FileSystem&) { // of a text that is no path at all
        raise(dom_error::invalidFilePath(path));
    }
}

} // namespace vellox::ppt
