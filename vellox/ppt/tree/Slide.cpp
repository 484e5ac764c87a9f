#include "vellox/ppt/tree/Slide.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ByName.h"
#include "vellox/ppt/tree/ChartImpl.h"
#include "vellox/ppt/tree/ExternalLinkImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableEntry.h"
#include "vellox/ppt/tree/TableImpl.h"

namespace vellox::ppt {

// SlideImpl

SlideImpl::SlideImpl() {
    announceCreated(*this);
}

SlideImpl::SlideImpl(const boost::shared_ptr<TemplateSlide>& templateSlide)
    : NodeOf(templateSlide->name),
      templateSlide_(templateSlide) {
    const auto& layout = templateSlide_->layout;
    if (const auto master = layout ? layout->master.lock() : nullptr)
        slideMasterName_ = master->name;
    isHidden_ = templateSlide_->isHidden;
    announceCreated(*this);
}

SlideImpl::SlideImpl(const SlideImpl& other) : SlideImpl(other, other.templateSlide_) {}

SlideImpl::SlideImpl(const SlideImpl& other, const boost::shared_ptr<TemplateSlide>& templateSlide)
    : NodeOf(other),
      WithPageFields(other),
      charts_(other.charts_),
      isHidden_(other.isHidden_),
      rules_(other.rules_),
      dropped_(other.dropped_),
      slideMasterName_(other.slideMasterName_),
      templateSlide_(templateSlide) {
    announceCreated(*this);
}

SlideImpl::~SlideImpl() {
    announceDestroyed(*this);
}

const std::wstring& SlideImpl::getLayoutName() const {
    static const std::wstring& none = *new const std::wstring;
    const auto layout = templateSlide_ ? templateSlide_->layout.get() : nullptr;
    return layout ? layout->name : none;
}

ChartRecord& SlideImpl::requireChart(const std::wstring& name) {
    auto& charts = charts_.require();
    const auto found = charts.find(name);
    if (found != charts.end())
        return found->second;
    std::wstring names;
    for (const ChartRecord& chart :
         templateSlide_ ? findCharts(*templateSlide_) : std::vector<ChartRecord>()) {
        if (chart.name == name)
            return charts[name] = chart;
        names += (names.empty() ? L"\"" : L", \"") + chart.name + L"\"";
    }
    raise(ppt_error::noSuchChart(name, names.empty() ? L"-" : names));
}

void SlideImpl::dropShape(const PPTNode& shape) {
    const auto* impl = implAs<ShapeImpl>(shape);
    const Children taken = takeOut([&](const PPTNode& child) { return child == shape; });
    if (impl && !taken.empty() && !impl->getTemplateUid().empty())
        dropped_.require().push_back(impl->getTemplateUid());
}

namespace {

// A copy of a node has no name, but what is found on a slide by its name is found by that on its copy.
void copyNames(const PPTNodeImpl& from, const PPTNodeImpl& to) {
    const PPTNode::Children& originals = from.getChildren();
    const PPTNode::Children& copies = to.getChildren();
    for (std::size_t i = 0; i < originals.size() && i < copies.size(); ++i) {
        implOf<PPTNodeImpl>(*copies[i])->PPTNodeImpl::setName(originals[i]->getName());
        copyNames(*implOf<PPTNodeImpl>(*originals[i]), *implOf<PPTNodeImpl>(*copies[i]));
    }
}

using RecordPtr = boost::shared_ptr<TemplateSlide>;

// What led to the original from its own shapes and texts leads to the copy from there.
void redirectLinks(PPTNodeImpl& node, const RecordPtr& from, const RecordPtr& to) {
    if (auto* link = dynamic_cast<ExternalLinkImpl*>(&node))
        link->slide().redirect(from, to);
    else if (auto* picture = dynamic_cast<PictureImpl*>(&node))
        picture->wishes().slide.redirect(from, to);
    else if (const auto* table = dynamic_cast<const TableImpl*>(&node))
        for (const auto& [place, cell] : table->getTemplateCells())
            redirectLinks(*implOf<PPTNodeImpl>(*cell), from, to);
    for (const auto& child : node.getChildren())
        redirectLinks(*implOf<PPTNodeImpl>(*child), from, to);
}

} // namespace

PPTNodeImpl::Child SlideImpl::copyOn(const boost::shared_ptr<TemplateSlide>& record) const {
    const Child copy = (new SlideImpl(*this, record))->makeInterface();
    auto* impl = implOf<SlideImpl>(*copy);
    impl->setName(getName());
    impl->appendClones(*this);
    copyNames(*this, *impl);
    redirectLinks(*impl, templateSlide_, record);
    return copy;
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

void Slide::replace(const std::wstring& name, const Picture& picture) {
    replaceByName(*this, name, boost::make_shared<ObjectContent>(picture));
}

void Slide::replace(const std::wstring& name, const Table& table) {
    replaceByName(*this, name, boost::make_shared<ObjectContent>(table));
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

bool Slide::isHidden() const {
    return pimpl()->isHidden();
}

void Slide::setHidden(bool isHidden) {
    pimpl()->setHidden(isHidden);
}

boost::shared_ptr<Slide> Slide::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Slide>(node);
}

} // namespace vellox::ppt
