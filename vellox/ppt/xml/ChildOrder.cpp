#include "vellox/ppt/xml/ChildOrder.h"

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

using namespace xercesc;

void sortChildren(DOMElement* parent, const std::vector<std::u16string_view>& names) {
    const std::vector<DOMElement*> children = getChildElements(parent);
    const std::vector<std::size_t> ranks = rankNames(names, children.size(), [&](std::size_t i) {
        return std::u16string_view(children[i]->getNodeName());
    });
    if (std::is_sorted(ranks.begin(), ranks.end()))
        return;
    for (DOMElement* child : children)
        parent->removeChild(child);
    for (const std::size_t i : orderByRank(ranks))
        parent->appendChild(children[i]);
}

} // namespace vellox::ppt
