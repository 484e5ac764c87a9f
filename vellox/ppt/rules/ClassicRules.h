/// @file
/// The rules that decks have been made by from the first release on.

#ifndef VELLOX_PPT_RULES_CLASSICRULES_H
#define VELLOX_PPT_RULES_CLASSICRULES_H

#include "vellox/ppt/rules/Rules.h"

namespace vellox::ppt {

class ClassicRules : public Rules {
public:
    FileNameFault judgeFileName(const std::wstring& name) const override;
    Refusal refuse(const PackageFacts& package) const override;
    Names nameMasters(const Names& themes) const override;
    TreePath findsTree() const override;
    NodeType classify(const ShapeFacts& shape) const override;
    PlaceSource choosePlace(const PlaceFacts& kin, PlaceUse use) const override;
    bool takes(Inherited what) const override;
    Fate fateOf(const ShapeFacts& shape) const override;
    unsigned int firstFreeId(const IdFacts& ids) const override;
    std::optional<Box> fit(const PictureFacts& picture, const Box* place) const override;
};

} // namespace vellox::ppt

#endif
