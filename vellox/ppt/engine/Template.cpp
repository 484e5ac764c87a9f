#include "vellox/ppt/engine/Template.h"

#include "vellox/check/MarkupCheck.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/engine/Failures.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/engine/PresentationPaths.h"
#include "vellox/ppt/engine/TemplateImpl.h"
#include "vellox/ppt/engine/TemplateParser.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/TemplateReader.h"

#include <boost/interprocess/streams/bufferstream.hpp>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

// TemplateImpl

namespace {

constexpr std::size_t kMaxTemplateBytes = std::size_t(2) << 30; // to be held in memory

} // namespace

TemplateImpl::TemplateImpl(const std::wstring& path, const Profile& profile)
    : path_(normalizeAndCheck(ensureExtension(normalizeAndCheck(path)))),
      check_(boost::make_shared<check::MarkupCheck>()) {
    translate<fsys::FsysExceptionBase, ppt_error::cannotOpenTemplate>(path_, [&] {
        bytes_ = boost::make_shared<std::string>(fsys::readFile(fsys::Path(path_), kMaxTemplateBytes));
    });
    requireContents(profile);
}

const TemplateImpl::Contents& TemplateImpl::requireContents(const Profile& profile) {
    Contents& contents = readings_[profile.name];
    if (!contents)
        translate<opc::Exception, ppt_error::cannotOpenFile>(path_, [&] { contents = read(*profile.rules); });
    return contents;
}

TemplateImpl::Contents TemplateImpl::read(const Rules& rules) const {
    OPCPackage package(path_);
    package.openRead(boost::make_shared<boost::interprocess::ibufferstream>(bytes_->data(), bytes_->size()));
    PartDOMBuilder builder(package);
    TemplateReader reader(builder, rules);
    const auto refuse = [&](Refusal cause, const std::wstring& detail) {
        const std::wstring words = rules.explain(cause, detail);
        raise(ppt_error::invalidTemplate(words.empty() ? path_ : words + L": " + path_));
    };
    const Refusal cause = reader.load();
    if (cause != Refusal::None)
        refuse(cause, reader.getFacts().mainType);
    for (const auto& slide : reader.getTemplate()->slides)
        if (!TemplateParser::hasMaster(*slide))
            refuse(slide->layout ? Refusal::LayoutWithoutMaster : Refusal::SlideWithoutLayout,
                   slide->partName);
    return reader.getTemplate();
}

const char* TemplateImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Template";
}

boost::shared_ptr<PPTObject> TemplateImpl::makeHandle() {
    return ObjectAccess::makeFacade<Template>(this);
}

boost::shared_ptr<PresentationModel> TemplateImpl::makeModel(const Profile& profile) {
    return boost::make_shared<PresentationModel>(requireContents(profile), profile.rules);
}

// Template

Template::Template() : Template(getDefaultTemplatePath()) {}
Template::Template(const std::wstring& path) : Template(path, kClassicProfile) {}
Template::Template(const std::wstring& path, const std::wstring& profile)
    : Template(new TemplateImpl(path, findProfile(profile))) {}
Template::Template(TemplateImpl* impl) : PPTObject(impl) {}

Template Template::forOffice(const std::wstring& path) {
    return Template(path, kOfficeProfile);
}

const std::wstring Template::getPath() const {
    return implOf<TemplateImpl>(*this)->getPath();
}

} // namespace vellox::ppt
