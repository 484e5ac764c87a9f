#include "vellox/ppt/writers/PPTWriter.h"

#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/template/SlideDocuments.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

/// What a slide's record held before the slide was written.
struct PPTWriter::Former {
    boost::shared_ptr<TemplateSlide> record;
    bool isNew; // its document can be made again from the layout, and its part is gone with the package
    OwnedDocument document;
    unsigned int nextShapeId;
};

PPTWriter::PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package)
    : model_(std::move(model)),
      partWriter_(boost::make_shared<PPTPartWriter>(std::move(package))) {
    partWriter_->setSlideCounter(static_cast<unsigned int>(model_->getSlides()->size()));
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
    model_->updateSlideList(*partWriter_, slides_);
    partWriter_->alignMainType(model_->getPresentationPartName());
}

void PPTWriter::enterSlide(const boost::shared_ptr<TemplateSlide>& slide) {
    currentSlide_ = slide;
    slides_.push_back(slide);
    const bool isNew = slide->partName.empty();
    formers_.push_back(
        {slide, isNew, isNew ? OwnedDocument() : copyDocument(slide->document), slide->nextShapeId});
}

void PPTWriter::leaveSlide() {
    currentSlide_->elementsByUid.clear();
    currentSlide_->document.reset();
}

void PPTWriter::rollBack() {
    for (Former& former : formers_) {
        TemplateSlide& slide = *former.record;
        slide.nextShapeId = former.nextShapeId;
        if (former.isNew) {
            slide.partName.clear();
            slide.document = makeSlideDocument(*slide.layout);
        } else {
            slide.document = std::move(former.document);
        }
        slide.elementsByUid = mapElementsByUid(slide.document.get());
    }
    formers_.clear();
    slides_.clear();
}

// Tables

void PPTWriter::enterTable(const TableImpl& table) {
    tableContext_ = TableContext();
    tableContext_.rowCount = static_cast<unsigned int>(table.getChildren().size());
    tableContext_.colCount = table.getNCols();
    tableContext_.colWidths.resize(table.getNCols());
    for (const auto& spec : table.getColSpecs()) {
        const std::size_t column = tableContext_.colFormats.size();
        tableContext_.colFormats.push_back(spec ? spec->getStyle() : Formats());
        const boost::shared_ptr<ColWidth> width = spec ? spec->getWidth() : boost::shared_ptr<ColWidth>();
        if (width && column < tableContext_.colWidths.size())
            tableContext_.colWidths[column] = std::max(0, width->getDimension().getEMUNumber());
    }
}

void PPTWriter::leaveTable() {
    tableContext_ = TableContext();
}

void PPTWriter::nextEntry() {
    ++tableContext_.col;
}

void PPTWriter::nextRow() {
    ++tableContext_.row;
    tableContext_.col = 0;
}

void PPTWriter::setColumnWidth(int widthEmu) {
    if (tableContext_.col >= tableContext_.colWidths.size())
        return;
    std::optional<int>& width = tableContext_.colWidths[tableContext_.col];
    width = std::max(width.value_or(0), widthEmu);
}

} // namespace vellox::ppt
