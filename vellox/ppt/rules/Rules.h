/// @file
/// What can be decided in more than one way.

#ifndef VELLOX_PPT_RULES_RULES_H
#define VELLOX_PPT_RULES_RULES_H

#include "vellox/foundation/FileUtils.h"
#include "vellox/ppt/rules/Facts.h"

namespace vellox::ppt {

/// Facts in, answers out: nothing here touches a document, and nobody else decides these things. Each operation is
/// a row of docs/profiles.md. A presentation has one object of the rules; its model leads to them. The tree never
/// asks: it is made before any presentation is known.
class Rules {
public:
    using Names = std::vector<std::wstring>;

    virtual ~Rules();

    /// What is wrong with a file of this name. It is made where a DeviceName is all.
    virtual FileNameFault judgeFileName(const std::wstring& name) const = 0;
    virtual Appearance appearsWhen() const = 0;
    /// Whether a package can be a template.
    virtual Refusal refuse(const PackageFacts& package) const = 0;
    /// What is told of a refusal ahead of the path; it may be nothing.
    /// @param detail what it is about: the type of the main part, or the name of a slide's part
    virtual std::wstring explain(Refusal cause, const std::wstring& detail) const = 0;
    /// Whether names count by their namespaces, however their prefixes are spelled.
    virtual bool takesAnyPrefix() const = 0;
    /// The content type of a deck's main part.
    /// @param present that of the template
    /// @param extension of the output, in lower case
    virtual std::wstring chooseMainType(const std::wstring& present, const std::wstring& extension) const = 0;
    /// Whether the package's properties tell of the deck alone: made now, by nobody but who is named.
    virtual bool renewsProperties() const = 0;
    /// Whether something that the template's package has stays behind, for a deck with a main part of this type.
    virtual bool leavesOut(Extra what, const std::wstring& mainType) const = 0;
    /// Whether the errors of unknown names tell in their text which are near.
    virtual bool namesNearest() const = 0;
    /// Whether what a presentation finds is also sent as a warning.
    virtual bool sendsFindings() const = 0;
    /// The names under which the masters are found, from those of their themes.
    virtual Names nameMasters(const Names& themes) const = 0;
    /// The names under which the layouts of one master are found, from their own.
    virtual Names nameLayouts(const Names& layouts) const = 0;
    virtual Order orderLayouts() const = 0;
    /// Whether a layout that bears no such name is found as "#1", "#2", its number in that order.
    virtual bool numbersLayouts() const = 0;

    /// How the shapes of a layout are found.
    virtual TreePath findsTree() const = 0;
    /// The class of node that a shape becomes; None for what is no shape of interest.
    virtual NodeType classify(const ShapeFacts& shape) const = 0;
    /// The names under which the shapes of a layout or a slide are found, from their own.
    virtual Names nameShapes(const std::vector<NamedShape>& page) const = 0;
    virtual Kinship findsKin() const = 0;
    /// Whose place is used.
    virtual PlaceSource choosePlace(const PlaceFacts& kin, PlaceUse use) const = 0;

    /// Whether a new slide gets this from its layout.
    virtual bool takes(Inherited what) const = 0;
    /// What becomes of a layout's shape on a new slide. Those that are emptied are the layout's placeholders.
    virtual Fate fateOf(const ShapeFacts& shape) const = 0;
    /// Whether a date, a footer or a number that it was left open for comes onto new slides.
    virtual bool showsField(const ShapeFacts& field, const DeckFacts& deck) const = 0;
    /// Which shapes of a layout keep their places on a new slide when they are emptied.
    virtual std::vector<bool> keepPlaces(const std::vector<ShapeFacts>& layout) const = 0;
    /// From where the ids of new shapes on a slide are counted.
    virtual unsigned int firstFreeId(const IdFacts& ids) const = 0;
    /// Whether shapes of the template that repeat an id on their slide get others.
    virtual bool renumbersRepeats() const = 0;

    /// Whether what was done to shapes in groups is written.
    virtual bool reachesIntoGroups() const = 0;
    /// Whether a shape of the template that has no text body gets one for its texts.
    virtual bool givesTextBodies() const = 0;
    /// What a run shows. There is at least one line; between two of them the line is broken.
    virtual TextLines textOf(const Value& value) const = 0;
    /// Whether the lines of a text that is all that a text box or a cell holds are paragraphs.
    virtual bool splitsContents() const = 0;
    /// Whether a truth value shows where it is an item of a list or an entry of a table.
    virtual bool showsTruth() const = 0;
    /// Whether numbers stand at the right of the cells of a table, below its first row.
    virtual bool alignsNumbers() const = 0;
    /// Which parts of a table its style shows in their own way.
    /// @param former those of the table whose place it takes, or null
    virtual TableParts showParts(const TableParts& set, const TableParts* former) const = 0;
    /// The names of styles that a table may have beside the template's.
    virtual Names listTableStyles() const = 0;
    virtual TableStyle chooseTableStyle(const TableStyleFacts& style) const = 0;
    /// Whether a table that takes a place brings the name of its style along.
    virtual bool bringsStyleName() const = 0;
    /// Whether rows with fewer entries than the table has columns get empty ones.
    virtual bool fillsRows() const = 0;
    /// Whether a cell without text is as high as one with text would be.
    virtual bool sizesEmptyCells() const = 0;
    /// Whether anybody asks for the lengths of texts in columns.
    virtual bool measuresColumns() const = 0;
    /// The widths of the columns of a table.
    /// @return nothing if they stay as wide as one another
    virtual std::vector<int> shareWidth(const GridFacts& grid) const = 0;
    /// Whether texts that are to shrink into their box, or to stretch it, are measured as the deck is written.
    virtual bool measuresTexts() const = 0;
    /// Whether what replaces texts or tables of the template looks like them.
    virtual bool keepsLook() const = 0;
    /// Whether a picture or a table is described, for who can't see it, as what it came in the stead of was.
    virtual bool keepsDescription() const = 0;
    /// What an element of the library's own making has to look like.
    /// @return null to leave it as it was made
    virtual const ElementForm* formOf(std::u16string_view element) const = 0;
    virtual Missing missingFile() const = 0;
    /// Whether what is written is checked, as far as it can be, before it is put into the package.
    virtual bool checksDocuments() const = 0;
    /// Whether images of the same bytes are put into the deck once.
    virtual bool sharesImages() const = 0;
    /// Whether an SVG comes with a drawing of it for readers that don't know SVG.
    virtual bool drawsSvg() const = 0;
    /// Whether it counts what an image says of its resolution and of how it is to be turned.
    virtual bool readsTraits() const = 0;
    /// The size of a picture that is placed freely, as far as it has one.
    /// @return the facts with the size that counts
    virtual PictureFacts sizeFree(const PictureFacts& picture) const = 0;
    /// The box of a picture that comes in a shape's stead.
    /// @param place the box that the shape has, or null
    /// @return nothing if the picture has no place of its own
    virtual std::optional<Box> fit(const PictureFacts& picture, const Box* place) const = 0;
};

} // namespace vellox::ppt

#endif
