#include "vellox/reading/ShapeComparison.h"

#include "vellox/reading/Alignment.h"

#include <algorithm>
#include <map>

namespace vellox::reading {

using namespace ppt;

namespace {

constexpr const wchar_t* kKinds[] = {L"text", L"table", L"picture", L"chart", L"diagram", L"object"};

std::wstring getKindName(const DeckShape& shape) {
    return kKinds[static_cast<std::size_t>(shape.kind)];
}

std::wstring describeSize(const DeckShape& shape) {
    std::size_t columns = 0;
    for (const auto& row : shape.rows)
        columns = std::max(columns, row.size());
    return std::to_wstring(shape.rows.size()) + L" x " + std::to_wstring(columns);
}

std::wstring describePicture(const DeckShape& shape) {
    constexpr std::size_t kDigits = 10;
    if (shape.digest.empty())
        return shape.picture;
    return std::to_wstring(shape.bytes) + L" bytes, " +
           std::wstring(shape.digest.begin(), shape.digest.begin() + kDigits);
}

/// Levels and texts, as lines that tell both.
std::vector<std::wstring> makeLines(const std::vector<DeckParagraph>& paragraphs) {
    std::vector<std::wstring> lines;
    lines.reserve(paragraphs.size());
    for (const DeckParagraph& paragraph : paragraphs)
        lines.push_back(std::wstring(paragraph.level, L'\t') + paragraph.text);
    return lines;
}

/// Parts of a summary end with what no text holds.
void append(std::wstring& summary, const std::wstring& text, wchar_t end = L'\1') {
    summary += text;
    summary += end;
}

void append(std::wstring& summary, const std::vector<DeckParagraph>& paragraphs) {
    for (const std::wstring& line : makeLines(paragraphs))
        append(summary, line);
    summary += L'\2';
}

/// Dates, footers and numbers say nothing of a slide.
bool isFurniture(const DeckShape& shape) {
    return shape.placeholder == L"dt" || shape.placeholder == L"ftr" || shape.placeholder == L"sldNum" ||
           shape.placeholder == L"hdr";
}

/// Empty text shapes show nothing.
bool isBlank(const DeckShape& shape) {
    return shape.kind == DeckShape::Kind::Text && shape.paragraphs.empty() && shape.altText.empty();
}

/// Shapes of one name belong together in their order.
using Places = std::map<std::wstring, std::vector<const DeckShape*>>;

Places sortByName(const std::vector<DeckShape>& shapes) {
    Places places;
    for (const DeckShape& shape : shapes)
        if (!isBlank(shape))
            places[shape.name].push_back(&shape);
    return places;
}

} // namespace

std::wstring summarize(const DeckSlide& slide) {
    std::wstring summary;
    append(summary, slide.layout);
    append(summary, slide.isHidden ? L"hidden" : L"");
    for (const DeckShape& shape : slide.shapes) {
        if (isBlank(shape))
            continue;
        append(summary, getKindName(shape));
        append(summary, shape.name);
        append(summary, shape.altText);
        append(summary, shape.paragraphs);
        for (const auto& row : shape.rows) {
            for (const std::wstring& cell : row)
                append(summary, cell);
            summary += L'\2';
        }
        append(summary,
               shape.digest.empty() ? shape.picture : std::wstring(shape.digest.begin(), shape.digest.end()));
    }
    append(summary, slide.notes);
    return summary;
}

std::wstring describe(const DeckSlide& slide) {
    const auto describeShapes = [&](bool isTitle) {
        for (const DeckShape& shape : slide.shapes)
            if (isTitle ? shape.placeholder == L"title" || shape.placeholder == L"ctrTitle"
                        : !isFurniture(shape))
                for (const DeckParagraph& paragraph : shape.paragraphs)
                    if (!paragraph.text.empty())
                        return paragraph.text;
        return std::wstring();
    };
    const std::wstring title = describeShapes(true);
    return title.empty() ? describeShapes(false) : title;
}

std::wstring describe(const DeckShape& shape) {
    switch (shape.kind) {
    case DeckShape::Kind::Table:
    case DeckShape::Kind::Chart:
        return getKindName(shape) + L", " + describeSize(shape);
    case DeckShape::Kind::Picture:
        return L"picture, " + describePicture(shape);
    default:
        break;
    }
    for (const DeckParagraph& paragraph : shape.paragraphs)
        if (!paragraph.text.empty())
            return paragraph.text;
    return getKindName(shape);
}

void SlideComparison::add(Kind kind, const std::wstring& shape, const std::wstring& former,
                          const std::wstring& present, const std::wstring& place) {
    DeckDifference difference;
    difference.kind = kind;
    difference.formerSlide = former_.number;
    difference.presentSlide = present_.number;
    difference.shape = shape;
    difference.place = place;
    difference.former = former;
    difference.present = present;
    differences_.push_back(std::move(difference));
}

void SlideComparison::run() {
    if (former_.layout != present_.layout)
        add(Kind::LayoutChanged, {}, former_.layout, present_.layout);
    if (former_.isHidden != present_.isHidden)
        add(Kind::VisibilityChanged, {}, former_.isHidden ? L"hidden" : L"shown",
            present_.isHidden ? L"hidden" : L"shown");
    compareShapes();
    compareParagraphs(Kind::NotesChanged, {}, former_.notes, present_.notes);
}

void SlideComparison::compareShapes() {
    const Places former = sortByName(former_.shapes), present = sortByName(present_.shapes);
    const auto find = [](const Places& places, const std::wstring& name, std::size_t i) {
        const auto found = places.find(name);
        return found == places.end() || i >= found->second.size() ? nullptr : found->second[i];
    };
    const auto walk = [](const std::vector<DeckShape>& shapes, const auto& visit) {
        std::map<std::wstring, std::size_t> counts;
        for (const DeckShape& shape : shapes)
            if (!isBlank(shape))
                visit(shape, counts[shape.name]++);
    };
    walk(former_.shapes, [&](const DeckShape& shape, std::size_t i) {
        if (!find(present, shape.name, i))
            add(Kind::ShapeRemoved, shape.name, describe(shape), {});
    });
    walk(present_.shapes, [&](const DeckShape& shape, std::size_t i) {
        if (const DeckShape* other = find(former, shape.name, i))
            compare(*other, shape);
        else
            add(Kind::ShapeAdded, shape.name, {}, describe(shape));
    });
}

void SlideComparison::compare(const DeckShape& former, const DeckShape& present) {
    if (former.kind != present.kind)
        return add(Kind::KindChanged, present.name, describe(former), describe(present));
    compareParagraphs(Kind::TextChanged, present.name, former.paragraphs, present.paragraphs);
    compareRows(former, present);
    if (describePicture(former) != describePicture(present) &&
        (former.digest.empty() || present.digest.empty() || former.digest != present.digest))
        add(Kind::PictureChanged, present.name, describePicture(former), describePicture(present));
    if (former.altText != present.altText)
        add(Kind::AltTextChanged, present.name, former.altText, present.altText);
}

/// Between paragraphs that stayed, what was and what is go side by side.
void SlideComparison::compareParagraphs(Kind kind, const std::wstring& shape, const Paragraphs& former,
                                        const Paragraphs& present) {
    const std::vector<std::wstring> old = makeLines(former), now = makeLines(present);
    auto pairs = align(old, now);
    pairs.emplace_back(old.size(), now.size());
    std::size_t i = 0, j = 0;
    for (const auto& pair : pairs) {
        while (i < pair.first || j < pair.second) {
            const std::wstring was = i < pair.first ? old[i++] : std::wstring();
            add(kind, shape, was, j < pair.second ? now[j++] : std::wstring());
        }
        i = pair.first + 1;
        j = pair.second + 1;
    }
}

void SlideComparison::compareRows(const DeckShape& former, const DeckShape& present) {
    if (describeSize(former) != describeSize(present))
        add(Kind::SizeChanged, present.name, describeSize(former), describeSize(present));
    for (std::size_t r = 0; r < std::min(former.rows.size(), present.rows.size()); ++r) {
        const auto &old = former.rows[r], &now = present.rows[r];
        for (std::size_t c = 0; c < std::min(old.size(), now.size()); ++c)
            if (old[c] != now[c])
                add(Kind::CellChanged, present.name, old[c], now[c],
                    L"row " + std::to_wstring(r + 1) + L", column " + std::to_wstring(c + 1));
    }
}

} // namespace vellox::reading
