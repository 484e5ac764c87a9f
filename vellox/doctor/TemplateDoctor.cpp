#include "vellox/doctor/TemplateDoctor.h"

#include "vellox/doctor/DoctorCodes.h"
#include "vellox/doctor/TemplateHealer.h"
#include "vellox/doctor/TemplateSurvey.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/engine/Failures.h"
#include "vellox/ppt/package/OPCPackage.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

void replaceBlank(std::wstring& text, const std::wstring& blank, const std::wstring& word) {
    const std::size_t at = text.find(blank);
    if (at != std::wstring::npos)
        text.replace(at, blank.size(), word);
}

/// A file in the temporary folder, for as long as this lives.
class TempFile {
public:
    explicit TempFile(const std::wstring& extension) : path_(FileUtils::getTempName() + L"." + extension) {}
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() {
        try {
            FileUtils::removeFile(path_);
        } catch (const std::exception&) { // it may never have come to stand
            return;
        }
    }

    const std::wstring& getPath() const { return path_; }

private:
    std::wstring path_;
};

} // namespace

// From the last to the first: a word may hold what looks like a blank.
Finding makeDoctorFinding(const DoctorCode& code, const std::wstring& part, const std::wstring& shape,
                          std::initializer_list<std::wstring> arguments) {
    Finding finding;
    finding.severity = code.severity;
    finding.code = code.code;
    finding.part = part;
    finding.shape = shape;
    finding.text = code.words;
    for (std::size_t i = arguments.size(); i > 0; --i)
        replaceBlank(finding.text, L"%" + std::to_wstring(i) + L"%", arguments.begin()[i - 1]);
    return finding;
}

TemplateReport inspectTemplate(const std::wstring& path) {
    TemplateReport report;
    translate<opc::Exception, ppt_error::cannotOpenFile>(path, [&] {
        OPCPackage package(path);
        package.openRead(false);
        PartDOMBuilder builder(package);
        TemplateSurvey survey(builder, path);
        if (!survey.run({}))
            raise(ppt_error::invalidTemplate(path));
        report = std::move(survey.getReport());
    });
    return report;
}

// The copy is changed in the temporary folder, and comes to its place whole. What is no package is found out before, so
// that the error names the template and not the copy.
std::vector<Finding> healTemplate(const std::wstring& inputPath, const std::wstring& outputPath) {
    std::vector<Finding> changes;
    translate<opc::Exception, ppt_error::cannotOpenFile>(inputPath,
                                                         [&] { OPCPackage(inputPath).openRead(false); });
    const TempFile copy(FileUtils::getFileNameExtension(outputPath));
    translate<fsys::FsysExceptionBase, ppt_error::cannotOpenFile>(inputPath, [&] {
        fsys::copyFile(fsys::Path(inputPath), fsys::Path(copy.getPath()));
        fsys::addOwnerWrite(fsys::Path(copy.getPath()));
    });
    translate<opc::Exception, ppt_error::cannotOpenFile>(inputPath, [&] {
        const auto package = boost::make_shared<OPCPackage>(copy.getPath());
        package->openReadWrite(false);
        TemplateHealer healer(package, inputPath);
        changes = healer.heal();
        package->close();
    });
    translate<fsys::FsysExceptionBase, ppt_error::cannotOpenFile>(
        outputPath, [&] { fsys::replaceFile(fsys::Path(copy.getPath()), fsys::Path(outputPath)); });
    return changes;
}

} // namespace vellox::ppt
