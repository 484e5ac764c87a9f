#include "vellox/ppt/engine/OutputFile.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

OutputFile::OutputFile(const std::wstring& templatePath, const std::wstring& workingCopy)
    : templatePath_(fsys::makeAbsolute(fsys::Path(templatePath))),
      workingCopy_(workingCopy),
      template_(fsys::identify(templatePath_)) {}

void OutputFile::put(const std::wstring& outputPath) {
    path_ = fsys::makeAbsolute(fsys::Path(outputPath));
    file_ = bytes_ ? fsys::replaceFile(*bytes_, path_) : fsys::replaceFile(workingCopy_, path_);
}

void OutputFile::reserve(const std::wstring& outputPath) {
    path_ = fsys::makeAbsolute(fsys::Path(outputPath));
    fsys::checkMakeable(fsys::followLinks(path_));
}

// The bytes are those of the template, which needn't be kept for that: one that has changed since is no proof.
bool OutputFile::isSame() const {
    if (fsys::identify(path_) == file_)
        return true;
    if (bytes_)
        return fsys::holds(path_, *bytes_);
    return fsys::identify(templatePath_) == template_ && fsys::haveSameBytes(path_, templatePath_);
}

void OutputFile::check() const {
    try {
        fsys::checkReplaceable(fsys::followLinks(path_));
    } catch (const fsys::FsysExceptionBase& failure) {
        raise(ppt_error::cannotOpenFile(fromUtf8(failure.what())));
    }
    if (!isSame())
        raise(
            ppt_error::cannotOpenFile(L"another file has taken its place since it was opened " + getPath()));
}

} // namespace vellox::ppt
