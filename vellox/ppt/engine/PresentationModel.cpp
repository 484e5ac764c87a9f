#include "vellox/ppt/engine/PresentationModel.h"

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlidePrototype.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

PresentationModel::PresentationModel(boost::shared_ptr<const ReadTemplate> source,
                                     boost::shared_ptr<const Rules> rules)
    : template_(std::move(source)),
      rules_(std::move(rules)) {
    for (const auto& slide : template_->slides)
        slides_.push_back(boost::make_shared<TemplateSlide>(*slide));
}

PresentationModel::~PresentationModel() = default;

// The prototype is made with the first slide, whenever slides are written: names in it may be random.
boost::shared_ptr<TemplateSlide>
PresentationModel::createSlide(const boost::shared_ptr<TemplateLayout>& layout) const {
    if (!layout)
        return {};
    requirePrototype(*layout, *rules_);
    const auto slide = boost::make_shared<TemplateSlide>();
    slide->layout = layout;
    slide->shapes = layout->shapes;
    return slide;
}

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(const std::wstring& layoutName,
                                                                const std::wstring& masterName) const {
    const auto master = template_->mastersByName.find(masterName);
    if (master == template_->mastersByName.end())
        return {};
    const auto layout = master->second->layoutsByName.find(layoutName);
    return layout == master->second->layoutsByName.end() ? boost::shared_ptr<TemplateLayout>()
                                                         : layout->second;
}

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(const std::wstring& layoutName) const {
    for (const auto& master : template_->searchOrder) {
        const auto layout = master->layoutsByName.find(layoutName);
        if (layout != master->layoutsByName.end())
            return layout->second;
    }
    return {};
}

const PresentationModel::Names& PresentationModel::getLayoutNames(const std::wstring& masterName) const {
    static const Names& none = *new const Names;
    const auto master = template_->mastersByName.find(masterName);
    return master == template_->mastersByName.end() ? none : master->second->layoutNames;
}

PresentationModel::Names PresentationModel::getAllLayoutNames() const {
    Names names;
    for (const auto& master : template_->masters)
        names.insert(names.end(), master->layoutNames.begin(), master->layoutNames.end());
    return names;
}

void PresentationModel::getTableStyleNames(NamePairs& list) const {
    list.clear();
    for (const auto& style : template_->tableStyles)
        list.emplace_back(style->styleName, style->styleId);
}

PresentationModel::Names PresentationModel::listTableStyleNames() const {
    Names names;
    for (const auto& style : template_->tableStyles)
        names.push_back(style->styleName);
    const Names others = rules_->listTableStyles();
    names.insert(names.end(), others.begin(), others.end());
    return names;
}

const std::wstring* PresentationModel::findTableStyleId(const std::wstring& styleName) const {
    for (const auto& style : template_->tableStyles)
        if (style->styleName == styleName)
            return &style->styleId;
    return nullptr;
}

} // namespace vellox::ppt
