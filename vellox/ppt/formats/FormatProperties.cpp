#include "vellox/ppt/formats/FormatProperties.h"

#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt::element_style {

boost::shared_ptr<Format> find(const Element& element, FormatType type) {
    const boost::shared_ptr<Format> format = implOf<ElementImpl>(element)->getStyle().getFormat(type);
    return format ? format->makeInterface() : format;
}

void append(Element& element, const boost::shared_ptr<Format>& format) {
    implOf<ElementImpl>(element)->style().appendFormat(format);
}

void append(Element& element, const Format& format) {
    append(element, format.makeInterface());
}

void unset(Element& element, FormatType type) {
    implOf<ElementImpl>(element)->style().unsetFormat(type);
}

} // namespace vellox::ppt::element_style

// Programs built against release 1.0.0 call these by this name, which their headers had compiled in.
namespace vellox::ppt::style {

VELLOX_API boost::shared_ptr<Format> find(const Element& element, FormatType type);
VELLOX_API void append(Element& element, const boost::shared_ptr<Format>& format);
VELLOX_API void unset(Element& element, FormatType type);

boost::shared_ptr<Format> find(const Element& element, FormatType type) {
    return element_style::find(element, type);
}

void append(Element& element, const boost::shared_ptr<Format>& format) {
    element_style::append(element, format);
}

void unset(Element& element, FormatType type) {
    element_style::unset(element, type);
}

} // namespace vellox::ppt::style
