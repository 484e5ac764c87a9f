#include "vellox/ppt/engine/TemplateParser.h"

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/template/TemplateReader.h"
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

TemplateParser::TemplateParser(PartDOMBuilder& builder, boost::shared_ptr<const Rules> rules)
    : builder_(builder),
      rules_(std::move(rules)) {}

boost::shared_ptr<PresentationModel> TemplateParser::parse() {
    TemplateReader reader(builder_, *rules_);
    if (reader.load() != Refusal::None)
        return {};
    return boost::make_shared<PresentationModel>(reader.getTemplate(), rules_);
}

bool TemplateParser::hasMaster(const TemplateSlide& slide) {
    return slide.layout && !slide.layout->master.expired();
}

PPTNodeImpl::Child TemplateParser::makeSlide(const boost::shared_ptr<TemplateSlide>& slide) {
    return (new SlideImpl(slide))->makeInterface();
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
