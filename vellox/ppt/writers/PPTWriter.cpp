#include "vellox/ppt/writers/PPTWriter.h"

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/SlideList.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

PPTWriter::PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package)
    : model_(std::move(model)),
      partWriter_(boost::make_shared<PPTPartWriter>(std::move(package))) {
    partWriter_->setSlideCounter(static_cast<unsigned int>(model_->getSlides().size()));
}

PPTWriter::~PPTWriter() = default;

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
    partWriter_->alignMainType(model_->getTemplate().presentationPartName);
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
