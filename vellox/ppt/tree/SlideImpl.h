/// @file
/// The state behind Slide. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_SLIDEIMPL_H
#define VELLOX_PPT_TREE_SLIDEIMPL_H

#include <map>

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/template/ChartRecords.h"
#include "vellox/ppt/tree/Slide.h"

namespace vellox::ppt {

class Rules;

class SlideImpl : public NodeOf<NodeType::Slide, SlideImpl, Slide, ElementImpl>, public WithPageFields {
public:
    SlideImpl();
    /// A slide of a layout or of the template, still without its shapes.
    explicit SlideImpl(const boost::shared_ptr<TemplateSlide>& templateSlide);
    SlideImpl(const SlideImpl& other);
    /// The copy of a slide on a record of its own, still without shapes.
    SlideImpl(const SlideImpl& other, const boost::shared_ptr<TemplateSlide>& templateSlide);
    ~SlideImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    const std::wstring& getLayoutName() const;
    const std::wstring& getSlideMasterName() const { return slideMasterName_; }
    const boost::shared_ptr<TemplateSlide>& getTemplateSlide() const { return templateSlide_; }
    /// Those of the presentation that the slide is for; null before it is for any.
    const Rules* getRules() const { return rules_.get(); }
    void setRules(const boost::shared_ptr<const Rules>& rules) { rules_ = rules; }
    bool isHidden() const { return isHidden_; }
    void setHidden(bool isHidden) { isHidden_ = isHidden; }
    /// Takes a shape off the slide. One of the template's is off in the file, too.
    void dropShape(const PPTNode& shape);
    /// The marks of those.
    const std::vector<std::wstring>& getDropped() const { return dropped_.get(); }
    /// A slide with the same shapes under the same names, on a record.
    Child copyOn(const boost::shared_ptr<TemplateSlide>& record) const;

    /// A chart of the template on this slide.
    /// @throws noSuchChart
    ChartRecord& requireChart(const std::wstring& name);
    /// Those that have been asked for.
    const std::map<std::wstring, ChartRecord>& getCharts() const { return charts_.get(); }

private:
    Lazy<std::map<std::wstring, ChartRecord>> charts_;
    bool isHidden_ = false;
    boost::shared_ptr<const Rules> rules_; // the slide may outlive its presentation
    Lazy<std::vector<std::wstring>> dropped_;
    std::wstring slideMasterName_;                   // the master may be gone by the time it is asked for
    boost::shared_ptr<TemplateSlide> templateSlide_; // null on a bare slide
};

} // namespace vellox::ppt

#endif
