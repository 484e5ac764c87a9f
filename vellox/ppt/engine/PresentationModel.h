/// @file
/// What is known of a template after reading it.

#ifndef VELLOX_PPT_ENGINE_PRESENTATIONMODEL_H
#define VELLOX_PPT_ENGINE_PRESENTATIONMODEL_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace opc {
class Part;
}

namespace vellox::ppt {

class PartDOMBuilder;
class PPTPartWriter;

/// The presentation part as a live document, the masters with themes and layouts, the slides that the
/// template holds, and the table styles. Each part is read once.
class PresentationModel {
public:
    using Masters = std::vector<boost::shared_ptr<TemplateMaster>>;
    using Slides = std::vector<boost::shared_ptr<TemplateSlide>>;
    using Names = std::vector<std::wstring>;
    using NamePairs = std::vector<std::pair<std::wstring, std::wstring>>;

    explicit PresentationModel(boost::shared_ptr<PartDOMBuilder> builder);
    PresentationModel(const PresentationModel&) = delete;
    PresentationModel& operator=(const PresentationModel&) = delete;
    ~PresentationModel();

    /// Reads the whole template.
    /// @return false if the package's main part isn't a presentation, a template or a slide show
    /// @throws partDOMBuildError, opc::Exception
    bool load();

    const boost::shared_ptr<Slides>& getSlides() const { return slides_; }
    /// @{ Exact names; empty if there is no such layout. Without a master, the masters are searched in the
    /// order of their part names.
    boost::shared_ptr<TemplateLayout> findLayout(const std::wstring& layoutName,
                                                 const std::wstring& masterName) const;
    boost::shared_ptr<TemplateLayout> findLayout(const std::wstring& layoutName) const;
    /// @}
    /// One name for each master, with repeats.
    const Names& getMasterNames() const { return masterNames_; }
    /// Empty for an unknown master.
    const Names& getLayoutNames(const std::wstring& masterName) const;
    /// Fills the list with (name, id) of each table style.
    void getTableStyleNames(NamePairs& list) const;
    /// The id of the first table style of that name.
    /// @return null if there is none
    const std::wstring* findTableStyleId(const std::wstring& styleName) const;

    /// Makes p:sldIdLst of the presentation part list these slides and no others, in this order, and writes
    /// the part.
    /// @throws opc::Exception
    void updateSlideList(PPTPartWriter& partWriter, const Slides& slides);
    const std::wstring& getPresentationPartName() const { return presentationPartName_; }

    /// The class of node that a shape element becomes; None for a null element and for what is no shape of
    /// interest.
    static NodeType classify(const xercesc::DOMElement* element);

private:
    void loadMasters(const opc::Part& presentation);
    void loadMaster(const opc::Part& presentation, const boost::shared_ptr<TemplateMaster>& master);
    void loadTheme(const opc::Part& masterPart, TemplateMaster& master);
    void loadLayouts(const opc::Part& masterPart, TemplateMaster& master);
    void loadSlides(const opc::Part& presentation);
    void loadSlide(const opc::Part& presentation, TemplateSlide& slide);
    void loadTableStyles(const std::wstring& partName);
    OwnedDocument readMarked(const opc::Part& part);
    boost::shared_ptr<TemplateMaster> findMaster(const std::wstring& target) const;
    boost::shared_ptr<TemplateLayout> getLayout(const opc::Part& part);
    void readLayoutShapes(TemplateLayout& layout);
    void parseShape(xercesc::DOMElement* element, TemplateShapes& shapes, const TemplateLayout* layout);
    xercesc::DOMElement* prepareSlideList();

    boost::shared_ptr<PartDOMBuilder> builder_;
    std::wstring presentationPartName_;
    boost::shared_ptr<Masters> masters_;
    boost::shared_ptr<Slides> slides_;
    std::map<std::wstring, boost::shared_ptr<TemplateMaster>> mastersByPartName_;
    std::map<std::wstring, boost::shared_ptr<TemplateLayout>> layoutsByPartName_;
    std::map<std::wstring, boost::shared_ptr<TemplateMaster>> mastersByName_;
    OwnedDocument presentationDocument_;
    Names masterNames_;
    std::vector<boost::shared_ptr<TemplateTableStyle>> tableStyles_;
};

} // namespace vellox::ppt

#endif
