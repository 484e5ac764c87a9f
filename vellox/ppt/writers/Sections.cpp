#include "vellox/ppt/writers/Sections.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <iterator>
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

// Whether slides of the template stand in another order than there.
bool haveMoved(DOMDocument& presentation, const std::vector<std::wstring>& formerIds) {
    std::map<std::wstring, std::size_t> places;
    for (const DOMElement* slide : getElementsByName(&presentation, xml::kSldId))
        places.emplace(getAttribute(slide, xml::kId), places.size());
    std::size_t last = 0;
    for (const std::wstring& id : formerIds) {
        const auto place = places.find(id);
        if (place == places.end())
            continue;
        if (place->second < last)
            return true;
        last = place->second;
    }
    return false;
}

// The most numbers that are in ascending order as they stand; of several choices that which ends first.
std::vector<bool> findAscending(const std::vector<std::size_t>& numbers) {
    constexpr std::size_t kNone = ~std::size_t(0);
    std::vector<std::size_t> ends, before(numbers.size(), kNone); // by the length of what ends there: indices
    std::size_t end = kNone;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto place =
            std::upper_bound(ends.begin(), ends.end(), numbers[i],
                             [&](std::size_t number, std::size_t other) { return number < numbers[other]; });
        before[i] = place == ends.begin() ? kNone : *std::prev(place);
        if (place != ends.end()) {
            *place = i;
        } else {
            ends.push_back(i);
            end = i;
        }
    }
    std::vector<bool> isAscending(numbers.size());
    for (std::size_t i = end; i != kNone; i = before[i])
        isAscending[i] = true;
    return isAscending;
}

// Sections follow one another in the deck: a slide that has left its own joins that of the slide before it, or, ahead
// of all others, of the first that is where it was.
void regroup(DOMDocument& presentation, const Entries& all) {
    std::map<const DOMNode*, std::size_t> lists;
    for (const DOMElement* list : getElementsByName(&presentation, xml::kP14SldIdLst))
        lists.emplace(list, lists.size());
    Entries entries;
    std::copy_if(all.begin(), all.end(), std::back_inserter(entries),
                 [](DOMElement* entry) { return entry; });
    std::vector<std::size_t> numbers;
    std::transform(entries.begin(), entries.end(), std::back_inserter(numbers),
                   [&](const DOMElement* entry) { return lists[entry->getParentNode()]; });
    const std::vector<bool> stays = findAscending(numbers);
    const auto first = std::find(stays.begin(), stays.end(), true);
    if (first == stays.end())
        return;
    DOMNode* list = entries[static_cast<std::size_t>(first - stays.begin())]->getParentNode();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        list = stays[i] ? entries[i]->getParentNode() : list;
        list->appendChild(entries[i]);
    }
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
    if (haveMoved(presentation, formerIds))
        regroup(presentation, entries);
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
