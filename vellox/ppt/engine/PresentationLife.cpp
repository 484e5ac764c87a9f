// The life of a presentation: opening and closing.

#include "vellox/foundation/Exception.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/ReasonedException.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/engine/Failures.h"
#include "vellox/ppt/engine/OutputFile.h"
#include "vellox/ppt/engine/OutputReader.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/engine/PresentationPaths.h"
#include "vellox/ppt/engine/TemplateImpl.h"
#include "vellox/ppt/engine/TemplateParser.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/writers/PPTWriter.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

constexpr wchar_t kDefaultOutput[] = L"untitled";

// What strikes the working copy of a template is no fault of the template's.
std::wstring describeCopy(const std::exception& failure, const std::wstring& templateFile) {
    const std::wstring reason = fromUtf8(failure.what());
    const bool isTemplate = boost::algorithm::ends_with(reason, L" " + templateFile);
    return isTemplate ? reason : templateFile + L" can't be copied to the temporary folder: " + reason;
}

/// Listeners run while a presentation is opened and closed. They can neither enter that again nor end the
/// presentation meanwhile.
class Busy {
public:
    Busy(PPTObjectImpl* presentation, bool& flag) : kept_(presentation), flag_(flag) { flag_ = true; }
    ~Busy() { flag_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    boost::intrusive_ptr<PPTObjectImpl> kept_;
    bool& flag_;
};

} // namespace

// Opening

bool PresentationImpl::open() {
    if (isBusy_ || (state_ != PresentationState::Created && state_ != PresentationState::TemplateInvalid))
        return false;
    const Busy busy(this, isBusy_);
    const std::wstring wanted = report_->outputPath.empty() ? kDefaultOutput : report_->outputPath;
    const FileNameFault fault = profile_.rules->judgeFileName(wanted);
    FileUtils::refuseFileName(fault, wanted);
    const std::wstring templateFile = ensureExtension(report_->templatePath);
    const std::wstring outputFile = ensureExtension(wanted);
    if (!template_ && profile_.rules->appearsWhen() == Appearance::AtClose)
        holdTemplate(templateFile);
    if (template_) {
        takeTemplate();
    } else {
        translate<Exception, ppt_error::cannotOpenTemplate>({}, [&] { parseTemplate(templateFile); });
        setTemplatePath(templateFile);
    }
    setOutputPath(outputFile);
    placeOutput(outputFile);
    if (fault == FileNameFault::DeviceName)
        report(ppt_finding::deviceFileName(FileUtils::extractFilename(outputFile)), *this);
    return true;
}

void PresentationImpl::tellOfReading() {
    if (!getClient() || !wantsProgress())
        return;
    const ppt_progress::docParsingTemplateMsg id(report_->templatePath);
    MessageDispatcher::getTheDispatcher().dispatch(ProgressMessage(id, *makeInterface()));
}

void PresentationImpl::parseTemplate(const std::wstring& templateFile) {
    tellOfReading();
    removeWorkingCopy();
    makeWorkingCopy(templateFile);
    translate<opc::Exception, ppt_error::cannotOpenFile>(templateFile, [&] { readTemplate(templateFile); });
}

void PresentationImpl::readTemplate(const std::wstring& templateFile) {
    OPCPackage package(templateFile);
    package.openRead(false);
    partBuilder_ = boost::make_shared<PartDOMBuilder>(package);
    state_ = PresentationState::Parsing;
    setChildren({});
    const boost::shared_ptr<PresentationModel> model = TemplateParser(*partBuilder_, profile_.rules).parse();
    if (!model)
        rejectTemplate();
    takeModel(model);
    package.close();
}

// The deck is made of it when it is closed, and nothing need stand on disk until then.
void PresentationImpl::holdTemplate(const std::wstring& templateFile) {
    tellOfReading();
    const boost::intrusive_ptr<TemplateImpl> held(new TemplateImpl(templateFile, profile_));
    report_->templatePath = held->getPath();
    template_ = held;
}

// What was read for all decks is this one's from now on, whatever listeners make of the paths.
void PresentationImpl::takeTemplate() {
    outputFile_ = boost::make_shared<OutputFile>(template_->getBytes());
    takeModel(template_->makeModel(profile_));
}

void PresentationImpl::takeModel(const boost::shared_ptr<PresentationModel>& model) {
    state_ = PresentationState::Parsed;
    for (const auto& slide : model->getSlides())
        takeSlide(slide);
    model_ = model;
}

// Listeners hear of a slide ahead of its shapes. Slides that stand there already stay when one is rejected.
void PresentationImpl::takeSlide(const boost::shared_ptr<TemplateSlide>& slide) {
    if (!TemplateParser::hasMaster(*slide))
        rejectTemplate();
    const Child node = TemplateParser::makeSlide(slide);
    appendChild(node);
    TemplateParser::buildChildren(*implOf<PPTNodeImpl>(*node), *slide->shapes);
}

void PresentationImpl::rejectTemplate() {
    state_ = PresentationState::TemplateInvalid;
    raise(ppt_error::invalidTemplate(partBuilder_ ? partBuilder_->getPath() : report_->templatePath));
}

void PresentationImpl::makeWorkingCopy(const std::wstring& templateFile) {
    // Known before it is made: whatever comes of it is removed.
    tempTemplatePath_ = FileUtils::getTempName() + L"." + FileUtils::getFileNameExtension(templateFile);
    const auto make = [&] {
        outputFile_ = boost::make_shared<OutputFile>(templateFile, tempTemplatePath_);
        const fsys::Path copy(tempTemplatePath_);
        fsys::copyFile(fsys::Path(templateFile), copy);
        fsys::addOwnerWrite(copy);
    };
    translate<fsys::FsysExceptionBase, ppt_error::cannotOpenTemplate>(templateFile, make, describeCopy);
}

void PresentationImpl::placeOutput(const std::wstring& outputFile) {
    try {
        if (profile_.rules->appearsWhen() == Appearance::AtOpen)
            outputFile_->put(report_->outputPath);
        else
            outputFile_->reserve(report_->outputPath);
        state_ = PresentationState::Open;
        removeWorkingCopy();
    } catch (const std::exception& failure) {
        raiseWithReason(ppt_error::cannotOpenFile(outputFile), failure.what());
    } catch (...) {
        raise(ppt_error::cannotOpenFile(outputFile));
    }
}

void PresentationImpl::removeWorkingCopy() {
    if (tempTemplatePath_.empty())
        return;
    FileUtils::removeFile(tempTemplatePath_);
    tempTemplatePath_.clear();
}

// Closing

bool PresentationImpl::close() {
    if (isBusy_ || state_ != PresentationState::Open)
        return false;
    const Busy busy(this, isBusy_);
    refuseWhatIsLeft();
    reader_.reset();
    const std::wstring path = outputFile_ ? outputFile_->getPath() : report_->outputPath;
    const auto package = boost::make_shared<OPCPackage>(path);
    package->setCompression(compression_);
    openOutput(*package);
    translate<opc::Exception, ppt_error::cannotOpenFile>(path, [&] {
        writeSlides(package);
        package->close();
    });
    outputFile_.reset();
    template_.reset();
    return true;
}

void PresentationImpl::openOutput(OPCPackage& package) {
    if (profile_.rules->appearsWhen() == Appearance::AtOpen) {
        package.openReadWrite(false);
        if (outputFile_)
            outputFile_->check();
    } else if (outputFile_) {
        package.openToSave(outputFile_->getBytes());
    }
}

// A failure before the state is Closed has changed nothing, and closing may be tried again.
void PresentationImpl::writeSlides(const boost::shared_ptr<OPCPackage>& package) {
    if (!model_) { // of a copy of an open presentation, which has nothing of the template
        state_ = PresentationState::Closed;
        return;
    }
    PPTWriter writer(model_, package);
    if (template_ && profile_.rules->checksDocuments())
        writer.setCheck(template_->getCheck());
    writer.setDeckValues(values_);
    FindingList::Attempt attempt(findings_);
    const Children slides = getChildren(); // those that a listener adds now come too late
    writer.setPageFields(pageFields.get());
    writer.prepare(slides);
    for (const Child& slide : slides)
        writer.write(*slide);
    writer.setReporter(this);
    writer.writeAttachments();
    state_ = PresentationState::Closed;
    attempt.keep();
    writer.finish(properties_);
}

} // namespace vellox::ppt
