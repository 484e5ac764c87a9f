/// @file
/// What is known of a template after reading it.

#ifndef VELLOX_PPT_ENGINE_PRESENTATIONMODEL_H
#define VELLOX_PPT_ENGINE_PRESENTATIONMODEL_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <utility>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class Rules;

/// The catalogue of a template, by the names that callers use, and the slides that it brings into the deck.
class PresentationModel {
public:
    using Slides = std::vector<boost::shared_ptr<TemplateSlide>>;
    using Names = std::vector<std::wstring>;
    using NamePairs = std::vector<std::pair<std::wstring, std::wstring>>;

    /// @param rules those by which the template was read
    PresentationModel(boost::shared_ptr<const ReadTemplate> source, boost::shared_ptr<const Rules> rules);
    PresentationModel(const PresentationModel&) = delete;
    PresentationModel& operator=(const PresentationModel&) = delete;
    ~PresentationModel();

    const ReadTemplate& getTemplate() const { return *template_; }
    const Rules& getRules() const { return *rules_; }
    /// The deck's own records of the template's slides.
    const Slides& getSlides() const { return slides_; }
    /// The record of a new slide of a layout, which shares the layout's shapes; empty without a layout.
    boost::shared_ptr<TemplateSlide> createSlide(const boost::shared_ptr<TemplateLayout>& layout) const;
    /// @{ Exact names; empty if there is no such layout. Without a master, the masters are searched in the
    /// order that the rules give.
    boost::shared_ptr<TemplateLayout> findLayout(const std::wstring& layoutName,
                                                 const std::wstring& masterName) const;
    boost::shared_ptr<TemplateLayout> findLayout(const std::wstring& layoutName) const;
    /// @}
    /// One name for each master, with repeats.
    const Names& getMasterNames() const { return template_->masterNames; }
    /// Empty for an unknown master.
    const Names& getLayoutNames(const std::wstring& masterName) const;
    /// Those of all masters, master after master.
    Names getAllLayoutNames() const;
    /// Fills the list with (name, id) of each table style.
    void getTableStyleNames(NamePairs& list) const;
    /// All names that a table's style may have.
    Names listTableStyleNames() const;
    /// The id of the first table style of that name.
    /// @return null if there is none
    const std::wstring* findTableStyleId(const std::wstring& styleName) const;

private:
    boost::shared_ptr<const ReadTemplate> template_;
    boost::shared_ptr<const Rules> rules_;
    Slides slides_;
};

} // namespace vellox::ppt

#endif
