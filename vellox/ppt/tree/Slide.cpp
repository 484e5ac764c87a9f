#include "vellox/ppt/tree/Slide.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ByName.h"
#include "vellox/ppt/tree/ChartImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

namespace vellox::ppt {

// SlideImpl

SlideImpl::SlideImpl() {
    announceCreated(*this);
}

SlideImpl::SlideImpl(const boost::shared_ptr<TemplateSlide>& templateSlide)
    : NodeOf(templateSlide->name),
      templateSlide_(templateSlide) {
    if (const auto& layout = templateSlide_->layout) {
        layoutName_ = layout->name;
        if (const auto master = layout->master.lock())
            slideMasterName_ = master->name;
    }
    announceCreated(*this);
}

SlideImpl::SlideImpl(const SlideImpl& other)
    : NodeOf(other),
      charts_(other.charts_),
      slideMasterName_(other.slideMasterName_),
      layoutName_(other.layoutName_),
      templateSlide_(other.templateSlide_) {
    announceCreated(*this);
}

SlideImpl::~SlideImpl() {
    announceDestroyed(*this);
}

ChartRecord& SlideImpl::requireChart(const std::wstring& name) {
    const auto found = charts_.find(name);
    if (found != charts_.end())
        return found->second;
    std::wstring names;
    for (const ChartRecord& chart :
         templateSlide_ ? findCharts(*templateSlide_) : std::vector<ChartRecord>()) {
        if (chart.name == name)
            return charts_[name] = chart;
        names += (names.empty() ? L"\"" : L", \"") + chart.name + L"\"";
    }
    raise(ppt_error::noSuchChart(name, names.empty() ? L"-" : names));
}

// Slide

Slide::Slide() : Slide(new SlideImpl) {}
Slide::Slide(SlideImpl* impl) : Element(impl) {}

SlideImpl* Slide::pimpl() {
    return implOf<SlideImpl>(*this);
}

const SlideImpl* Slide::pimpl() const {
    return implOf<SlideImpl>(*this);
}

Picture Slide::add(const Picture& picture) {
    pimpl()->appendChild(picture.makeInterface());
    return picture;
}

Table Slide::add(const Table& table) {
    pimpl()->appendChild(table.makeInterface());
    return table;
}

TextBox Slide::add(const TextBox& textBox) {
    pimpl()->appendChild(textBox.makeInterface());
    return textBox;
}

void Slide::add(const std::wstring& name, const std::wstring& text) {
    addByName(*this, name, text);
}

void Slide::add(const std::wstring& name, const Paragraph& paragraph) {
    addByName(*this, name, paragraph);
}

void Slide::replace(const std::wstring& name, const std::wstring& text) {
    replaceByName(*this, name, text);
}

void Slide::replace(const std::wstring& name, const Paragraph& paragraph) {
    replaceByName(*this, name, paragraph);
}

void Slide::replace(const std::wstring& name, const HvContentPtr& content) {
    replaceByName(*this, name, content);
}

PPTNode::Children Slide::find(const std::wstring& name) const {
    Children found;
    findNodes(this, name, found);
    return found;
}

Chart Slide::chart(const std::wstring& name) {
    pimpl()->requireChart(name);
    return *ObjectAccess::makeFacade<Chart>(new ChartImpl(boost::intrusive_ptr<SlideImpl>(pimpl()), name));
}

const std::vector<std::wstring> Slide::getChartNames() const {
    std::vector<std::wstring> names;
    if (const auto& slide = pimpl()->getTemplateSlide())
        for (const ChartRecord& chart : findCharts(*slide))
            names.push_back(chart.name);
    return names;
}

const std::wstring& Slide::getLayoutName() const {
    return pimpl()->getLayoutName();
}

const std::wstring& Slide::getSlideMasterName() const {
    return pimpl()->getSlideMasterName();
}

void Slide::setName(const std::wstring& name) {
    pimpl()->setName(name);
}

boost::shared_ptr<Slide> Slide::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Slide>(node);
}

} // namespace vellox::ppt
