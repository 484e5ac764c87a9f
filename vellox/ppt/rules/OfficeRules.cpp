#include "vellox/ppt/rules/OfficeRules.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Lines.h"
#include "vellox/foundation/NumberText.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/rules/Sequences.h"
#include "vellox/ppt/rules/TableStyles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>

namespace vellox::ppt {

namespace {

// "Text", "Text (2)", "Text (3)", numbered in the given order of the places in the list. A name that a neighbour
// has already isn't made a second time. What has no name stays without.
Rules::Names makeUnique(Rules::Names names, const std::vector<std::size_t>& order) {
    std::map<std::wstring, unsigned int> counts;
    for (const std::wstring& name : names)
        counts.emplace(name, 0);
    for (const std::size_t place : order) {
        std::wstring& name = names[place];
        unsigned int& count = counts[name];
        if (name.empty() || ++count == 1)
            continue;
        std::wstring numbered;
        do {
            numbered = name + L" (" + num2str(count) + L")";
        } while (counts.count(numbered) > 0 && ++count);
        counts.emplace(numbered, 1);
        name = numbered;
    }
    return names;
}

std::vector<std::size_t> countUp(std::size_t size) {
    std::vector<std::size_t> order(size);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

Rules::Names makeUnique(const Rules::Names& names) {
    return makeUnique(names, countUp(names.size()));
}

} // namespace

// A template is opened

// The system itself refuses what it can't make, with its own reason. On another one the file may be made.
FileNameFault OfficeRules::judgeFileName(const std::wstring& name) const {
    return FileUtils::isDeviceName(name) ? FileNameFault::DeviceName : FileNameFault::None;
}

bool OfficeRules::namesNearest() const {
    return true;
}

bool OfficeRules::sendsFindings() const {
    return true;
}

// A deck that is never finished costs nobody the one before it.
Appearance OfficeRules::appearsWhen() const {
    return Appearance::AtClose;
}

namespace {

const contenttype::MainType* findMainType(const std::wstring& contentType) {
    for (const contenttype::MainType& row : contenttype::kMainTypes)
        if (contentType == row.contentType)
            return &row;
    return nullptr;
}

} // namespace

Refusal OfficeRules::refuse(const PackageFacts& package) const {
    if (package.isStrict)
        return Refusal::StrictForm;
    if (!package.hasMainPart)
        return Refusal::NoMainPart;
    return findMainType(package.mainType) ? Refusal::None : Refusal::OtherMainType;
}

std::wstring OfficeRules::explain(Refusal cause, const std::wstring& detail) const {
    switch (cause) {
    case Refusal::NoMainPart:
        return L"it has no main part";
    case Refusal::OtherMainType:
        if (detail.find(L"wordprocessingml") != std::wstring::npos)
            return L"it is a text document";
        if (detail.find(L"spreadsheetml") != std::wstring::npos)
            return L"it is a workbook";
        return L"its main part is no presentation, but has the type \"" + detail + L"\"";
    case Refusal::StrictForm:
        return L"it is in the strict form of Office Open XML, and has to be saved in the transitional one";
    case Refusal::SlideWithoutLayout:
        return L"its slide " + detail + L" has no layout";
    case Refusal::LayoutWithoutMaster:
        return L"the layout of its slide " + detail + L" has no slide master";
    case Refusal::None:
        break;
    }
    return {};
}

bool OfficeRules::takesAnyPrefix() const {
    return true;
}

std::wstring OfficeRules::chooseMainType(const std::wstring& present, const std::wstring& extension) const {
    for (const contenttype::MainType& row : contenttype::kMainTypes)
        if (extension == row.extension)
            return row.contentType;
    return present;
}

bool OfficeRules::renewsProperties() const {
    return true;
}

// What was signed is the template, and its thumbnail shows that too.
bool OfficeRules::leavesOut(Extra what, const std::wstring& mainType) const {
    const contenttype::MainType* row = findMainType(mainType);
    return what != Extra::Macros || !row || !row->hasMacros;
}

Rules::Names OfficeRules::nameMasters(const Names& themes) const {
    return makeUnique(themes);
}

Rules::Names OfficeRules::nameLayouts(const Names& layouts) const {
    return makeUnique(layouts);
}

Order OfficeRules::orderLayouts() const {
    return Order::Template;
}

bool OfficeRules::numbersLayouts() const {
    return true;
}

// A layout or a slide is read

TreePath OfficeRules::findsTree() const {
    return TreePath::ByName;
}

namespace {

bool isWhole(const PlaceText* place) {
    return place && place->isWhole;
}

// Shapes whose upper edges are within half an inch stand in one row.
std::pair<double, double> readingOrder(const NamedShape& shape) {
    constexpr double kRowEmu = 457200;
    if (!shape.place)
        return {HUGE_VAL, 0};
    return {std::floor(str2double(shape.place->y) / kRowEmu), str2double(shape.place->x)};
}

} // namespace

// Charts, diagrams and films can't be put in, but the places for them can take a picture or a table.
NodeType OfficeRules::classify(const ShapeFacts& shape) const {
    const NodeType type = ClassicRules::classify(shape);
    const bool isOpen = shape.element == ShapeElement::Shape && shape.isPlaceholder && !shape.isField;
    return type == NodeType::None && isOpen ? NodeType::ContentPlaceholder : type;
}

Rules::Names OfficeRules::nameShapes(const std::vector<NamedShape>& page) const {
    std::vector<std::size_t> order = countUp(page.size());
    std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return readingOrder(page[left]) < readingOrder(page[right]);
    });
    return makeUnique(ClassicRules::nameShapes(page), order);
}

Kinship OfficeRules::findsKin() const {
    return Kinship::Placeholder;
}

// The nearest that says it all.
PlaceSource OfficeRules::choosePlace(const PlaceFacts& kin, PlaceUse) const {
    if (isWhole(kin.own))
        return PlaceSource::Own;
    if (isWhole(kin.layouts))
        return PlaceSource::Layout;
    return isWhole(kin.masters) ? PlaceSource::Master : PlaceSource::None;
}

// A slide comes from a layout

// A slide inherits the background. That a layout hides what its master shows says nothing of what the slide shows of
// the layout.
bool OfficeRules::takes(Inherited what) const {
    return what == Inherited::ColourMap;
}

// What isn't understood, such as a frame with a chart, is the layout's and shows through, but for the elements that
// no shape tree is without.
Fate OfficeRules::fateOf(const ShapeFacts& shape) const {
    if (shape.element == ShapeElement::Structure)
        return Fate::Keep;
    if (shape.element != ShapeElement::Shape || !shape.isPlaceholder)
        return Fate::Drop;
    return shape.isField ? Fate::Ask : Fate::Empty;
}

// A date that doesn't move is somebody's of long ago, and a footer somebody's, unless the slides have it too.
bool OfficeRules::showsField(const ShapeFacts& field, const DeckFacts& deck) const {
    const std::wstring& type = field.placeholderType;
    if (type == L"ftr")
        return !field.text.empty() && deck.fields.count({type, field.text}) > 0;
    if (!field.movesOn)
        return false;
    if (!deck.hasSlides)
        return type == L"sldNum";
    return std::any_of(deck.fields.begin(), deck.fields.end(),
                       [&](const auto& shown) { return shown.first == type; });
}

// Two of one type and one index would both inherit the place of the first.
std::vector<bool> OfficeRules::keepPlaces(const std::vector<ShapeFacts>& layout) const {
    std::map<std::pair<std::wstring, std::wstring>, unsigned int> counts;
    const auto identify = [](const ShapeFacts& shape) {
        const std::wstring& index = shape.placeholderIndex;
        return std::make_pair(shape.placeholderType, index.empty() ? std::wstring(L"0") : index);
    };
    for (const ShapeFacts& shape : layout)
        if (shape.isPlaceholder)
            ++counts[identify(shape)];
    std::vector<bool> kept;
    kept.reserve(layout.size());
    for (const ShapeFacts& shape : layout)
        kept.push_back(shape.isPlaceholder && counts[identify(shape)] > 1);
    return kept;
}

unsigned int OfficeRules::firstFreeId(const IdFacts& ids) const {
    return ids.present + 1;
}

bool OfficeRules::renumbersRepeats() const {
    return true;
}

// A tree is written

bool OfficeRules::reachesIntoGroups() const {
    return true;
}

bool OfficeRules::givesTextBodies() const {
    return true;
}

namespace {

// The shortest text that reads back as the same number, without an exponent where people would write none.
struct ToText {
    const std::wstring& text;

    std::wstring operator()(std::monostate) const { return text; }
    std::wstring operator()(double number) const { return toShortest(number); }
    std::wstring operator()(long long number) const { return std::to_wstring(number); }
    std::wstring operator()(bool value) const { return value ? L"true" : L"false"; }
};

} // namespace

TextLines OfficeRules::textOf(const Value& value) const {
    return splitLines(std::visit(ToText{value.text}, value.given));
}

bool OfficeRules::splitsContents() const {
    return true;
}

bool OfficeRules::showsTruth() const {
    return true;
}

bool OfficeRules::alignsNumbers() const {
    return true;
}

// What is said counts, then what stood there; a new table has a header row and banded rows.
TableParts OfficeRules::showParts(const TableParts& set, const TableParts* former) const {
    TableParts shown = set;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto part = static_cast<TablePart>(i);
        const bool isUsual = part == TablePart::HeaderRow || part == TablePart::BandedRows;
        if (!shown[i] && former)
            shown[i] = (*former)[i];
        else if (!shown[i] && isUsual)
            shown[i] = true;
    }
    return shown;
}

Rules::Names OfficeRules::listTableStyles() const {
    Names names;
    for (const BuiltInTableStyle& style : getBuiltInTableStyles())
        names.push_back(style.name);
    return names;
}

TableStyle OfficeRules::chooseTableStyle(const TableStyleFacts& style) const {
    if (style.named)
        return {*style.named, true};
    const BuiltInTableStyle* builtIn = style.name ? findBuiltInTableStyle(*style.name) : nullptr;
    if (builtIn)
        return {builtIn->id, true};
    const bool isFound = !style.name;
    if (style.former)
        return {*style.former, isFound};
    const bool isStandardGood =
        style.standard && (style.isStandardDefined || findBuiltInTableStyleById(*style.standard));
    return {isStandardGood ? *style.standard : kUsualTableStyleId, isFound};
}

bool OfficeRules::bringsStyleName() const {
    return true;
}

bool OfficeRules::fillsRows() const {
    return true;
}

bool OfficeRules::sizesEmptyCells() const {
    return true;
}

bool OfficeRules::measuresColumns() const {
    return true;
}

namespace {

// What columns without a width want: at least their longest word and a third of an equal share, at most their
// longest line. None wants more than all there is.
struct Wish {
    double least, most;
};

Wish makeWish(const ColumnFacts& column, double left, std::size_t open) {
    constexpr double kMargins = 2 * 91440;
    // Fonts differ, and headers are bold. A word that is broken is worse than a line that is.
    constexpr double kWordReserve = 1.35, kLineReserve = 1.15;
    if (column.former > 0)
        return {column.former, column.former};
    const double third = left / static_cast<double>(open) / 3;
    const double least = std::max(third, std::min(column.longestWord * kWordReserve + kMargins, left / 2));
    return {least, std::max(least, std::min(column.longestLine * kLineReserve + kMargins, left))};
}

// Lines are broken where they have to be. What is too much or too little is shared in proportion.
std::vector<double> share(const std::vector<Wish>& wishes, double left) {
    double leastSum = 0, mostSum = 0;
    for (const Wish& wish : wishes) {
        leastSum += wish.least;
        mostSum += wish.most;
    }
    std::vector<double> shares;
    for (const Wish& wish : wishes) {
        if (mostSum <= left)
            shares.push_back(wish.most * left / mostSum);
        else if (leastSum < left)
            shares.push_back(wish.least +
                             (wish.most - wish.least) * (left - leastSum) / (mostSum - leastSum));
        else
            shares.push_back(wish.least * left / leastSum);
    }
    return shares;
}

} // namespace

// The sum is that of the table to the last unit: each column ends where those up to it end.
std::vector<int> OfficeRules::shareWidth(const GridFacts& grid) const {
    double left = grid.total;
    std::size_t open = 0;
    for (const ColumnFacts& column : grid.columns) {
        left -= column.width.value_or(0);
        open += column.width ? 0 : 1;
    }
    if (left <= 0)
        left = kLeastColumnWidth * static_cast<double>(open);
    std::vector<Wish> wishes;
    for (const ColumnFacts& column : grid.columns)
        if (!column.width)
            wishes.push_back(makeWish(column, left, open));
    const std::vector<double> shares = share(wishes, left);
    std::vector<int> widths;
    auto next = shares.begin();
    double end = 0;
    long long written = 0;
    for (const ColumnFacts& column : grid.columns) {
        if (column.width) {
            widths.push_back(*column.width);
            continue;
        }
        end += *next++;
        widths.push_back(truncateToInt(std::round(end) - static_cast<double>(written)));
        written += widths.back();
    }
    return widths;
}

bool OfficeRules::measuresTexts() const {
    return true;
}

bool OfficeRules::keepsDescription() const {
    return false;
}

bool OfficeRules::keepsLook() const {
    return true;
}

const ElementForm* OfficeRules::formOf(std::u16string_view element) const {
    return findElementForm(element);
}

bool OfficeRules::sharesImages() const {
    return true;
}

bool OfficeRules::drawsSvg() const {
    return true;
}

bool OfficeRules::readsTraits() const {
    return true;
}

Missing OfficeRules::missingFile() const {
    return Missing::Refused;
}

bool OfficeRules::checksDocuments() const {
    return true;
}

// A length that is set beside one of the file's decides alone.
PictureFacts OfficeRules::sizeFree(const PictureFacts& picture) const {
    constexpr double kEmuPerPixel = 9525, kEmuPerInch = 914400;
    PictureFacts sized = picture;
    const bool hasWidth = picture.cx && !picture.isWidthOfFile;
    const bool hasHeight = picture.cy && !picture.isHeightOfFile;
    if (picture.pixelWidth <= 0 || picture.pixelHeight <= 0 || (hasWidth && hasHeight))
        return sized;
    const bool hasDensity = picture.perInchX > 0 && picture.perInchY > 0;
    const double width = picture.pixelWidth * (hasDensity ? kEmuPerInch / picture.perInchX : kEmuPerPixel);
    const double height = picture.pixelHeight * (hasDensity ? kEmuPerInch / picture.perInchY : kEmuPerPixel);
    if (hasWidth) {
        sized.cy = *picture.cx * height / width;
    } else if (hasHeight) {
        sized.cx = *picture.cy * width / height;
    } else {
        sized.cx = width;
        sized.cy = height;
    }
    return sized;
}

std::optional<Box> OfficeRules::fit(const PictureFacts& picture, const Box* place) const {
    return ClassicRules::fit(sizeFree(picture), place);
}

} // namespace vellox::ppt
