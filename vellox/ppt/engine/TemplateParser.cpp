#include "vellox/ppt/engine/TemplateParser.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/template/SlideDocuments.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

TemplateParser::TemplateParser(boost::shared_ptr<PartDOMBuilder> builder,
                               boost::shared_ptr<OPCPackage> package, PresentationImpl& presentation)
    : builder_(std::move(builder)),
      package_(std::move(package)),
      presentation_(presentation) {}

boost::shared_ptr<PresentationModel> TemplateParser::parse() {
    presentation_.clearSlides();
    const auto model = boost::make_shared<PresentationModel>(builder_);
    if (!model->load())
        reject();
    presentation_.setState(PresentationState::Parsed);
    for (const auto& slide : *model->getSlides()) {
        if (!slide->layout || !slide->layout->master)
            reject();
        appendSlide(slide);
    }
    return model;
}

void TemplateParser::reject() {
    presentation_.setState(PresentationState::TemplateInvalid);
    raise(ppt_error::invalidTemplate(builder_->getPath()));
}

void TemplateParser::appendSlide(const boost::shared_ptr<TemplateSlide>& slide) {
    auto* node = new SlideImpl(slide);
    presentation_.appendChild(node->makeInterface());
    buildChildren(*node, *slide->shapes);
}

boost::shared_ptr<TemplateSlide>
TemplateParser::createSlide(const boost::shared_ptr<TemplateLayout>& layout) {
    if (!layout)
        return {};
    const auto slide = boost::make_shared<TemplateSlide>();
    slide->layout = layout;
    slide->shapes = layout->shapes;
    slide->document = makeSlideDocument(*layout);
    slide->nextShapeId = std::max(layout->maxShapeId, layout->lastSlideShapeId);
    slide->elementsByUid = mapElementsByUid(slide->document.get());
    return slide;
}

void TemplateParser::buildChildren(PPTNodeImpl& parent, const TemplateShapes& shapes) {
    for (const boost::shared_ptr<TemplateShape>& record : shapes) {
        const NodeKind& kind = getNodeKind(record->type);
        if (!kind.make)
            continue;
        const std::wstring name = record->shapeName.isSet() ? record->shapeName.get() : std::wstring();
        const PPTNodeImpl::Child node = kind.make(record, name);
        if (record->children)
            buildChildren(*implOf<PPTNodeImpl>(*node), *record->children);
        parent.appendChild(node);
    }
}

} // namespace vellox::ppt
