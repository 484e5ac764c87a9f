#include "vellox/foundation/NameHint.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/MessageCatalog.h"
#include "vellox/host/services/Utf8.h"

#include <algorithm>
#include <cwctype>
#include <limits>
#include <locale>
#include <set>

namespace vellox {

IHintedError::~IHintedError() = default;

namespace {

constexpr std::size_t kMostNames = 3;
// What is longer is compared by its beginning: the cost of a comparison has a limit.
constexpr std::size_t kMostCharacters = 64;

std::wstring fold(const std::wstring& name) {
    std::wstring folded;
    for (const wchar_t c : name)
        if (folded.size() < kMostCharacters)
            folded += static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    return folded;
}

// How many characters are to be put in, left out, changed, or exchanged with their neighbour, none of them twice.
std::size_t countSlips(const std::wstring& from, const std::wstring& to) {
    std::vector<std::size_t> beforeLast(to.size() + 1), last(to.size() + 1), row(to.size() + 1);
    for (std::size_t j = 0; j <= to.size(); ++j)
        last[j] = j;
    for (std::size_t i = 1; i <= from.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t changed = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, changed});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last[to.size()];
}

constexpr std::size_t kFar = std::numeric_limits<std::size_t>::max();

// A third of the name may be amiss. Where one holds the other, the rest counts as little.
std::size_t measure(const std::wstring& wanted, const std::wstring& present) {
    const std::size_t shorter = std::min(wanted.size(), present.size());
    const std::size_t longer = std::max(wanted.size(), present.size());
    const std::size_t most = std::max<std::size_t>(1, (longer + 1) / 3);
    constexpr std::size_t kLeastHeld = 3;
    const bool isHeld =
        shorter >= kLeastHeld &&
        (wanted.size() < present.size() ? present.find(wanted) : wanted.find(present)) != std::wstring::npos;
    if (isHeld)
        return std::min(most, longer - shorter);
    if (longer - shorter > most)
        return kFar;
    const std::size_t slips = countSlips(wanted, present);
    return slips <= most ? slips : kFar;
}

std::wstring listNames(const std::vector<std::wstring>& names) {
    std::wstring list;
    for (const std::wstring& name : names)
        list += (list.empty() ? L"\"" : L", \"") + name + L"\"";
    return list;
}

std::wstring tellWhatThereIs(const std::vector<std::wstring>& names) {
    if (names.empty())
        return {};
    if (names.size() <= kMostNames)
        return MessageCatalog::get_message(ppt_hint::allNames(listNames(names)), std::locale());
    const std::vector<std::wstring> first(names.begin(), names.begin() + kMostNames);
    const ppt_hint::someNames id(listNames(first), std::to_wstring(names.size() - kMostNames));
    return MessageCatalog::get_message(id, std::locale());
}

// In the order in which they come, each once, without those that nobody could write.
std::vector<std::wstring> removeRepeats(const std::vector<std::wstring>& names) {
    std::vector<std::wstring> different;
    std::set<std::wstring> known{std::wstring()};
    for (const std::wstring& name : names)
        if (known.insert(name).second)
            different.push_back(name);
    return different;
}

} // namespace

std::vector<std::wstring> findNearestNames(const std::wstring& name, const std::vector<std::wstring>& names) {
    const std::wstring wanted = fold(name);
    std::vector<std::pair<std::size_t, std::wstring>> near;
    for (const std::wstring& present : removeRepeats(names))
        if (const std::size_t distance = measure(wanted, fold(present)); distance != kFar)
            near.emplace_back(distance, present);
    std::stable_sort(near.begin(), near.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::wstring> found;
    for (std::size_t i = 0; i < near.size() && i < kMostNames; ++i)
        found.push_back(near[i].second);
    return found;
}

NameHint makeNameHint(const std::wstring& name, const std::vector<std::wstring>& names) {
    NameHint hint;
    hint.names = findNearestNames(name, names);
    if (hint.names.empty())
        hint.text = tellWhatThereIs(removeRepeats(names));
    else
        hint.text = MessageCatalog::get_message(ppt_hint::nearestNames(listNames(hint.names)), std::locale());
    return hint;
}

std::string addHint(const char* text, const NameHint& hint) {
    return std::string(text) + " (" + toUtf8(hint.text) + ")";
}

} // namespace vellox
