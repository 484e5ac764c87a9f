/// @file
/// From an open template package to records and slide nodes.

#ifndef VELLOX_PPT_ENGINE_TEMPLATEPARSER_H
#define VELLOX_PPT_ENGINE_TEMPLATEPARSER_H

#include <boost/shared_ptr.hpp>

#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class OPCPackage;
class PartDOMBuilder;
class PresentationImpl;
class PresentationModel;

/// Lives only while a template is read; the model and the nodes remain.
class TemplateParser {
public:
    /// @param builder reads the template file
    /// @param package the working copy of the template
    TemplateParser(boost::shared_ptr<PartDOMBuilder> builder, boost::shared_ptr<OPCPackage> package,
                   PresentationImpl& presentation);

    /// Reads the model and gives the presentation a node for each slide that the template holds, with nodes
    /// for its shapes. What these shapes hold isn't read: it stays in the slides' documents.
    /// @throws invalidTemplate if the package is no presentation, or a slide of it has no layout, or a layout
    ///         without a master
    boost::shared_ptr<PresentationModel> parse();

    /// The record of a new slide of a layout, which shares the layout's shapes.
    static boost::shared_ptr<TemplateSlide> createSlide(const boost::shared_ptr<TemplateLayout>& layout);
    /// Gives a slide or a group a child node for each record.
    static void buildChildren(PPTNodeImpl& parent, const TemplateShapes& shapes);

private:
    [[noreturn]] void reject();
    void appendSlide(const boost::shared_ptr<TemplateSlide>& slide);

    boost::shared_ptr<PartDOMBuilder> builder_;
    boost::shared_ptr<OPCPackage> package_;
    PresentationImpl& presentation_;
};

} // namespace vellox::ppt

#endif
