#include "vellox/ppt/engine/Template.h"

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
#include "vellox/ppt/rules/ClassicRules.h"
#include "vellox/ppt/template/TemplateReader.h"

#include <boost/interprocess/streams/bufferstream.hpp>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

// TemplateImpl

TemplateImpl::TemplateImpl(const std::wstring& path)
    : path_(normalizeAndCheck(ensureExtension(normalizeAndCheck(path)))),
      rules_(boost::make_shared<ClassicRules>()) {
    translate<fsys::FsysExceptionBase, ppt_error::cannotOpenTemplate>(
        path_, [&] { bytes_ = boost::make_shared<std::string>(fsys::readFile(fsys::Path(path_))); });
    translate<opc::Exception, ppt_error::cannotOpenFile>(path_, [&] { read(); });
}

void TemplateImpl::read() {
    OPCPackage package(path_);
    package.openRead(boost::make_shared<boost::interprocess::ibufferstream>(bytes_->data(), bytes_->size()));
    PartDOMBuilder builder(package);
    TemplateReader reader(builder, *rules_);
    if (reader.load() != Refusal::None)
        raise(ppt_error::invalidTemplate(path_));
    contents_ = reader.getTemplate();
    for (const auto& slide : contents_->slides)
        if (!TemplateParser::hasMaster(*slide))
            raise(ppt_error::invalidTemplate(path_));
}

const char* TemplateImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Template";
}

boost::shared_ptr<PPTObject> TemplateImpl::makeHandle() {
    return ObjectAccess::makeFacade<Template>(this);
}

boost::shared_ptr<PresentationModel> TemplateImpl::makeModel() const {
    return boost::make_shared<PresentationModel>(contents_, rules_);
}

// Template

Template::Template() : Template(getDefaultTemplatePath()) {}
Template::Template(const std::wstring& path) : Template(new TemplateImpl(path)) {}
Template::Template(TemplateImpl* impl) : PPTObject(impl) {}

const std::wstring Template::getPath() const {
    return implOf<TemplateImpl>(*this)->getPath();
}

} // namespace vellox::ppt
