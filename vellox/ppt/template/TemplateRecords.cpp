#include "vellox/ppt/template/TemplateRecords.h"

#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

ElementMap mapElementsByUid(xercesc::DOMDocument* document) {
    ElementMap elements;
    for (xercesc::DOMElement* element : getAllElements(document)) {
        const std::wstring uid = getAttribute(element, xml::kDataUid);
        if (!uid.empty())
            elements.emplace(uid, element);
    }
    return elements;
}

} // namespace vellox::ppt
