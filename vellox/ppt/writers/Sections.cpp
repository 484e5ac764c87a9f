#include "vellox/ppt/writers/Sections.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <map>

namespace vellox::ppt {

using namespace xercesc;

namespace {

using Entries = std::vector<DOMElement*>;

// The entry of each slide that has one, by its place in the deck. Entries of slides that are gone, and all but
// the first of a slide, are taken out.
Entries matchEntries(DOMDocument& presentation, const std::vector<std::wstring>& formerIds) {
    std::map<std::wstring, std::size_t> places;
    for (std::size_t i = 0; i < formerIds.size(); ++i)
        if (!formerIds[i].empty())
            places.emplace(formerIds[i], i);
    Entries entries(formerIds.size());
    for (DOMElement* entry : getElementsByName(&presentation, xml::kP14SldId)) {
        const auto place = places.find(getAttribute(entry, xml::kId));
        if (place == places.end() || entries[place->second])
            removeNode(entry);
        else
            entries[place->second] = entry;
    }
    return entries;
}

DOMElement* requireFirstList(DOMElement& section) {
    DOMElement* list = findChild(&section, xml::kP14SldIdLst);
    if (!list) {
        list = section.getOwnerDocument()->createElement(xml::kP14SldIdLst);
        section.insertBefore(list, section.getFirstChild());
    }
    return list;
}

} // namespace

void updateSections(DOMDocument& presentation, const std::vector<std::wstring>& formerIds,
                    unsigned int firstId) {
    const std::vector<DOMElement*> sections = getElementsByName(&presentation, xml::kP14Section);
    if (sections.empty())
        return;
    Entries entries = matchEntries(presentation, formerIds);
    const auto first = std::find_if(entries.begin(), entries.end(),
                                    [](const DOMElement* entry) { return entry != nullptr; });
    // Where the next entry goes: behind the last one, or ahead of the first.
    DOMNode* next = first == entries.end() ? nullptr : *first;
    DOMNode* list = next ? next->getParentNode() : nullptr;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!entries[i] && !formerIds[i].empty())
            continue; // in no section before, and in none now
        if (!entries[i]) {
            if (!list)
                list = requireFirstList(*sections.front());
            entries[i] = presentation.createElement(xml::kP14SldId);
            list->insertBefore(entries[i], next);
        }
        list = entries[i]->getParentNode();
        next = entries[i]->getNextSibling();
        setAttribute(entries[i], xml::kId, num2str(firstId + static_cast<unsigned int>(i)));
    }
}

} // namespace vellox::ppt
