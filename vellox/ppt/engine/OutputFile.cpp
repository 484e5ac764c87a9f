#include "vellox/ppt/engine/OutputFile.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

OutputFile::OutputFile(const std::wstring& templatePath)
    : templatePath_(fsys::makeAbsolute(fsys::Path(templatePath))),
      template_(fsys::identify(templatePath_)) {}

void OutputFile::put(const std::wstring& workingCopy, const std::wstring& outputPath) {
    path_ = fsys::makeAbsolute(fsys::Path(outputPath));
    file_ = fsys::replaceFile(fsys::Path(workingCopy), path_);
}

// The bytes are those of the template, which needn't be kept for that: one that has changed since is no proof.
bool OutputFile::isSame() const {
    return fsys::identify(path_) == file_ ||
           (fsys::identify(templatePath_) == template_ && fsys::haveSameBytes(path_, templatePath_));
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
