/// @file
/// From an open template package to the model and slide nodes.

#ifndef VELLOX_PPT_ENGINE_TEMPLATEPARSER_H
#define VELLOX_PPT_ENGINE_TEMPLATEPARSER_H

#include <boost/shared_ptr.hpp>

#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class PartDOMBuilder;
class PresentationModel;
class Rules;

/// Lives only while a template is read; the model and the nodes remain. What shapes of the template hold isn't
/// read: it stays in the slides' documents.
class TemplateParser {
public:
    TemplateParser(PartDOMBuilder& builder, boost::shared_ptr<const Rules> rules);

    /// Reads the template.
    /// @return empty if the package is none
    /// @throws partDOMBuildError, opc::Exception
    boost::shared_ptr<PresentationModel> parse();

    /// Whether a slide of the template has a layout, and that a master. A template with others is no good.
    static bool hasMaster(const TemplateSlide& slide);
    /// A node for a slide, without its shapes.
    static PPTNodeImpl::Child makeSlide(const boost::shared_ptr<TemplateSlide>& slide);
    /// Gives a slide or a group a child node for each record.
    static void buildChildren(PPTNodeImpl& parent, const TemplateShapes& shapes);

private:
    PartDOMBuilder& builder_;
    boost::shared_ptr<const Rules> rules_;
};

} // namespace vellox::ppt

#endif
