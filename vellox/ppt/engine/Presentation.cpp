#include "vellox/ppt/engine/Presentation.h"

#include "vellox/foundation/Exception.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/ReasonedException.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/engine/OutputFile.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/engine/TemplateParser.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/tree/ByName.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

constexpr wchar_t kDefaultTemplate[] = L"toolbox/shared/vellox/ppt/resources/templates/pptx/default.pptx";
constexpr wchar_t kDefaultOutput[] = L"untitled";
constexpr wchar_t kExtension[] = L"pptx";

std::wstring ensureExtension(const std::wstring& path) {
    if (!FileUtils::getFileNameExtension(path).empty())
        return path;
    return FileUtils::appendPath(FileUtils::extractPath(path, true),
                                 FileUtils::extractFilename(path) + L"." + kExtension);
}

// The argument of an error about a file: what the layer below has to say, and the file, unless that is told
// already.
std::wstring describe(const std::exception& failure, const std::wstring& path) {
    const std::wstring reason = fromUtf8(failure.what());
    return boost::algorithm::ends_with(reason, L" " + path) ? reason : reason + L" " + path;
}

// The same about the working copy of a template. What strikes the copy is no fault of the template's.
std::wstring describeCopy(const std::exception& failure, const std::wstring& templateFile) {
    const std::wstring reason = fromUtf8(failure.what());
    return boost::algorithm::ends_with(reason, L" " + templateFile)
               ? reason
               : templateFile + L" can't be copied to the temporary folder: " + reason;
}

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

std::wstring normalizeAndCheck(const std::wstring& path) {
    try {
        const std::wstring normalized = FileUtils::normalizePath(path);
        checkFolder(normalized);
        return normalized;
    } catch (const FileSystem&) { // of a text that is no path at all
        raise(dom_error::invalidFilePath(path));
    }
}

} // namespace

// PresentationImpl: life

PresentationImpl::PresentationImpl() : report_(boost::make_shared<Report>()) {
    useDefaultTemplate();
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const std::wstring& outputPath) : report_(boost::make_shared<Report>()) {
    setOutputPath(outputPath);
    useDefaultTemplate();
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const std::wstring& outputPath, const std::wstring& templatePath)
    : report_(boost::make_shared<Report>()) {
    setOutputPath(outputPath);
    setTemplatePath(templatePath);
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const PresentationImpl& other)
    : PPTNodeImpl(other),
      state_(other.state_),
      report_(boost::make_shared<Report>(*other.report_)) {
    announceCreated(*this);
}

PresentationImpl::~PresentationImpl() {
    announceDestroyed(*this);
    try {
        removeWorkingCopy();
    } catch (const hostfx::except::IMsgIDException& failure) {
        reportWarningAtEnd(failure.getMsgID());
    }
}

void PresentationImpl::useDefaultTemplate() {
    setTemplatePath(FileUtils::appendPath(FileUtils::getHostRoot(), kDefaultTemplate));
}

const char* PresentationImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Presentation";
}

PPTNodeImpl::Child PresentationImpl::makeInterface() {
    return Child(new Presentation(this));
}

PPTNodeImpl::Child PresentationImpl::clone() const {
    return copyOf(*this);
}

NodeType PresentationImpl::getNodeType() const {
    return NodeType::Presentation;
}

// PresentationImpl: paths

bool PresentationImpl::isOpenOrClosed() const {
    return state_ == PresentationState::Open || state_ == PresentationState::Closed;
}

template <class Warning> void PresentationImpl::warnThatPathStays() {
    const Warning id;
    // In a constructor or destructor no handle on this object can be made, as a message would need one.
    if (getClient() && wantsWarnings() && getRefCount() > 0) // NOLINTNEXTLINE(*.VirtualCall)
        MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(id, *makeInterface()));
    reportWarning(id);
}

template <class Warning>
void PresentationImpl::setPath(std::wstring Report::*field, const std::wstring& path) {
    if (isOpenOrClosed())
        warnThatPathStays<Warning>();
    else
        (*report_).*field = normalizeAndCheck(path);
}

void PresentationImpl::setOutputPath(const std::wstring& path) {
    setPath<ppt_warning::cannotChangeOutputPath>(&Report::outputPath, path);
}

void PresentationImpl::setTemplatePath(const std::wstring& path) {
    setPath<ppt_warning::cannotChangeTemplatePath>(&Report::templatePath, path);
}

// PresentationImpl: opening

namespace {

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

bool PresentationImpl::open() {
    if (isBusy_ || (state_ != PresentationState::Created && state_ != PresentationState::TemplateInvalid))
        return false;
    const Busy busy(this, isBusy_);
    const std::wstring wanted = report_->outputPath.empty() ? kDefaultOutput : report_->outputPath;
    FileUtils::validateFileName(wanted);
    const std::wstring templateFile = ensureExtension(report_->templatePath);
    const std::wstring outputFile = ensureExtension(wanted);
    try {
        parseTemplate(templateFile);
    } catch (const Exception& failure) {
        raise(ppt_error::cannotOpenTemplate(fromUtf8(failure.what())));
    }
    setTemplatePath(templateFile);
    setOutputPath(outputFile);
    copyToOutput(outputFile);
    return true;
}

void PresentationImpl::parseTemplate(const std::wstring& templateFile) {
    if (getClient() && wantsProgress()) {
        const ppt_progress::docParsingTemplateMsg id(report_->templatePath);
        MessageDispatcher::getTheDispatcher().dispatch(ProgressMessage(id, *makeInterface()));
    }
    removeWorkingCopy();
    makeWorkingCopy(templateFile);
    try {
        readTemplate(templateFile);
    } catch (const opc::Exception& failure) {
        raise(ppt_error::cannotOpenFile(describe(failure, templateFile)));
    }
}

void PresentationImpl::readTemplate(const std::wstring& templateFile) {
    const auto templatePackage = boost::make_shared<OPCPackage>(templateFile);
    templatePackage->openRead(false);
    partBuilder_ = boost::make_shared<PartDOMBuilder>(*templatePackage);
    const auto workingPackage = boost::make_shared<OPCPackage>(tempTemplatePath_);
    workingPackage->openReadWrite(false);
    TemplateParser parser(partBuilder_, workingPackage, *this);
    state_ = PresentationState::Parsing;
    model_ = parser.parse();
    state_ = PresentationState::Parsed;
    workingPackage->close();
    templatePackage->close();
}

void PresentationImpl::makeWorkingCopy(const std::wstring& templateFile) {
    // Known before it is made: whatever comes of it is removed.
    tempTemplatePath_ = FileUtils::getTempName() + L"." + FileUtils::getFileNameExtension(templateFile);
    try {
        outputFile_ = boost::make_shared<OutputFile>(templateFile);
        const fsys::Path copy(tempTemplatePath_);
        fsys::copyFile(fsys::Path(templateFile), copy);
        fsys::addOwnerWrite(copy);
    } catch (const fsys::FsysExceptionBase& failure) {
        raise(ppt_error::cannotOpenTemplate(describeCopy(failure, templateFile)));
    }
}

void PresentationImpl::copyToOutput(const std::wstring& outputFile) {
    try {
        outputFile_->put(tempTemplatePath_, report_->outputPath);
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

// PresentationImpl: closing

bool PresentationImpl::close() {
    if (isBusy_ || state_ != PresentationState::Open)
        return false;
    const Busy busy(this, isBusy_);
    const std::wstring path = outputFile_ ? outputFile_->getPath() : report_->outputPath;
    const auto package = boost::make_shared<OPCPackage>(path);
    package->openReadWrite(false);
    if (outputFile_)
        outputFile_->check();
    try {
        writeSlides(package);
        package->close();
    } catch (const opc::Exception& failure) {
        raise(ppt_error::cannotOpenFile(describe(failure, path)));
    }
    return true;
}

void PresentationImpl::writeSlides(const boost::shared_ptr<OPCPackage>& package) {
    if (!model_) { // of a copy of an open presentation, which has nothing of the template
        state_ = PresentationState::Closed;
        return;
    }
    PPTWriter writer(model_, package);
    try {
        const Children slides = getChildren(); // those that a listener adds now come too late
        for (const Child& slide : slides)
            writer.write(*slide);
    } catch (...) {
        writer.rollBack();
        throw;
    }
    state_ = PresentationState::Closed;
    writer.finish();
}

// PresentationImpl: slides

void PresentationImpl::clearSlides() {
    setChildren({});
}

void PresentationImpl::appendChild(const Child& child) {
    open();
    if (state_ != PresentationState::Parsed && state_ != PresentationState::Open)
        return;
    PPTNodeImpl::appendChild(child);
    if (getClient() && wantsProgress()) {
        const ppt_progress::appendChildMsg id(child->getTag());
        MessageDispatcher::getTheDispatcher().dispatch(ProgressMessage(id, *makeInterface()));
    }
}

boost::shared_ptr<Slide> PresentationImpl::makeSlide(const std::wstring& layoutName,
                                                     const std::wstring* masterName) {
    open();
    boost::shared_ptr<TemplateLayout> layout;
    if (model_)
        layout = masterName ? model_->findLayout(layoutName, *masterName) : model_->findLayout(layoutName);
    if (!layout && masterName)
        raise(ppt_error::invalidLayoutOrSlideMasterName(layoutName, *masterName));
    if (!layout)
        raise(ppt_error::invalidLayoutName(layoutName));
    const boost::shared_ptr<TemplateSlide> record = TemplateParser::createSlide(layout);
    auto* slide = new SlideImpl(record);
    const Child handle = slide->makeInterface();
    TemplateParser::buildChildren(*slide, *record->shapes);
    return Slide::cast(handle);
}

void PresentationImpl::insertSlide(const Child& slide) {
    PPTNodeImpl::appendChild(slide);
}

void PresentationImpl::insertSlideAt(const Child& slide, unsigned int index) {
    PPTNodeImpl::insertChildAt(slide, index);
}

void PresentationImpl::insertSlideBefore(const Child& slide, const Slide& reference) {
    PPTNodeImpl::insertChildBefore(slide, reference);
}

// PresentationImpl: names

namespace {

const Presentation::Names& noNames() {
    static const Presentation::Names& none = *new const Presentation::Names;
    return none;
}

} // namespace

const Presentation::Names& PresentationImpl::getMasterNames() {
    open();
    return model_ ? model_->getMasterNames() : noNames();
}

const Presentation::Names& PresentationImpl::getLayoutNames(const std::wstring& masterName) {
    open();
    return model_ ? model_->getLayoutNames(masterName) : noNames();
}

const Presentation::NamePairs& PresentationImpl::getTableStyleNames() {
    open();
    if (model_ && tableStyleNames_.empty())
        model_->getTableStyleNames(tableStyleNames_);
    return tableStyleNames_;
}

// Presentation

Presentation::Presentation() : Presentation(new PresentationImpl) {}
Presentation::Presentation(const std::wstring& outputPath) : Presentation(new PresentationImpl(outputPath)) {}
Presentation::Presentation(const std::wstring& outputPath, const std::wstring& templatePath)
    : Presentation(new PresentationImpl(outputPath, templatePath)) {}
Presentation::Presentation(PresentationImpl* impl) : PPTNode(impl) {}

PresentationImpl* Presentation::pimpl() {
    return implOf<PresentationImpl>(*this);
}

const PresentationImpl* Presentation::pimpl() const {
    return implOf<PresentationImpl>(*this);
}

bool Presentation::open() {
    return pimpl()->open();
}

bool Presentation::close() {
    return pimpl()->close();
}

Slide Presentation::add(const std::wstring& layoutName) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, nullptr);
    pimpl()->insertSlide(slide);
    return *slide;
}

Slide Presentation::add(const std::wstring& layoutName, unsigned int index) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, nullptr);
    pimpl()->insertSlideAt(slide, index);
    return *slide;
}

Slide Presentation::add(const std::wstring& layoutName, const Slide& before) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, nullptr);
    pimpl()->insertSlideBefore(slide, before);
    return *slide;
}

Slide Presentation::add(const std::wstring& layoutName, const std::wstring& masterName) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, &masterName);
    pimpl()->insertSlide(slide);
    return *slide;
}

Slide Presentation::add(const std::wstring& layoutName, const std::wstring& masterName, unsigned int index) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, &masterName);
    pimpl()->insertSlideAt(slide, index);
    return *slide;
}

Slide Presentation::add(const std::wstring& layoutName, const std::wstring& masterName, const Slide& before) {
    const boost::shared_ptr<Slide> slide = pimpl()->makeSlide(layoutName, &masterName);
    pimpl()->insertSlideBefore(slide, before);
    return *slide;
}

void Presentation::add(const std::wstring& name, const Paragraph& paragraph) {
    open();
    addByName(*this, name, paragraph);
}

void Presentation::replace(const std::wstring& name, const std::wstring& text) {
    open();
    replaceByName(*this, name, text);
}

void Presentation::replace(const std::wstring& name, const Paragraph& paragraph) {
    open();
    replaceByName(*this, name, paragraph);
}

void Presentation::replace(const std::wstring& name, const HvContentPtr& content) {
    open();
    replaceByName(*this, name, content);
}

PPTNode::Children Presentation::find(const std::wstring& name) {
    open();
    Children found;
    findNodes(this, name, found);
    return found;
}

const Presentation::Names Presentation::getMasterNames() {
    return pimpl()->getMasterNames();
}

const Presentation::Names Presentation::getLayoutNames(const std::wstring& masterName) {
    return pimpl()->getLayoutNames(masterName);
}

const Presentation::NamePairs Presentation::getTableStyleNames() {
    return pimpl()->getTableStyleNames();
}

const std::wstring Presentation::getOutputPath() const {
    return pimpl()->getReport().outputPath;
}

const std::wstring Presentation::getTemplatePath() const {
    return pimpl()->getReport().templatePath;
}

void Presentation::setOutputPath(const std::wstring& path) {
    pimpl()->setOutputPath(path);
}

void Presentation::setTemplatePath(const std::wstring& path) {
    pimpl()->setTemplatePath(path);
}

} // namespace vellox::ppt
