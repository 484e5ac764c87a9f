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
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/ppt/formats/NumberForm.h"
#include "vellox/ppt/object/DomForward.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox {
class FontBook;
class MsgID;
} // namespace vellox

namespace vellox::check {
class MarkupCheck;
}

namespace vellox::ppt {

class ChartParts;
class ExternalLinkImpl;
class FormatsInForce;
class InheritedTexts;
class NotesParts;
class OPCPackage;
class ParagraphImpl;
class PictureImpl;
class PPTNode;
class PPTNodeImpl;
class PPTPartWriter;
class PresentationModel;
class SlideCopies;
class SlideDocument;
class SlideImpl;
class SvgPictures;
class TableEntryImpl;
class TableImpl;
class TableRowImpl;
class TextBoxImpl;
class TextBoxPlaceholderImpl;
class TextImpl;
class TextLook;
struct ParagraphLook;
struct DeckValues;
struct DocumentProperties;
struct PageFields;
struct TableContext;

class PPTWriter {
public:
    /// What the writer of an element has for those of its children.
    struct Frame {
        const PPTNodeImpl* element = nullptr;
        const FormatsInForce* formats = nullptr; ///< at the element
        TableContext* table = nullptr;           ///< around the children, if there is one
        opc::MarkupBuffer* markup = nullptr;     ///< where they are written
        const TextLook* texts = nullptr;         ///< of what paragraphs among them come in the stead of
        const ParagraphLook* runs = nullptr;     ///< likewise, of texts among them
        unsigned int paragraphs = 0;             ///< how many of them have been paragraphs
    };

    /// Sets the frame for as long as children are written.
    class FrameScope {
    public:
        FrameScope(PPTWriter& writer, const Frame& frame)
            : writer_(writer),
              outer_(std::exchange(writer.frame_, frame)) {}
        FrameScope(const FrameScope&) = delete;
        FrameScope& operator=(const FrameScope&) = delete;
        ~FrameScope() { writer_.frame_ = outer_; }

    private:
        PPTWriter& writer_;
        const Frame outer_;
    };

    /// Makes a slide the current one, for as long as this lives.
    class Visit {
    public:
        Visit(PPTWriter& writer, const boost::shared_ptr<TemplateSlide>& slide, SlideDocument& document);
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;
        ~Visit();

    private:
        PPTWriter& writer_;
    };

    PPTWriter(boost::shared_ptr<PresentationModel> model, boost::shared_ptr<OPCPackage> package);
    PPTWriter(const PPTWriter&) = delete;
    PPTWriter& operator=(const PPTWriter&) = delete;
    ~PPTWriter();

    /// To be called before any of the slides is written.
    void prepare(const std::vector<boost::shared_ptr<PPTNode>>& slides);
    /// Writes a slide with all that it holds.
    void write(const PPTNode& node);
    /// Ends the writing: lists the slides in the presentation part, in the order in which they were written.
    /// Only now do the records of new slides learn the names of their parts: had the writing failed, it could
    /// have been done again.
    /// @throws opc::Exception
    void finish(const DocumentProperties& properties);
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

    /// @{ How values are shown in all of the deck. What is given has to live as long as the writer.
    void setDeckValues(const DeckValues& values);
    const DeckValues* getDeckValues() const { return deckValues_; }
    const NumberMarks& getNumberMarks() const { return marks_; }
    /// @}
    /// Those of the deck, which have to stay; null for none.
    void setPageFields(const PageFields& fields) { pageFields_ = &fields; }
    const PageFields* getPageFields() const { return pageFields_; }
    /// Whether a slide is one of those that are written.
    bool isPlanned(const TemplateSlide& slide) const { return planned_.count(&slide) > 0; }
    /// The name of a slide's part, also of one that is still to be made: links may lead ahead.
    const std::wstring& requirePartName(const TemplateSlide& slide);

    /// Has a table style among those that the deck defines, if it is one that programs have built in.
    void useTableStyle(const std::wstring& id) { tableStyleIds_.insert(id); }

    /// Reports about the shape being written. Paragraphs and texts needn't know the way up.
    void report(const MsgID& finding) const;
    /// Has all that is written checked. What is found is reported about whatever is being written.
    void setCheck(const boost::shared_ptr<check::MarkupCheck>& check);
    /// Null between slides, but the presentation while the writing is ended.
    void setReporter(const PPTNodeImpl* shape) { reporter_ = shape; }

    ChartParts& getChartParts();
    /// Writes charts and notes, once all slides are written: a copy of a slide begins with what the original had.
    void writeAttachments();
    /// What texts inherit.
    InheritedTexts& getInheritedTexts();
    FontBook& getFonts();
    SvgPictures& getSvgPictures();
    const boost::shared_ptr<PPTPartWriter>& getPartWriter() const { return partWriter_; }
    SlideCopies& getCopies() { return *copies_; }
    NotesParts& getNotes() { return *notes_; }
    const boost::shared_ptr<PresentationModel>& getModel() const { return model_; }
    /// The slide being written; null between slides.
    SlideDocument* getCurrentSlide() const { return currentSlide_; }
    /// Its layout; null without one, and between slides.
    const TemplateLayout* getCurrentLayout() const;
    /// Whether it comes from its layout alone.
    bool isOnNewSlide() const;
    /// The name of its part; empty between slides.
    std::wstring getCurrentSlidePartName();
    /// Its number in the deck, from 1.
    std::size_t getCurrentSlideNumber() const { return slides_.size(); }
    /// Whether a slide has had its turn.
    bool hasWritten(const TemplateSlide& slide) const { return written_.count(&slide) > 0; }

    /// Empty but within shapes.
    const Frame& getFrame() const { return frame_; }
    void countParagraph() { ++frame_.paragraphs; }
    /// That of the frame. What stands in no shape is written to no slide.
    opc::MarkupBuffer& getMarkup() { return frame_.markup ? *frame_.markup : nowhere_; }

private:
    void finishPackage();
    void writeProperties(const DocumentProperties& properties);

    boost::shared_ptr<PresentationModel> model_;
    const PPTNodeImpl* reporter_ = nullptr;
    const DeckValues* deckValues_ = nullptr; // null if nothing is set
    NumberMarks marks_;
    boost::shared_ptr<PPTPartWriter> partWriter_;
    boost::shared_ptr<ChartParts> chartParts_; // made for the first chart
    boost::shared_ptr<InheritedTexts> texts_;  // made when they are asked for, as the fonts are
    boost::shared_ptr<FontBook> fonts_;
    boost::shared_ptr<SvgPictures> svgPictures_;
    boost::shared_ptr<SlideCopies> copies_;
    boost::shared_ptr<NotesParts> notes_;
    std::vector<boost::shared_ptr<TemplateSlide>> slides_; // that have had their turn
    std::set<const TemplateSlide*> written_;
    std::set<const TemplateSlide*> planned_;
    std::map<const TemplateSlide*, std::wstring> newNames_; // of the parts of new slides
    const PageFields* pageFields_ = nullptr;
    std::set<std::wstring> tableStyleIds_; // that tables have
    SlideDocument* currentSlide_ = nullptr;
    Frame frame_;
    opc::MarkupBuffer nowhere_;
};

} // namespace vellox::ppt

#endif
