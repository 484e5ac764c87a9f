/// @file
/// From a package to the records of a template.

#ifndef VELLOX_PPT_TEMPLATE_TEMPLATEREADER_H
#define VELLOX_PPT_TEMPLATE_TEMPLATEREADER_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace opc {
class Part;
}

namespace vellox::ppt {

class PartDOMBuilder;

/// Reads a template once: each part once, masters ahead of slides. What the rules have to say of a shape is asked
/// here, and stands in its record from then on.
class TemplateReader {
public:
    TemplateReader(PartDOMBuilder& builder, const Rules& rules);

    /// @return Refusal::None if there is a template now
    /// @throws partDOMBuildError, opc::Exception
    Refusal load();
    /// What is to be told of the refusal, from what was read so far.
    const PackageFacts& getFacts() const { return facts_; }
    /// Empty before that.
    const boost::shared_ptr<const ReadTemplate>& getTemplate() const { return result_; }

private:
    void loadExtras(const opc::Part& presentation);
    void loadMasters(const opc::Part& presentation);
    void loadMaster(const opc::Part& presentation, const boost::shared_ptr<TemplateMaster>& master);
    void loadTheme(const opc::Part& masterPart, TemplateMaster& master);
    void loadLayouts(const opc::Part& masterPart, xercesc::DOMDocument* document, TemplateMaster& master);
    void nameMasters();
    void loadSlides(const opc::Part& presentation);
    boost::shared_ptr<const TemplateSlide> loadSlide(const opc::Part& presentation, TemplateSlide slide);
    void loadTableStyles(const std::wstring& partName);
    OwnedDocument readDocument(const opc::Part& part);
    OwnedDocument readMarked(const opc::Part& part);
    boost::shared_ptr<TemplateMaster> findMaster(const std::wstring& target) const;
    boost::shared_ptr<TemplateLayout> getLayout(const opc::Part& part);
    void readLayoutShapes(const boost::shared_ptr<TemplateLayout>& layout);
    void parseShape(xercesc::DOMElement& element, TemplateShapes& shapes, const TemplateLayout* layout,
                    bool isInGroup = false);
    boost::shared_ptr<TemplateShape> makeRecord(xercesc::DOMElement& element, const ShapeFacts& facts);
    void choosePlaces(TemplateShape& shape, const ShapeFacts& facts, const Place& own, const Place& ofLayout,
                      const TemplateMaster* master) const;
    static void chooseSizes(TemplateShape& shape, const ShapeFacts& facts, const xercesc::DOMElement& element,
                            const TemplateMaster* master);
    void nameShapes();
    void settleFields();

    /// A date, a footer or a number of a layout, whose fate hangs on slides that are still to be read.
    struct OpenField {
        boost::shared_ptr<TemplateLayout> layout;
        std::size_t place; ///< in the layout's fates
        ShapeFacts facts;
    };

    PartDOMBuilder& builder_;
    const Rules& rules_;
    PackageFacts facts_;
    boost::shared_ptr<ReadTemplate> template_;
    boost::shared_ptr<const ReadTemplate> result_;
    TemplateShapes page_; ///< all records of the layout or slide that is being read
    DeckFacts deck_;
    std::vector<OpenField> openFields_;
};

} // namespace vellox::ppt

#endif
