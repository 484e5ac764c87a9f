/// @file
/// The state behind Presentation. Internal: users hold facades.

#ifndef VELLOX_PPT_ENGINE_PRESENTATIONIMPL_H
#define VELLOX_PPT_ENGINE_PRESENTATIONIMPL_H

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/opc/Compression.h"
#include "vellox/ppt/engine/Presentation.h"
#include "vellox/ppt/engine/Profiles.h"
#include "vellox/ppt/messages/FindingList.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/writers/DocumentProperties.h"
#include "vellox/ppt/writers/ValueTexts.h"

namespace vellox::ppt {

class OutputFile;
class OutputReader;
class PartDOMBuilder;
class PresentationModel;
class TemplateImpl;
struct TemplateSlide;

/// The life of a presentation:
///
///     Created --open--> Parsing --> Parsed --> Open --close--> Closed
///        ^                 |
///        +- TemplateInvalid+            (open may be tried again)
///
/// A failure while parsing that isn't the parser's own rejection leaves Parsing, and one while the output is
/// copied leaves Parsed; such a presentation can't be opened again.
enum class PresentationState : int {
    Created = 0,         ///< nothing has been read
    Parsing = 1,         ///< the template is being read
    TemplateInvalid = 2, ///< the parser has rejected the template
    Parsed = 3,          ///< the model stands, the output doesn't yet
    Open = 4,            ///< slides can be added; with some rules the output is a copy of the template
    Closed = 5           ///< the package has been written
};

/// The two paths of a presentation, as last set.
struct Report {
    virtual ~Report() = default;

    bool reportFlag = true; // travels with copies; nothing acts on it
    std::wstring templatePath;
    std::wstring outputPath;
};

class PresentationImpl : public NodeOf<NodeType::Presentation, PresentationImpl, Presentation, PPTNodeImpl>,
                         public WithPageFields {
public:
    PresentationImpl();
    explicit PresentationImpl(const std::wstring& outputPath);
    PresentationImpl(const std::wstring& outputPath, const std::wstring& templatePath);
    PresentationImpl(const std::wstring& outputPath, boost::intrusive_ptr<TemplateImpl> source);
    /// Copies state, paths and slides, and nothing of the template.
    PresentationImpl(const PresentationImpl& other);
    ~PresentationImpl() override;

    /// Serves the slides of the template, and a caller who appends a node: opens first, and does nothing
    /// once the presentation is closed.
    void appendChild(const Child& child) override;
    void hear(const MsgID& finding, const ReportPlace& place) const override;
    bool listens() const override { return isStrict_ || findings_.isOpen(); }

    virtual bool open();
    virtual bool close();

    /// Makes a slide of a layout; a null master name leaves the master open.
    boost::shared_ptr<Slide> makeSlide(const std::wstring& layoutName, const std::wstring* masterName);
    /// @{ Puts a slide into the list, whatever the state, without a message.
    void insertSlide(const Child& slide);
    void insertSlideAt(const Child& slide, unsigned int index);
    void insertSlideBefore(const Child& slide, const Slide& reference);
    /// @}

    /// @{ @throws slideNotInPresentation for a slide that isn't in the list
    /// A slide like another, which stands nowhere yet.
    boost::shared_ptr<Slide> copySlide(const Slide& slide);
    void moveSlide(const Slide& slide, unsigned int index);
    void removeSlide(const Slide& slide);
    /// @}
    /// Removes those that the template brought along.
    void clearSlides();
    /// Reads what the template has of the notes of a slide, once.
    /// @throws cannotOpenFile, partDOMBuildError
    void requireNotes(TemplateSlide& record);

    const Report& getReport() const { return *report_; }
    void setOutputPath(const std::wstring& path);
    void setTemplatePath(const std::wstring& path);
    opc::Compression getCompression() const { return compression_; }
    void setCompression(opc::Compression compression) { compression_ = compression; }
    const DocumentProperties& getProperties() const { return properties_; }
    DocumentProperties& getProperties() { return properties_; }
    DeckValues& getValues() { return values_; }
    const DeckValues& getValues() const { return values_; }
    const std::wstring& getProfile() const { return profile_.name; }
    void setProfile(const std::wstring& name);
    const Presentation::Names& getMasterNames();
    const Presentation::Names& getLayoutNames(const std::wstring& masterName);
    const Presentation::NamePairs& getTableStyleNames();

    /// In EMU; 0 as long as nothing of the template is known.
    double getSlideHeight() const;

    std::vector<Finding> getFindings(std::size_t first = 0) const {
        return findings_.get(getChildren(), first);
    }
    bool isStrict() const { return isStrict_; }
    void setStrict(bool strict) { isStrict_ = strict; }

    PresentationState getState() const { return state_; }

private:
    void useDefaultTemplate();
    const class SlideImpl& requireOwn(const Slide& slide) const;
    void reportIfClosed(const Child& slide) const;
    template <class Warning> void setPath(std::wstring Report::*field, const std::wstring& path);
    template <class Warning> void warnThatItStays();
    bool isOpenOrClosed() const;
    void sendFinding(const MsgID& finding, const ReportPlace& place) const;
    void refuseWhatIsLeft() const;
    [[noreturn]] void refuseLayout(const std::wstring& layoutName, const std::wstring* masterName) const;
    void tellOfReading();
    void parseTemplate(const std::wstring& templateFile);
    void readTemplate(const std::wstring& templateFile);
    void holdTemplate(const std::wstring& templateFile);
    void takeTemplate();
    void takeModel(const boost::shared_ptr<PresentationModel>& model);
    void takeSlide(const boost::shared_ptr<TemplateSlide>& slide);
    [[noreturn]] void rejectTemplate();
    void makeWorkingCopy(const std::wstring& templateFile);
    void placeOutput(const std::wstring& outputFile);
    void removeWorkingCopy();
    void openOutput(class OPCPackage& package);
    void writeSlides(const boost::shared_ptr<class OPCPackage>& package);

    boost::intrusive_ptr<TemplateImpl> template_; // what is held in memory; else the template is a path
    Profile profile_;
    PresentationState state_ = PresentationState::Created;
    opc::Compression compression_ = opc::Compression::Normal;
    DocumentProperties properties_;
    DeckValues values_;
    bool isStrict_ = false;
    bool isBusy_ = false; // opening or closing: a listener that asks for either gets false
    boost::shared_ptr<Report> report_;
    std::wstring tempTemplatePath_;            // empty when there is no working copy
    boost::shared_ptr<OutputFile> outputFile_; // empty in a copy, which writes nothing
    boost::shared_ptr<OutputReader> reader_;   // empty until something is read of the open presentation
    boost::shared_ptr<PartDOMBuilder> partBuilder_;
    boost::shared_ptr<PresentationModel> model_; // empty before parsing
    Presentation::NamePairs tableStyleNames_;
    mutable FindingList findings_; // to hear of something changes no presentation
};

} // namespace vellox::ppt

#endif
