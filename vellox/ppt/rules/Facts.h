/// @file
/// What the rules are told and what they answer: plain values, whoever has read them and wherever from.

#ifndef VELLOX_PPT_RULES_FACTS_H
#define VELLOX_PPT_RULES_FACTS_H

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "vellox/ppt/object/NodeType.h"

namespace vellox::ppt {

// A template is opened

struct PackageFacts {
    bool hasMainPart = false;
    std::wstring mainType; ///< content type of the main part
    bool isStrict = false; ///< its main part is named as the strict form has it
};

/// Why a package is no template.
enum class Refusal {
    None,          ///< it is one
    NoMainPart,    ///< nothing leads to a main part, or there is none where it leads
    OtherMainType, ///< its main part is something else
    StrictForm,    ///< it is in the form of the format whose names are all different
    SlideWithoutLayout,
    LayoutWithoutMaster
};

/// What a package may have beside its presentation.
enum class Extra { Macros, Signatures, Thumbnail };

/// When the file of a deck comes to its place.
enum class Appearance {
    AtOpen, ///< a copy of the template, which the deck is written into when it is closed
    AtClose ///< the deck itself; until then the place keeps what stands there
};

/// In which order layouts are listed, and masters searched.
enum class Order {
    Relationships, ///< layouts as the relationships of their master come, masters by the names of their parts
    Template       ///< as the template lists both
};

// A layout or a slide is read

/// How the shapes of a layout are found.
enum class TreePath {
    FirstChildren, ///< down the first element of each level
    ByName         ///< p:cSld and p:spTree, wherever they stand among their neighbours
};

enum class ShapeElement { Other, Structure, Shape, Picture, Group, GraphicFrame, Connector };

/// One element of a shape tree, as the rules see it.
struct ShapeFacts {
    ShapeElement element = ShapeElement::Other;
    std::wstring id; ///< with the name, of its p:cNvPr
    std::wstring name;
    bool isPlaceholder = false;
    std::wstring placeholderType; ///< with the index, of its p:ph
    std::wstring placeholderIndex;
    bool hasTextBody = false;
    bool hasTable = false;
    bool isField = false; ///< it is a placeholder for a date, a footer or a number
    bool movesOn = false; ///< of such a one: its text is brought up to date by programs
    std::wstring text;    ///< of such a one
    bool isInGroup = false;
};

/// Where a shape stands, in the words of its a:xfrm or p:xfrm: not all of them need be numbers, and who puts
/// nothing there needn't know.
struct PlaceText {
    std::wstring x, y, cx, cy; ///< in EMU; empty where it says nothing
    bool isWhole = false;      ///< both a:off and a:ext are there
};

/// A shape of a page among its neighbours, to be told apart from them by name.
struct NamedShape {
    std::wstring name;
    const PlaceText* place = nullptr; ///< null where it has none
};

/// Which shapes of layout and master a shape may have its place from.
enum class Kinship {
    Id,         ///< those of the same id
    Placeholder ///< the layout's placeholder of the same index or type, and the master's of that one's type
};

/// The places that a shape may get its own from. Null where somebody has none.
struct PlaceFacts {
    NodeType type = NodeType::None;
    const PlaceText* own = nullptr;
    const PlaceText* layouts = nullptr; ///< of its kin in the layout
    const PlaceText* masters = nullptr; ///< of its kin in the master
};

enum class PlaceSource { None, Own, Layout, Master };

/// What a place is for.
enum class PlaceUse {
    Successor, ///< for a picture or a table that comes in the shape's stead
    Text       ///< for the lengths that a caller leaves open on a text shape
};

// A slide comes from a layout

/// What else a layout has that a slide of it may get.
enum class Inherited {
    ShowMasterShapes, ///< the attribute showMasterSp
    Background,       ///< p:bg
    ColourMap,        ///< p:clrMapOvr
    CustomData        ///< p:custDataLst of the slide as a whole
};

/// What becomes of a layout's shape on a new slide.
enum class Fate {
    Drop,  ///< it shows through the layout
    Keep,  ///< it stands on the slide as well, as it is
    Empty, ///< it stands there without place and text, to be filled
    Ask    ///< it is kept or dropped, as the template's own slides have it: see Rules::showsField()
};

/// What the slides that a template brings along have in common.
struct DeckFacts {
    bool hasSlides = false;
    std::set<std::pair<std::wstring, std::wstring>> fields; ///< type and text of dates, footers and numbers
};

struct IdFacts {
    bool isNew = true;         ///< a slide of a layout, and none of the template
    unsigned int greatest = 0; ///< the greatest id among its layout's placeholders
    unsigned int present = 0;  ///< the last of the usual ids on the slide as it is
};

// A tree is written

/// Position and size in EMU; fractions until they are written.
struct Box {
    double x, y, cx, cy;
};

struct PictureFacts {
    double pixelWidth, pixelHeight; ///< of the image
    std::optional<double> cx, cy;   ///< in EMU, as far as they are set
    bool isWidthOfFile = false;     ///< it counts as set, and yet nobody has asked for it
    bool isHeightOfFile = false;
    double perInchX = 0, perInchY = 0; ///< pixels of the image per inch; 0 where it doesn't say
};

/// What a run of text holds: a text, and what that was made of if it was no text.
struct Value {
    const std::wstring& text;
    const std::variant<std::monostate, double, long long, bool>& given;
};

/// The lines of a text, without their ends.
using TextLines = std::vector<std::wstring>;

/// What a table style may show in its own way.
enum class TablePart { HeaderRow, TotalRow, FirstColumn, LastColumn, BandedRows, BandedColumns };
inline constexpr std::size_t kTablePartCount = 6;
/// For each part, by its number, whether it is shown so, as far as that is said.
using TableParts = std::array<std::optional<bool>, kTablePartCount>;

/// What a table's style may come from. Texts that nobody gave are null.
struct TableStyleFacts {
    const std::wstring* name = nullptr;     ///< that the table was given
    const std::wstring* named = nullptr;    ///< the id of the template's style of that name
    const std::wstring* former = nullptr;   ///< that of the table whose place it takes, empty if it had none
    const std::wstring* standard = nullptr; ///< the id of the template's own choice for new tables
    bool isStandardDefined = false;         ///< whether the template has that style
};

struct TableStyle {
    std::wstring id;     ///< empty for none
    bool isFound = true; ///< false if the table was given a name that nobody knows
};

/// A column of a table that is written. Lengths in EMU; what isn't known is 0.
struct ColumnFacts {
    std::optional<int> width; ///< as somebody has set it
    double former = 0;        ///< of the same column of the table whose place is taken
    double longestLine = 0;   ///< about, as is the next
    double longestWord = 0;
};

/// What a column without a width gets when the others leave nothing of the table's width.
inline constexpr double kLeastColumnWidth = 208080.0;

struct GridFacts {
    std::vector<ColumnFacts> columns;
    double equalSum = 0; ///< the sum of widths if all columns are as wide as one another, in whole numbers
    double total = 0;    ///< the width that the columns share
};

/// What the format demands of an element.
struct ElementForm {
    struct Range {
        std::u16string_view attribute;
        long least, greatest;
    };

    struct Needed {
        std::u16string_view child, attribute;
    };

    std::u16string_view element;
    std::vector<std::u16string_view> children; ///< in the order in which they have to come
    std::vector<Range> ranges;                 ///< of attributes that are whole numbers
    std::vector<Needed> needed;                ///< children that mean nothing where an attribute is empty
};

/// What becomes of a picture whose file can't be read.
enum class Missing {
    Passed, ///< it is written without one
    Refused ///< nothing is written
};

} // namespace vellox::ppt

#endif
