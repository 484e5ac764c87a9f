#include "vellox/ppt/writers/GroupSpace.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <vector>

namespace vellox::ppt {

using namespace xercesc;

GroupSpace::GroupSpace(const DOMElement& shape) {
    std::vector<const DOMElement*> groups; // from the inside
    for (const DOMNode* node = shape.getParentNode(); node; node = node->getParentNode())
        if (hasName(*node, xml::kGrpSp))
            groups.push_back(static_cast<const DOMElement*>(node));
    isSlide_ = groups.empty();
    for (auto group = groups.rbegin(); group != groups.rend(); ++group)
        if (const DOMElement* xfrm = findDescendant(*group, {xml::kGrpSpPr, xml::kAXfrm}))
            enter(*xfrm);
}

void GroupSpace::enter(const DOMElement& xfrm) {
    const DOMElement* off = findChild(&xfrm, xml::kAOff);
    const DOMElement* ext = findChild(&xfrm, xml::kAExt);
    const DOMElement* innerOff = findChild(&xfrm, u"a:chOff");
    const DOMElement* innerExt = findChild(&xfrm, u"a:chExt");
    const auto step = [&](Axis& axis, const XMLCh* place, const XMLCh* size) {
        const auto read = [](const DOMElement* element, const XMLCh* name) {
            return str2double(getAttribute(element, name));
        };
        const double outer = read(ext, size), inner = read(innerExt, size);
        const double scale = outer > 0 && inner > 0 ? inner / outer : 1;
        axis.shift = (axis.shift - read(off, place)) * scale + read(innerOff, place);
        axis.scale *= scale;
    };
    if (!off || !ext || !innerOff || !innerExt)
        return;
    step(across_, xml::kX, xml::kCx);
    step(down_, xml::kY, xml::kCy);
}

} // namespace vellox::ppt
