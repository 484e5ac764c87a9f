#include "vellox/ppt/engine/TemplateParser.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/template/SlideDocuments.h"
#include "vellox/ppt/tree/BodyPlaceholderImpl.h"
#include "vellox/ppt/tree/ContentPlaceholderImpl.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/PicturePlaceholderImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TablePlaceholderImpl.h"
#include "vellox/ppt/tree/TextBoxImpl.h"
#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"

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

namespace {

using Child = PPTNodeImpl::Child;
using Record = ShapeImpl::Record;

template <class Impl> Child make(const Record& record, const std::wstring& name) {
    return (new Impl(name, record))->makeInterface();
}

template <class Impl> Child makePlaceholder(const Record& record, const std::wstring& name) {
    return (new Impl(name, record, record->placeholderType))->makeInterface();
}

Child makeGroup(const Record& record, const std::wstring& name) {
    const Child group = make<GroupImpl>(record, name);
    TemplateParser::buildChildren(*implOf<PPTNodeImpl>(*group), *record->children);
    return group;
}

struct Row {
    NodeType type;
    Child (*make)(const Record& record, const std::wstring& name);
};

constexpr Row kRows[] = {
    {NodeType::BodyPlaceholder, makePlaceholder<BodyPlaceholderImpl>},
    {NodeType::ContentPlaceholder, makePlaceholder<ContentPlaceholderImpl>},
    {NodeType::Group, makeGroup},
    {NodeType::Picture, make<PictureImpl>},
    {NodeType::PicturePlaceholder, makePlaceholder<PicturePlaceholderImpl>},
    {NodeType::Table, make<TableImpl>},
    {NodeType::TablePlaceholder, makePlaceholder<TablePlaceholderImpl>},
    {NodeType::TextBox, make<TextBoxImpl>},
    {NodeType::TextBoxPlaceholder, makePlaceholder<TextBoxPlaceholderImpl>},
};

} // namespace

void TemplateParser::buildChildren(PPTNodeImpl& parent, const TemplateShapes& shapes) {
    for (const Record& record : shapes) {
        const std::wstring name = record->shapeName.isSet() ? record->shapeName.get() : std::wstring();
        for (const Row& row : kRows)
            if (row.type == record->type)
                parent.appendChild(row.make(record, name));
    }
}

} // namespace vellox::ppt
