#include "vellox/ppt/writers/PPTWriter.h"

#include "vellox/foundation/FontMetrics.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/writers/ChartParts.h"
#include "vellox/ppt/writers/DocumentProperties.h"
#include "vellox/ppt/writers/InheritedTexts.h"
#include "vellox/ppt/writers/NotesParts.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PartReports.h"
#include "vellox/ppt/writers/SlideCopies.h"
#include "vellox/ppt/writers/SlideList.h"
#include "vellox/ppt/writers/SlideRemoval.h"
#include "vellox/ppt/writers/SvgPictures.h"
#include "vellox/ppt/writers/TableStylesPart.h"
#include "vellox/ppt/writers/ValueTexts.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

PPTWriter::PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package)
    : model_(std::move(model)),
      partWriter_(boost::make_shared<PPTPartWriter>(std::move(package))),
      copies_(boost::make_shared<SlideCopies>(*partWriter_)),
      notes_(boost::make_shared<NotesParts>(model_->getTemplate(), *partWriter_)) {
    partWriter_->setSlideCounter(static_cast<unsigned int>(model_->getSlides().size()));
}

PPTWriter::~PPTWriter() = default;

void PPTWriter::setDeckValues(const DeckValues& values) {
    deckValues_ = &values;
    marks_ = values.getMarks();
}

void PPTWriter::report(const MsgID& finding) const {
    if (reporter_)
        ppt::report(finding, *reporter_);
}

void PPTWriter::setCheck(const boost::shared_ptr<check::MarkupCheck>& check) {
    partWriter_->setWatcher([this, check](const opc::Part& part, std::string_view markup) {
        if (reporter_)
            reportOnPart(part, markup, *check, *reporter_);
    });
}

InheritedTexts& PPTWriter::getInheritedTexts() {
    if (!texts_)
        texts_ = boost::make_shared<InheritedTexts>(*partWriter_, *model_);
    return *texts_;
}

SvgPictures& PPTWriter::getSvgPictures() {
    if (!svgPictures_)
        svgPictures_ = boost::make_shared<SvgPictures>(*partWriter_);
    return *svgPictures_;
}

FontBook& PPTWriter::getFonts() {
    if (!fonts_)
        fonts_ = boost::make_shared<FontBook>();
    return *fonts_;
}

bool PPTWriter::isOnNewSlide() const {
    return currentSlide_ && !slides_.back()->source;
}

const TemplateLayout* PPTWriter::getCurrentLayout() const {
    return currentSlide_ ? slides_.back()->layout.get() : nullptr;
}

ChartParts& PPTWriter::getChartParts() {
    if (!chartParts_)
        chartParts_ = boost::make_shared<ChartParts>(*partWriter_);
    return *chartParts_;
}

void PPTWriter::writeAttachments() {
    if (chartParts_)
        chartParts_->write();
    notes_->write();
}

void PPTWriter::prepare(const PPTNode::Children& slides) {
    for (const auto& slide : slides) {
        const auto* impl = implAs<SlideImpl>(*slide);
        const boost::shared_ptr<TemplateSlide> record = impl ? impl->getTemplateSlide() : nullptr;
        if (record)
            planned_.insert(record.get());
        if (record && !record->originName.empty())
            copies_->remember(record->originName);
    }
}

const std::wstring& PPTWriter::requirePartName(const TemplateSlide& slide) {
    if (!slide.partName.empty())
        return slide.partName;
    std::wstring& name = newNames_[&slide];
    if (name.empty())
        name = partWriter_->takeSlideName();
    return name;
}

void PPTWriter::write(const PPTNode& node) {
    node.acceptWriter(this, nullptr);
}

void PPTWriter::finish(const DocumentProperties& properties) {
    for (const auto& slide : slides_)
        if (slide->partName.empty())
            slide->partName = std::move(newNames_[slide.get()]);
    newNames_.clear();
    updateSlideList(model_->getTemplate(), slides_, *partWriter_, *notes_);
    std::set<opc::PartName> removed;
    for (const auto& slide : model_->getSlides())
        if (!hasWritten(*slide))
            removed.insert(opc::PartName(slide->partName));
    for (const auto& slide : slides_) // two slides of a damaged template may be one part
        removed.erase(opc::PartName(slide->partName));
    removeSlides(removed, *partWriter_);
    defineTableStyles(model_->getTemplate(), tableStyleIds_, *partWriter_);
    finishPackage();
    writeProperties(properties);
}

void PPTWriter::writeProperties(const DocumentProperties& properties) {
    const bool areRenewed = model_->getRules().renewsProperties();
    if (areRenewed || properties.isSet())
        writeCoreProperties(properties, areRenewed, *partWriter_);
    if (areRenewed)
        renewExtendedProperties(slides_.size(), *partWriter_);
}

void PPTWriter::finishPackage() {
    const ReadTemplate& source = model_->getTemplate();
    const Rules& rules = model_->getRules();
    const std::wstring mainType = partWriter_->alignMainType(source.presentationPartName, rules);
    for (const PackageExtra& extra : source.extras) {
        if (!rules.leavesOut(extra.what, mainType))
            continue;
        partWriter_->removeExtra(extra);
        if (extra.what == Extra::Macros)
            report(ppt_finding::macrosLeftOut());
        else if (extra.what == Extra::Signatures)
            report(ppt_finding::signaturesRemoved());
    }
}

PPTWriter::Visit::Visit(PPTWriter& writer, const boost::shared_ptr<TemplateSlide>& slide,
                        SlideDocument& document)
    : writer_(writer) {
    writer_.slides_.push_back(slide);
    writer_.written_.insert(slide.get());
    writer_.currentSlide_ = &document;
}

PPTWriter::Visit::~Visit() {
    writer_.currentSlide_ = nullptr;
}

std::wstring PPTWriter::getCurrentSlidePartName() {
    return currentSlide_ ? requirePartName(*slides_.back()) : std::wstring();
}

} // namespace vellox::ppt
