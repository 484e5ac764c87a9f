#include "vellox/ppt/engine/Presentation.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/OutputReader.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/engine/PresentationPaths.h"
#include "vellox/ppt/engine/TemplateImpl.h"
#include "vellox/ppt/engine/TemplateParser.h"
#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/ByName.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <algorithm>
#include <array>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

// PresentationImpl

PresentationImpl::PresentationImpl()
    : profile_(findProfile(kClassicProfile)),
      report_(boost::make_shared<Report>()) {
    useDefaultTemplate();
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const std::wstring& outputPath)
    : profile_(findProfile(kClassicProfile)),
      report_(boost::make_shared<Report>()) {
    setOutputPath(outputPath);
    useDefaultTemplate();
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const std::wstring& outputPath, const std::wstring& templatePath)
    : profile_(findProfile(kClassicProfile)),
      report_(boost::make_shared<Report>()) {
    setOutputPath(outputPath);
    setTemplatePath(templatePath);
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const std::wstring& outputPath, boost::intrusive_ptr<TemplateImpl> source)
    : template_(std::move(source)),
      profile_(findProfile(kClassicProfile)),
      report_(boost::make_shared<Report>()) {
    setOutputPath(outputPath);
    report_->templatePath = template_->getPath();
    announceCreated(*this);
}

PresentationImpl::PresentationImpl(const PresentationImpl& other)
    : NodeOf(other),
      WithPageFields(other),
      template_(other.template_),
      profile_(other.profile_),
      state_(other.state_),
      compression_(other.compression_),
      properties_(other.properties_),
      values_(other.values_.copy()),
      isStrict_(other.isStrict_),
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
    setTemplatePath(getDefaultTemplatePath());
}

// PresentationImpl: paths

bool PresentationImpl::isOpenOrClosed() const {
    return state_ == PresentationState::Open || state_ == PresentationState::Closed;
}

template <class Warning> void PresentationImpl::warnThatItStays() {
    const Warning id;
    // In a constructor or destructor no handle on this object can be made, as a message would need one.
    const bool isSentAnyway = profile_.rules->sendsFindings();                // with the report
    if (getClient() && !isSentAnyway && wantsWarnings() && getRefCount() > 0) // NOLINTNEXTLINE(*.VirtualCall)
        MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(id, *makeInterface()));
    reportWarning(id);
    report(MsgID(ppt_finding::kCatalog, id.id, id.args), *this);
}

template <class Warning>
void PresentationImpl::setPath(std::wstring Report::*field, const std::wstring& path) {
    if (isOpenOrClosed())
        warnThatItStays<Warning>();
    else
        (*report_).*field = normalizeAndCheck(path);
}

void PresentationImpl::setOutputPath(const std::wstring& path) {
    setPath<ppt_warning::cannotChangeOutputPath>(&Report::outputPath, path);
}

void PresentationImpl::setTemplatePath(const std::wstring& path) {
    setPath<ppt_warning::cannotChangeTemplatePath>(&Report::templatePath, path);
    if (!isOpenOrClosed())
        template_.reset();
}

void PresentationImpl::setProfile(const std::wstring& name) {
    const Profile profile = findProfile(name);
    if (isBusy_ || isOpenOrClosed())
        warnThatItStays<ppt_warning::cannotChangeProfile>();
    else
        profile_ = profile;
}

// PresentationImpl: slides

void PresentationImpl::appendChild(const Child& child) {
    open();
    if (state_ != PresentationState::Parsed && state_ != PresentationState::Open)
        return report(ppt_finding::slideAfterClose(), *this);
    if (auto* slide = implAs<SlideImpl>(*child))
        slide->setRules(profile_.rules);
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
    if (!layout)
        refuseLayout(layoutName, masterName);
    if (layout->master.expired())
        report(ppt_finding::unsoundPart(layout->partName, L"it leads to no slide master"), *this);
    const boost::shared_ptr<TemplateSlide> record = model_->createSlide(layout);
    auto* slide = new SlideImpl(record);
    const Child handle = slide->makeInterface();
    slide->setRules(profile_.rules);
    TemplateParser::buildChildren(*slide, *record->shapes);
    return Slide::cast(handle);
}

void PresentationImpl::insertSlide(const Child& slide) {
    PPTNodeImpl::appendChild(slide);
    reportIfClosed(slide);
}

void PresentationImpl::insertSlideAt(const Child& slide, unsigned int index) {
    PPTNodeImpl::insertChildAt(slide, index);
    reportIfClosed(slide);
}

void PresentationImpl::insertSlideBefore(const Child& slide, const Slide& reference) {
    PPTNodeImpl::insertChildBefore(slide, reference);
    reportIfClosed(slide);
}

void PresentationImpl::reportIfClosed(const Child& slide) const {
    if (state_ == PresentationState::Closed)
        report(ppt_finding::slideAfterClose(), *implOf<PPTNodeImpl>(*slide));
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
Presentation::Presentation(const std::wstring& outputPath, const Template& source)
    : Presentation(new PresentationImpl(outputPath, heldImplOf<TemplateImpl>(source))) {}
Presentation::Presentation(PresentationImpl* impl) : PPTNode(impl) {}

Presentation Presentation::forOffice(const std::wstring& outputPath) {
    Presentation presentation(outputPath);
    presentation.setProfile(kOfficeProfile);
    return presentation;
}

Presentation Presentation::forOffice(const std::wstring& outputPath, const std::wstring& templatePath) {
    Presentation presentation(outputPath, templatePath);
    presentation.setProfile(kOfficeProfile);
    return presentation;
}

Presentation Presentation::forOffice(const std::wstring& outputPath, const Template& source) {
    Presentation presentation(outputPath, source);
    presentation.setProfile(kOfficeProfile);
    return presentation;
}

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

const std::vector<Finding> Presentation::getFindings() const {
    return pimpl()->getFindings();
}

std::vector<Finding> Presentation::getFindings(std::size_t first) const {
    return pimpl()->getFindings(first);
}

bool Presentation::getStrict() const {
    return pimpl()->isStrict();
}

void Presentation::setStrict(bool strict) {
    pimpl()->setStrict(strict);
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

namespace {

// In the order of opc::Compression.
constexpr std::array<const wchar_t*, 3> kCompressions{L"fast", L"normal", L"small"};

const SpellingTable& getCompressionWords() {
    static const auto& words = *new const SpellingTable{{kCompressions[0], kCompressions[0], u""},
                                                        {kCompressions[1], kCompressions[1], u""},
                                                        {kCompressions[2], kCompressions[2], u""}};
    return words;
}

} // namespace

const std::wstring Presentation::getCompression() const {
    return kCompressions[static_cast<std::size_t>(pimpl()->getCompression())];
}

void Presentation::setCompression(const std::wstring& compression) {
    const std::wstring& word = getCompressionWords().require(compression).label;
    const auto found = std::find(kCompressions.begin(), kCompressions.end(), word);
    pimpl()->setCompression(static_cast<opc::Compression>(found - kCompressions.begin()));
}

const std::wstring Presentation::getTitle() const {
    return pimpl()->getProperties().title.value_or(L"");
}

void Presentation::setTitle(const std::wstring& title) {
    pimpl()->getProperties().title = title;
}

const std::wstring Presentation::getAuthor() const {
    return pimpl()->getProperties().author.value_or(L"");
}

void Presentation::setAuthor(const std::wstring& author) {
    pimpl()->getProperties().author = author;
}

const std::wstring Presentation::getSubject() const {
    return pimpl()->getProperties().subject.value_or(L"");
}

void Presentation::setSubject(const std::wstring& subject) {
    pimpl()->getProperties().subject = subject;
}

const std::wstring Presentation::getKeywords() const {
    return pimpl()->getProperties().keywords.value_or(L"");
}

void Presentation::setKeywords(const std::wstring& keywords) {
    pimpl()->getProperties().keywords = keywords;
}

const std::wstring Presentation::getProfile() const {
    return pimpl()->getProfile();
}

void Presentation::setProfile(const std::wstring& name) {
    pimpl()->setProfile(name);
}

} // namespace vellox::ppt
