#include "vellox/ppt/rules/ClassicRules.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/package/PackageNames.h"

#include <algorithm>

namespace vellox::ppt {

Rules::~Rules() = default;

// A template is opened

FileNameFault ClassicRules::judgeFileName(const std::wstring& name) const {
    return FileUtils::judgeFileName(name);
}

Appearance ClassicRules::appearsWhen() const {
    return Appearance::AtOpen;
}

Refusal ClassicRules::refuse(const PackageFacts& package) const {
    if (!package.hasMainPart)
        return Refusal::NoMainPart;
    for (const contenttype::MainType& row : contenttype::kMainTypes)
        if (!row.hasMacros && package.mainType == row.contentType)
            return Refusal::None;
    return Refusal::OtherMainType;
}

std::wstring ClassicRules::explain(Refusal, const std::wstring&) const {
    return {};
}

bool ClassicRules::takesAnyPrefix() const {
    return false;
}

// Other main types, such as those of files with macros, stay.
std::wstring ClassicRules::chooseMainType(const std::wstring& present, const std::wstring& extension) const {
    bool isKnown = false;
    std::wstring wanted;
    for (const contenttype::MainType& row : contenttype::kMainTypes) {
        if (!row.hasMacros && extension == row.extension)
            wanted = row.contentType;
        if (!row.hasMacros && present == row.contentType)
            isKnown = true;
    }
    return isKnown && !wanted.empty() ? wanted : present;
}

bool ClassicRules::renewsProperties() const {
    return false;
}

bool ClassicRules::leavesOut(Extra, const std::wstring&) const {
    return false;
}

bool ClassicRules::namesNearest() const {
    return false;
}

bool ClassicRules::sendsFindings() const {
    return false;
}

Rules::Names ClassicRules::nameMasters(const Names& themes) const {
    return themes;
}

Rules::Names ClassicRules::nameLayouts(const Names& layouts) const {
    return layouts;
}

Order ClassicRules::orderLayouts() const {
    return Order::Relationships;
}

bool ClassicRules::numbersLayouts() const {
    return false;
}

// A layout or a slide is read

// A layout in which a background stands ahead of the tree has no placeholders.
TreePath ClassicRules::findsTree() const {
    return TreePath::FirstChildren;
}

namespace {

NodeType classifyPlaceholder(const std::wstring& placeholderType) {
    struct Row {
        const wchar_t* placeholderType;
        NodeType type;
    };
    static constexpr Row rows[] = {
        {L"", NodeType::ContentPlaceholder},        {L"body", NodeType::BodyPlaceholder},
        {L"clipArt", NodeType::PicturePlaceholder}, {L"ctrTitle", NodeType::TextBoxPlaceholder},
        {L"pic", NodeType::PicturePlaceholder},     {L"subTitle", NodeType::TextBoxPlaceholder},
        {L"tbl", NodeType::TablePlaceholder},       {L"title", NodeType::TextBoxPlaceholder},
    };
    for (const Row& row : rows)
        if (placeholderType == row.placeholderType)
            return row.type;
    return NodeType::None;
}

bool isPlaceholder(NodeType type) {
    return isKindOf(type, NodeType::TextBoxPlaceholder);
}

bool isWhole(const PlaceText* place) {
    return place && place->isWhole;
}

} // namespace

// Pictures and frames with a p:ph are what they hold; it doesn't make them placeholders.
NodeType ClassicRules::classify(const ShapeFacts& shape) const {
    switch (shape.element) {
    case ShapeElement::Shape:
        return shape.isPlaceholder ? classifyPlaceholder(shape.placeholderType) : NodeType::TextBox;
    case ShapeElement::Picture:
        return NodeType::Picture;
    case ShapeElement::Group:
        return NodeType::Group;
    case ShapeElement::GraphicFrame:
        return shape.hasTable ? NodeType::Table : NodeType::None;
    default:
        return NodeType::None;
    }
}

Rules::Names ClassicRules::nameShapes(const std::vector<NamedShape>& page) const {
    Names names;
    for (const NamedShape& shape : page)
        names.push_back(shape.name);
    return names;
}

Kinship ClassicRules::findsKin() const {
    return Kinship::Id;
}

PlaceSource ClassicRules::choosePlace(const PlaceFacts& kin, PlaceUse use) const {
    if (use == PlaceUse::Text)
        return kin.layouts ? PlaceSource::Layout : PlaceSource::None;
    // A picture or a table stands where the one before it stood. A placeholder's own place isn't asked, and
    // neither is that of the layout's shape behind a picture.
    const bool hasOwn = kin.type == NodeType::Picture || kin.type == NodeType::Table;
    if (hasOwn && isWhole(kin.own))
        return PlaceSource::Own;
    if (kin.type != NodeType::Picture && isWhole(kin.layouts))
        return PlaceSource::Layout;
    return isWhole(kin.masters) ? PlaceSource::Master : PlaceSource::None;
}

// A slide comes from a layout

// The colour map of a layout stays with the layout, like its transition and its timing.
bool ClassicRules::takes(Inherited what) const {
    return what != Inherited::ColourMap;
}

// Dates, footers and slide numbers stand on the slide with their text. So does what isn't understood.
Fate ClassicRules::fateOf(const ShapeFacts& shape) const {
    const NodeType type = classify(shape);
    if (isPlaceholder(type))
        return Fate::Empty;
    return type != NodeType::None || shape.element == ShapeElement::Connector ? Fate::Drop : Fate::Keep;
}

bool ClassicRules::showsField(const ShapeFacts&, const DeckFacts&) const {
    return true;
}

std::vector<bool> ClassicRules::keepPlaces(const std::vector<ShapeFacts>& layout) const {
    return std::vector<bool>(layout.size(), false);
}

// On a slide of the template they are counted from the start, whatever ids it has.
unsigned int ClassicRules::firstFreeId(const IdFacts& ids) const {
    return ids.isNew ? ids.greatest + 1 : 1;
}

bool ClassicRules::renumbersRepeats() const {
    return false;
}

// A tree is written

bool ClassicRules::reachesIntoGroups() const {
    return false;
}

bool ClassicRules::givesTextBodies() const {
    return false;
}

TextLines ClassicRules::textOf(const Value& value) const {
    return {value.text};
}

bool ClassicRules::splitsContents() const {
    return false;
}

bool ClassicRules::showsTruth() const {
    return false;
}

bool ClassicRules::alignsNumbers() const {
    return false;
}

TableParts ClassicRules::showParts(const TableParts& set, const TableParts*) const {
    return set;
}

Rules::Names ClassicRules::listTableStyles() const {
    return {};
}

TableStyle ClassicRules::chooseTableStyle(const TableStyleFacts& style) const {
    return {style.named ? *style.named : std::wstring(), !style.name || style.named};
}

bool ClassicRules::bringsStyleName() const {
    return false;
}

bool ClassicRules::fillsRows() const {
    return false;
}

bool ClassicRules::sizesEmptyCells() const {
    return false;
}

bool ClassicRules::measuresColumns() const {
    return false;
}

// Columns without a width share what the others leave of the table's.
std::vector<int> ClassicRules::shareWidth(const GridFacts& grid) const {
    double sum = 0;
    std::size_t open = 0;
    for (const ColumnFacts& column : grid.columns) {
        sum += column.width.value_or(0);
        open += column.width ? 0 : 1;
    }
    if (open == grid.columns.size())
        return {};
    const double each = open != 0 && grid.equalSum > sum ? (grid.equalSum - sum) / static_cast<double>(open)
                                                         : kLeastColumnWidth;
    std::vector<int> widths;
    for (const ColumnFacts& column : grid.columns)
        widths.push_back(truncateToInt(column.width ? *column.width : each));
    return widths;
}

bool ClassicRules::measuresTexts() const {
    return false;
}

bool ClassicRules::keepsDescription() const {
    return true;
}

bool ClassicRules::keepsLook() const {
    return false;
}

const ElementForm* ClassicRules::formOf(std::u16string_view) const {
    return nullptr;
}

bool ClassicRules::sharesImages() const {
    return false;
}

bool ClassicRules::drawsSvg() const {
    return false;
}

bool ClassicRules::readsTraits() const {
    return false;
}

Missing ClassicRules::missingFile() const {
    return Missing::Passed;
}

bool ClassicRules::checksDocuments() const {
    return false;
}

PictureFacts ClassicRules::sizeFree(const PictureFacts& picture) const {
    return picture;
}

// The picture at its own size, or at the size that is set, shrunk into the box where it is larger, and moved to
// its centre. It is never enlarged.
std::optional<Box> ClassicRules::fit(const PictureFacts& picture, const Box* place) const {
    constexpr double kEmuPerPixel = 9525;
    if (!place)
        return {};
    double cx = picture.pixelWidth * kEmuPerPixel;
    double cy = picture.pixelHeight * kEmuPerPixel;
    if (picture.cx) {
        cx = *picture.cx;
        if (!picture.cy)
            cy = cx * picture.pixelHeight / picture.pixelWidth;
    }
    if (picture.cy) {
        cy = *picture.cy;
        if (!picture.cx)
            cx = cy * picture.pixelWidth / picture.pixelHeight;
    }
    if (cy > place->cy) {
        if (cy > 1)
            cx = (place->cy / cy) * cx;
        cy = place->cy;
    }
    if (cx > place->cx) {
        if (cx > 1)
            cy = cy * (place->cx / cx);
        cx = place->cx;
    }
    const double x = place->cx > cx ? place->x + (place->cx - cx) * 0.5 : place->x;
    const double y = place->cy > cy ? place->y + (place->cy - cy) * 0.5 : place->y;
    return Box{x, y, cx, cy};
}

} // namespace vellox::ppt
