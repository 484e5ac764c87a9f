#include "vellox/ppt/writers/PPTWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/SlideList.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

PPTWriter::PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package)
    : model_(std::move(model)),
      partWriter_(boost::make_shared<PPTPartWriter>(std::move(package))) {
    partWriter_->setSlideCounter(static_cast<unsigned int>(model_->getSlides().size()));
}

PPTWriter::~PPTWriter() = default;

void PPTWriter::report(const MsgID& finding) const {
    if (reporter_)
        ppt::report(finding, *reporter_);
}

void PPTWriter::write(const PPTNode& node) {
    node.acceptWriter(this, nullptr);
}

void PPTWriter::finish() {
    std::vector<boost::shared_ptr<TemplateSlide>> slides;
    for (const Written& written : slides_) {
        written.slide->partName = written.partName;
        slides.push_back(written.slide);
    }
    updateSlideList(model_->getTemplate(), slides, *partWriter_);
    finishPackage();
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
                        SlideDocument& document, const std::wstring& partName)
    : writer_(writer) {
    writer_.slides_.push_back({slide, partName});
    writer_.written_.insert(slide.get());
    writer_.currentSlide_ = &document;
}

PPTWriter::Visit::~Visit() {
    writer_.currentSlide_ = nullptr;
}

std::wstring PPTWriter::getCurrentSlidePartName() const {
    return currentSlide_ ? slides_.back().partName : std::wstring();
}

} // namespace vellox::ppt
