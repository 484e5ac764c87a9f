/// @file
/// Children of an element in the order that a list of names gives.

#ifndef VELLOX_PPT_XML_CHILDORDER_H
#define VELLOX_PPT_XML_CHILDORDER_H

#include <algorithm>
#include <numeric>
#include <string_view>
#include <vector>

#include <xercesc/dom/DOMElement.hpp>

namespace vellox::ppt {

/// Stands in a list for all names that aren't in it.
inline constexpr std::u16string_view kAnyOther = u"*";

/// The places of names in a list. A name that isn't in it has the place of kAnyOther, or else that of the name
/// ahead of it.
template <class NameAt>
std::vector<std::size_t> rankNames(const std::vector<std::u16string_view>& list, std::size_t count,
                                   NameAt nameAt) {
    const auto other = std::find(list.begin(), list.end(), kAnyOther);
    std::vector<std::size_t> ranks;
    for (std::size_t i = 0; i < count; ++i) {
        const auto place = std::find(list.begin(), list.end(), nameAt(i));
        if (place == list.end() && other == list.end())
            ranks.push_back(ranks.empty() ? 0 : ranks.back());
        else
            ranks.push_back(static_cast<std::size_t>((place == list.end() ? other : place) - list.begin()));
    }
    return ranks;
}

/// The indices of ranks in their order, equal ones as they come.
inline std::vector<std::size_t> orderByRank(const std::vector<std::size_t>& ranks) {
    std::vector<std::size_t> order(ranks.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t left, std::size_t right) { return ranks[left] < ranks[right]; });
    return order;
}

/// Sorts the child elements of an element.
void sortChildren(xercesc::DOMElement* parent, const std::vector<std::u16string_view>& names);

} // namespace vellox::ppt

#endif
