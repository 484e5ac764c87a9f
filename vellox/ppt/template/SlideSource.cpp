#include "vellox/ppt/template/SlideSource.h"

#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

const xercesc::DOMElement* SlideSource::find(const std::wstring& uid) const {
    if (elements_.empty())
        for (const xercesc::DOMElement* element : getAllElements(document_.get()))
            if (element->hasAttribute(xml::kDataUid))
                elements_.emplace(getAttribute(element, xml::kDataUid), element);
    const auto found = elements_.find(uid);
    return found == elements_.end() ? nullptr : found->second;
}

} // namespace vellox::ppt
