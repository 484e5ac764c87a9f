/// @file
/// The driver of the writers: it turns the tree of one presentation into the documents of its slides while
/// the presentation is closed.
///
///     node.acceptWriter(&writer, parent) --> writer.writeX(nodeImpl, parent) --> XWriter(...).write()
///
/// The driver knows no writer by class; the operations that do stand in PPTWriterDispatch.cpp.

#ifndef VELLOX_PPT_WRITERS_PPTWRITER_H
#define VELLOX_PPT_WRITERS_PPTWRITER_H

#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>
#include <vector>

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/object/DomForward.h"

namespace vellox {
class MsgID;
}

namespace vellox::ppt {

class ExternalLinkImpl;
class OPCPackage;
class ParagraphImpl;
class PictureImpl;
class PPTNode;
class PPTNodeImpl;
class PPTPartWriter;
class SlideImpl;
class TableEntryImpl;
class TableImpl;
class TableRowImpl;
class TextBoxImpl;
class TextBoxPlaceholderImpl;
class TextImpl;

class PPTWriter {
public:
    /// Where the writing of a table is, and what its columns have to say.
    struct TableContext {
        unsigned int rowCount = 0;
        unsigned int colCount = 0;
        unsigned int row = 0;                      ///< from 0
        unsigned int col = 0;                      ///< of the entry within its row, from 0
        std::vector<Formats> colFormats;           ///< one for each column specification
        std::vector<std::optional<int>> colWidths; ///< colCount of them, in EMU
    };

    PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package);
    PPTWriter(const PPTWriter&) = delete;
    PPTWriter& operator=(const PPTWriter&) = delete;
    ~PPTWriter();

    /// Writes a slide with all that it holds.
    void write(const PPTNode& node);
    /// Ends the writing: lists the slides in the presentation part, in the order in which they were written.
    /// @throws opc::Exception
    void finish();
    /// Gives the records of all slides written so far back the documents that they had, so that after a
    /// failure everything can be written again.
    void rollBack();

    /// @{ Writes one node below a DOM node.
    void writeSlide(const SlideImpl& slide, xercesc::DOMNode* parent);
    void writeParagraph(const ParagraphImpl& paragraph, xercesc::DOMNode* parent);
    void writeText(const TextImpl& text, xercesc::DOMNode* parent);
    void writeExternalLink(const ExternalLinkImpl& link, xercesc::DOMNode* parent);
    void writePicture(const PictureImpl& picture, xercesc::DOMNode* parent);
    void writeTable(const TableImpl& table, xercesc::DOMNode* parent);
    void writeTableRow(const TableRowImpl& row, xercesc::DOMNode* parent);
    void writeTableEntry(const TableEntryImpl& entry, xercesc::DOMNode* parent);
    void writeTextBox(const TextBoxImpl& textBox, xercesc::DOMNode* parent);
    void writeTextBoxPlaceholder(const TextBoxPlaceholderImpl& placeholder, xercesc::DOMNode* parent);
    /// @}

    /// Reports about the shape being written. Paragraphs and texts needn't know the way up.
    void report(const MsgID& finding) const;
    /// Null between shapes.
    void setReporter(const PPTNodeImpl* shape) { reporter_ = shape; }

    const boost::shared_ptr<PPTPartWriter>& getPartWriter() const { return partWriter_; }
    const boost::shared_ptr<PresentationModel>& getModel() const { return model_; }
    /// The record of the slide being written; empty before the first.
    const boost::shared_ptr<TemplateSlide>& getCurrentSlide() const { return currentSlide_; }
    void enterSlide(const boost::shared_ptr<TemplateSlide>& slide);
    /// Lets go of the document of the slide, whose part holds it now. Only slides of the template are kept as they
    /// were, since nothing else could bring them back.
    void leaveSlide();

    const TableContext& getTableContext() const { return tableContext_; }
    void enterTable(const TableImpl& table);
    void leaveTable();
    void nextEntry();
    void nextRow();
    /// Widens the column that the table is at. A column that the table doesn't have is passed over.
    void setColumnWidth(int widthEmu);

private:
    struct Former;

    boost::shared_ptr<PresentationModel> model_;
    const PPTNodeImpl* reporter_ = nullptr;
    boost::shared_ptr<PPTPartWriter> partWriter_;
    PresentationModel::Slides slides_;
    std::vector<Former> formers_;
    boost::shared_ptr<TemplateSlide> currentSlide_;
    TableContext tableContext_;
};

} // namespace vellox::ppt

#endif
