#include "vellox/foundation/FileUtils.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Exception.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/ReasonedException.h"
#include "vellox/host/services/FileSystem.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"

#include <map>
#include <string_view>

namespace vellox {

namespace {

namespace fsys = hostfx::filesystem;
using fsys::Path;

// Runs one operation; whatever the file system layer throws becomes the one identifier.
template <class Id, class Operation> auto orRaise(const Id& id, Operation operation) {
    try {
        return operation();
    } catch (const fsys::FsysExceptionBase& failure) {
        raiseWithReason(id, failure.what());
    }
}

boost::system::error_code notFoundCode() {
    return boost::system::error_code(2, boost::system::generic_category());
}

boost::system::error_code plainCode() {
    return boost::system::error_code(0, boost::system::system_category());
}

bool isNetworkPath(const std::wstring& path) {
    return path.compare(0, 2, L"\\\\") == 0;
}

const std::map<std::wstring, const wchar_t*>& getContentTypes() {
    static const auto& types = *new const std::map<std::wstring, const wchar_t*>{
        {L"bmp", L"image/bmp"},
        {L"css", L"text/css"},
        {L"txt", L"text/plain"},
        {L"cur", L"image/x-icon"},
        {L"emf", L"image/x-emf"},
        {L"eps", L"image/eps"},
        {L"emz", L"image/x-emz"},
        {L"gif", L"image/gif"},
        {L"html", L"text/html"},
        {L"jpe", L"image/jpeg"},
        {L"jpeg", L"image/jpeg"},
        {L"jpg", L"image/jpeg"},
        {L"js", L"application/javascript"},
        {L"json", L"application/json"},
        {L"png", L"image/png"},
        {L"psd", L"image/psd"},
        {L"rtf", L"text/rtf"},
        {L"svg", L"image/svg+xml"},
        {L"tif", L"image/tiff"},
        {L"tiff", L"image/tiff"},
        {L"ttf", L"application/x-font-ttf"},
    };
    return types;
}

// The path with links and dots resolved as far as it exists; what lies beyond is resolved by its text.
Path makeWeaklyCanonical(const Path& path) {
    auto element = path.native().begin();
    const auto end = path.native().end();
    Path result;
    if (element != end)
        result = Path(*element++);
    while (element != end && fsys::exists(result / Path(*element)))
        result = result / Path(*element++);
    if (!result.isEmpty() && !isNetworkPath(result.toGeneric()))
        result = fsys::makeCanonical(result, Path(FileUtils::getCurrentDirectory()));
    for (; element != end; ++element) {
        if (*element == "..")
            result = result.getParent();
        else if (!element->empty() && *element != ".")
            result = result / Path(*element);
    }
    return result;
}

} // namespace

std::wstring FileUtils::appendPath(const std::wstring& base, const std::wstring& tail) {
    return orRaise(dom_error::failedToCombinePaths(), [&] {
        const Path start(base);
        return (tail.empty() ? start : start / Path(tail)).toGeneric();
    });
}

std::wstring FileUtils::extractFilename(const std::wstring& path) {
    return orRaise(dom_error::failedToDetermineFilename(), [&] { return Path(path).getFilename(); });
}

std::wstring FileUtils::getFileNameExtension(const std::wstring& path) {
    return orRaise(dom_error::failedToDetermineFilename(), [&] { return Path(path).getExtension(); });
}

std::wstring FileUtils::getFileNameStem(const std::wstring& path) {
    return orRaise(dom_error::failedToDetermineFilename(), [&] { return Path(path).getStem(); });
}

std::wstring FileUtils::extractPath(const std::wstring& path, bool canonical) {
    try {
        const Path parent = Path(path).getParent();
        return (canonical ? makeWeaklyCanonical(parent) : parent).toGeneric();
    } catch (const fsys::FsysExceptionBase& failure) {
        throw FileSystem(failure.what(), path, plainCode());
    }
}

std::wstring FileUtils::normalizePath(const std::wstring& path) {
    if (isNetworkPath(path))
        return path;
    try {
        return Path(path).toGeneric();
    } catch (const fsys::FsysExceptionBase& failure) {
        throw FileSystem(failure.what(), path, plainCode());
    }
}

std::wstring FileUtils::resolvePath(const std::wstring& path) {
    if (isNetworkPath(path))
        return path;
    try {
        return fsys::makeCanonical(Path(path), Path(getCurrentDirectory())).toGeneric();
    } catch (const fsys::FsysPathNotFound& failure) {
        throw PathNotFound(failure.what(), path, notFoundCode());
    } catch (const fsys::FsysExceptionBase& failure) {
        throw FileSystem(failure.what(), path, plainCode());
    }
}

bool FileUtils::fileExists(const std::wstring& path) {
    return orRaise(dom_error::failedToQueryFileState(), [&] { return fsys::exists(Path(path)); });
}

bool FileUtils::isReadOnlyFile(const std::wstring& path) {
    try {
        return fsys::lacksOwnerWrite(Path(path));
    } catch (const fsys::FsysExceptionBase& failure) {
        raise(dom_error::fileSystemError(L"determine read-write permissions", fromUtf8(failure.what())));
    }
}

bool FileUtils::createDirectory(const std::wstring& path) {
    return orRaise(dom_error::failedToCreateDirectory(), [&] {
        const Path folder(path);
        if (!fsys::exists(folder))
            fsys::createDirectory(folder);
        return true;
    });
}

bool FileUtils::removeDirectory(const std::wstring& path) {
    fsys::removeTree(Path(path));
    return true;
}

bool FileUtils::removeFile(const std::wstring& path) {
    return orRaise(dom_error::failedToCopyFile(), [&] {
        const Path file(path);
        if (fsys::exists(file))
            fsys::removeTree(file);
        return true;
    });
}

bool FileUtils::copyFile(const std::wstring& source, const std::wstring& target, bool makeWritable) {
    removeFile(target);
    return orRaise(dom_error::failedToCopyFile(), [&] {
        fsys::copyFile(Path(source), Path(target));
        if (makeWritable)
            fsys::addOwnerWrite(Path(target));
        return true;
    });
}

void FileUtils::replaceFile(const std::wstring& source, const std::wstring& target) {
    orRaise(dom_error::failedToCopyFile(), [&] {
        fsys::replaceFile(Path(source), Path(target));
        return true;
    });
}

bool FileUtils::copyFileToFolder(const std::wstring& source, const std::wstring& folder, bool makeWritable) {
    return copyFile(source, appendPath(folder, extractFilename(source)), makeWritable);
}

std::wstring FileUtils::getCurrentDirectory() {
    return fromUtf8(host::getHostServices().getCurrentDirectory());
}

std::wstring FileUtils::getTempName() {
    return fromUtf8(host::getHostServices().getTempName());
}

std::wstring FileUtils::makeTempDirectory() {
    const std::wstring folder = getTempName();
    if (!createDirectory(folder))
        raise(dom_error::cannotCreateTemporaryDirectory());
    return folder;
}

std::wstring FileUtils::getContentType(const std::wstring& path) {
    const auto found = getContentTypes().find(toLowerString(getFileNameExtension(path)));
    return found == getContentTypes().end() ? std::wstring() : found->second;
}

namespace {

bool beginsLine(std::wstring_view text, std::size_t at) {
    constexpr std::wstring_view kLineEnds = L"\n\r\f\x85\x2028\x2029";
    return at == 0 || kLineEnds.find(text[at - 1]) != kLineEnds.npos;
}

// Whether there is one at a place of a stem in lower case.
bool beginsDeviceName(std::wstring_view stem, std::size_t at) {
    const std::wstring_view name = stem.substr(at, 3);
    if (name == L"com" || name == L"lpt")
        return at + 3 < stem.size() && stem[at + 3] >= L'1' && stem[at + 3] <= L'9';
    return name == L"con" || name == L"aux" || name == L"prn" || (name == L"nul" && beginsLine(stem, at));
}

} // namespace

FileNameFault FileUtils::judgeFileName(const std::wstring& name) {
    // The rule of device names: "nul" is refused at the beginning of a stem, the others anywhere in it. Scripts choose
    // their names by it.
    const std::wstring stem = toLowerString(getFileNameStem(name));
    for (std::size_t at = 0; at < stem.size(); ++at)
        if (beginsDeviceName(stem, at))
            return FileNameFault::ReservedName;
    return stem.find_first_of(L":<>\"/|?*") == stem.npos ? FileNameFault::None
                                                         : FileNameFault::ReservedCharacter;
}

bool FileUtils::isDeviceName(const std::wstring& name) {
    std::wstring stem = toLowerString(extractFilename(name));
    stem.erase(std::min(stem.find(L'.'), stem.size()));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    const std::size_t length = stem.compare(0, 3, L"com") == 0 || stem.compare(0, 3, L"lpt") == 0 ? 4 : 3;
    return stem.size() == length && beginsDeviceName(stem, 0);
}

void FileUtils::refuseFileName(FileNameFault fault, const std::wstring& name) {
    if (fault == FileNameFault::ReservedName)
        raise(dom_error::reservedWindowsFileName(getFileNameStem(name)));
    if (fault == FileNameFault::ReservedCharacter)
        raise(dom_error::reservedWindowsFileNameChar(getFileNameStem(name)));
}

void FileUtils::validateFileName(const std::wstring& name) {
    refuseFileName(judgeFileName(name), name);
}

bool FileUtils::unzip(const std::wstring& zipPath, const std::wstring& folder) {
    return host::getHostServices().unzip(zipPath, folder);
}

std::wstring FileUtils::getHostRoot() {
    return fromUtf8(host::getHostServices().getHostRoot());
}

std::wstring FileUtils::getAddondir(const std::wstring& name) {
    const std::wstring folder = fromUtf8(host::getHostServices().findAddon(toUtf8(name)));
    return folder.empty() ? appendPath(fromUtf8(host::getHostServices().getAddonRoot()), name) : folder;
}

} // namespace vellox
