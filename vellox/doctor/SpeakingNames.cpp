#include "vellox/doctor/SpeakingNames.h"

#include "vellox/doctor/LayoutSurvey.h"
#include "vellox/ppt/rules/OfficeRules.h"

#include <algorithm>
#include <cwctype>
#include <map>
#include <numeric>

namespace vellox::ppt {

namespace {

struct Word {
    const wchar_t* type;
    const wchar_t* word;
};

constexpr Word kPlaceholderWords[] = {
    {L"title", L"Title"}, {L"ctrTitle", L"Title"}, {L"subTitle", L"Subtitle"}, {L"body", L"Text"},
    {L"", L"Content"},    {L"obj", L"Content"},    {L"pic", L"Picture"},       {L"clipArt", L"Picture"},
    {L"tbl", L"Table"},   {L"chart", L"Chart"},    {L"dgm", L"Diagram"},       {L"media", L"Film"},
};

constexpr Word kLayoutWords[] = {
    {L"title", L"Title Slide"},   {L"obj", L"Title and Content"},      {L"secHead", L"Section Header"},
    {L"twoObj", L"Two Content"},  {L"twoTxTwoObj", L"Comparison"},     {L"titleOnly", L"Title Only"},
    {L"blank", L"Blank"},         {L"objTx", L"Content with Caption"}, {L"picTx", L"Picture with Caption"},
    {L"tbl", L"Title and Table"}, {L"chart", L"Title and Chart"},
};

template <std::size_t kCount>
std::wstring findWord(const Word (&words)[kCount], const std::wstring& type, const wchar_t* otherwise) {
    for (const Word& row : words)
        if (type == row.type)
            return row.word;
    return otherwise;
}

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

// Programs put a number behind a word, such as "Content Placeholder 2", or write random digits.
bool isMadeByProgram(const std::wstring& name) {
    constexpr std::size_t kUuidSize = 36;
    const std::size_t blank = name.rfind(L' ');
    const bool isNumbered =
        blank != std::wstring::npos && blank + 1 < name.size() &&
        std::all_of(name.begin() + static_cast<std::ptrdiff_t>(blank) + 1, name.end(), isDigit);
    const bool isUuid = name.size() == kUuidSize && std::all_of(name.begin(), name.end(), [](wchar_t c) {
                            return c == L'-' || std::iswxdigit(static_cast<std::wint_t>(c)) != 0;
                        });
    return name.empty() || isNumbered || isUuid;
}

std::wstring getBase(const PlaceholderReport& placeholder) {
    const std::wstring name = cleanName(placeholder.name);
    return isMadeByProgram(name) ? findWord(kPlaceholderWords, placeholder.type, L"Placeholder") : name;
}

// One way across a layout: along x, or along y.
struct Direction {
    long long BoxEmu::*start;
    long long BoxEmu::*size;
    const wchar_t* first;
    const wchar_t* last;
    const wchar_t* many; ///< where there are more than three
};

constexpr Direction kAcross{&BoxEmu::x, &BoxEmu::cx, L"Left", L"Right", L"Column"};
constexpr Direction kDown{&BoxEmu::y, &BoxEmu::cy, L"Upper", L"Lower", L"Row"};

constexpr wchar_t kMiddle[] = L"Middle";

// Where each box is along a direction, among all: boxes whose middles are less than half a box apart are in one line.
std::vector<std::size_t> findLines(const std::vector<BoxEmu>& boxes, const Direction& direction) {
    const auto middle = [&](std::size_t i) {
        return boxes[i].*direction.start + boxes[i].*direction.size / 2;
    };
    std::vector<std::size_t> order(boxes.size()), lines(boxes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return middle(a) < middle(b); });
    std::size_t line = 0, first = order.front();
    for (const std::size_t i : order) {
        const long long half = std::min(boxes[first].*direction.size, boxes[i].*direction.size) / 2;
        if (i != first && middle(i) - middle(first) >= std::max(half, 1LL)) {
            ++line;
            first = i;
        }
        lines[i] = line;
    }
    return lines;
}

std::wstring getLineWord(std::size_t line, std::size_t count, const Direction& direction) {
    constexpr std::size_t kNamed = 3;
    if (count <= 1)
        return {};
    if (count > kNamed)
        return direction.many + (L" " + std::to_wstring(line + 1));
    if (line == 0)
        return direction.first;
    return line + 1 == count ? direction.last : kMiddle;
}

// "Upper Left", "Right", "Center"; empty where all stand in one place.
std::vector<std::wstring> describePlaces(const std::vector<BoxEmu>& boxes) {
    const std::vector<std::size_t> rows = findLines(boxes, kDown), columns = findLines(boxes, kAcross);
    const std::size_t nRows = *std::max_element(rows.begin(), rows.end()) + 1;
    const std::size_t nColumns = *std::max_element(columns.begin(), columns.end()) + 1;
    std::vector<std::wstring> words;
    words.reserve(boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const std::wstring row = getLineWord(rows[i], nRows, kDown);
        const std::wstring column = getLineWord(columns[i], nColumns, kAcross);
        if (row == kMiddle && column == kMiddle)
            words.emplace_back(L"Center");
        else
            words.push_back(
                std::wstring(row).append(row.empty() || column.empty() ? L"" : L" ").append(column));
    }
    return words;
}

} // namespace

std::vector<std::wstring> makeSpeakingNames(const std::vector<PlaceholderReport>& placeholders) {
    std::map<std::wstring, std::vector<std::size_t>> groups;
    std::vector<std::wstring> names;
    names.reserve(placeholders.size());
    for (std::size_t i = 0; i < placeholders.size(); ++i) {
        names.push_back(getBase(placeholders[i]));
        groups[names.back()].push_back(i);
    }
    for (const auto& [base, members] : groups) {
        std::vector<BoxEmu> boxes;
        for (const std::size_t i : members)
            if (placeholders[i].box)
                boxes.push_back(*placeholders[i].box);
        if (members.size() == 1 || boxes.size() != members.size())
            continue;
        const std::vector<std::wstring> places = describePlaces(boxes);
        for (std::size_t k = 0; k < members.size(); ++k)
            names[members[k]] = places[k].empty() ? base : places[k] + L" " + base;
    }
    std::vector<NamedShape> page;
    page.reserve(names.size());
    for (const std::wstring& name : names)
        page.push_back({name, nullptr});
    return OfficeRules().nameShapes(page);
}

std::wstring getLayoutWord(const std::wstring& type) {
    return findWord(kLayoutWords, type, L"Layout");
}

} // namespace vellox::ppt
