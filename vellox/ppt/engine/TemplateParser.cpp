#include "vellox/ppt/engine/TemplateParser.h"

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/template/TemplateReader.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

TemplateParser::TemplateParser(PartDOMBuilder& builder, boost::shared_ptr<const Rules> rules)
    : builder_(builder),
      rules_(std::move(rules)) {}

boost::shared_ptr<PresentationModel> TemplateParser::parse() {
    TemplateReader reader(builder_, *rules_);
    if (reader.load() != Refusal::None)
        return {};
    return boost::make_shared<PresentationModel>(reader.getTemplate(), rules_);
}

bool TemplateParser::hasMaster(const TemplateSlide& slide) {
    return slide.layout && !slide.layout->master.expired();
}

PPTNodeImpl::Child TemplateParser::makeSlide(const boost::shared_ptr<TemplateSlide>& slide) {
    return (new SlideImpl(slide))->makeInterface();
}

void TemplateParser::buildChildren(PPTNodeImpl& parent, const TemplateShapes& shapes) {
    for (const boost::shared_ptr<TemplateShape>& record : shapes) {
        const NodeKind& kind = getNodeKind(record->type);
        if (!kind.make)
            continue;
        const std::wstring name = record->shapeName.isSet() ? record->shapeName.get() : std::wstring();
        const PPTNodeImpl::Child node = kind.make(record, name);
        if (record->children)
            buildChildren(*implOf<PPTNodeImpl>(*node), *record->children);
        parent.appendChild(node);
    }
}

} // namespace vellox::ppt
