#include "vellox/ppt/object/Element.h"

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt {

const char* ElementImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Element";
}

Element::Element(PPTObjectImpl* impl) : PPTNode(impl) {}

ElementImpl* Element::pimpl() {
    return implOf<ElementImpl>(*this);
}

const ElementImpl* Element::pimpl() const {
    return implOf<ElementImpl>(*this);
}

const Formats& Element::getStyle() const {
    return pimpl()->getStyle();
}

void Element::setStyle(const Formats& style) {
    pimpl()->setStyle(style);
}

} // namespace vellox::ppt
