#include "vellox/ppt/formats/FormatProperties.h"

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt::style {

boost::shared_ptr<Format> find(const Element& element, FormatType type) {
    const boost::shared_ptr<Format> format = implOf<ElementImpl>(element)->getStyle().getFormat(type);
    return format ? format->makeInterface() : format;
}

void append(Element& element, const boost::shared_ptr<Format>& format) {
    implOf<ElementImpl>(element)->style().appendFormat(format);
}

void unset(Element& element, FormatType type) {
    implOf<ElementImpl>(element)->style().unsetFormat(type);
}

} // namespace vellox::ppt::style
