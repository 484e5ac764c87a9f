/// @file
/// The rules by which a deck comes out as the office programs themselves would have made it of the template.

#ifndef VELLOX_PPT_RULES_OFFICERULES_H
#define VELLOX_PPT_RULES_OFFICERULES_H

#include "vellox/ppt/rules/ClassicRules.h"

namespace vellox::ppt {

/// What isn't said here is decided as ever.
class OfficeRules : public ClassicRules {
public:
    FileNameFault judgeFileName(const std::wstring& name) const override;
    bool namesNearest() const override;
    bool sendsFindings() const override;
    Appearance appearsWhen() const override;
    Refusal refuse(const PackageFacts& package) const override;
    std::wstring explain(Refusal cause, const std::wstring& detail) const override;
    bool takesAnyPrefix() const override;
    std::wstring chooseMainType(const std::wstring& present, const std::wstring& extension) const override;
    bool renewsProperties() const override;
    bool leavesOut(Extra what, const std::wstring& mainType) const override;
    Names nameMasters(const Names& themes) const override;
    Names nameLayouts(const Names& layouts) const override;
    Order orderLayouts() const override;
    bool numbersLayouts() const override;
    TreePath findsTree() const override;
    NodeType classify(const ShapeFacts& shape) const override;
    Names nameShapes(const std::vector<NamedShape>& page) const override;
    Kinship findsKin() const override;
    PlaceSource choosePlace(const PlaceFacts& kin, PlaceUse use) const override;
    bool takes(Inherited what) const override;
    Fate fateOf(const ShapeFacts& shape) const override;
    bool showsField(const ShapeFacts& field, const DeckFacts& deck) const override;
    std::vector<bool> keepPlaces(const std::vector<ShapeFacts>& layout) const override;
    unsigned int firstFreeId(const IdFacts& ids) const override;
    bool renumbersRepeats() const override;
    bool reachesIntoGroups() const override;
    bool givesTextBodies() const override;
    TextLines textOf(const Value& value) const override;
    bool splitsContents() const override;
    bool showsTruth() const override;
    bool alignsNumbers() const override;
    TableParts showParts(const TableParts& set, const TableParts* former) const override;
    Names listTableStyles() const override;
    TableStyle chooseTableStyle(const TableStyleFacts& style) const override;
    bool bringsStyleName() const override;
    bool fillsRows() const override;
    bool sizesEmptyCells() const override;
    bool measuresColumns() const override;
    std::vector<int> shareWidth(const GridFacts& grid) const override;
    bool measuresTexts() const override;
    bool keepsLook() const override;
    bool keepsDescription() const override;
    const ElementForm* formOf(std::u16string_view element) const override;
    Missing missingFile() const override;
    bool checksDocuments() const override;
    bool sharesImages() const override;
    bool drawsSvg() const override;
    bool readsTraits() const override;
    PictureFacts sizeFree(const PictureFacts& picture) const override;
    std::optional<Box> fit(const PictureFacts& picture, const Box* place) const override;
};

} // namespace vellox::ppt

#endif
