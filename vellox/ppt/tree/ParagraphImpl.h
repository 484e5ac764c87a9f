/// @file
/// The state behind Paragraph. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_PARAGRAPHIMPL_H
#define VELLOX_PPT_TREE_PARAGRAPHIMPL_H

#include <optional>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/Paragraph.h"

namespace vellox::ppt {

class ParagraphImpl : public NodeOf<NodeType::Paragraph, ParagraphImpl, Paragraph, ElementImpl> {
public:
    ParagraphImpl();
    explicit ParagraphImpl(const BaseAttribute<unsigned int>& level);
    ParagraphImpl(const ParagraphImpl& other);
    ~ParagraphImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    const BaseAttribute<unsigned int>& getLevel() const { return level_; }
    void setLevel(unsigned int level) { level_.set(level); }
    void unsetLevel() { level_.unset(); }
    /// What an item of a list or a cell was, although it has no run to show for it.
    const std::optional<bool>& getTruthValue() const { return truthValue_; }
    void setTruthValue(bool value) { truthValue_ = value; }

private:
    BaseAttribute<unsigned int> level_;
    std::optional<bool> truthValue_;
};

/// The paragraph node for one item of a list: the caller's own object if the item is one, else a new
/// paragraph; an empty one for what has no place in a list.
PPTNodeImpl::Child contentToParagraph(const HvContentPtr& content);

/// The node of a live Paragraph that the content holds; an empty pointer for any other content.
PPTNodeImpl::Child getParagraphObject(const HvContentPtr& content);

/// @{ A new paragraph with one run of the content; without any; without any, made of a truth value.
PPTNodeImpl::Child makeParagraph(const HvContentPtr& content);
PPTNodeImpl::Child makeParagraph();
PPTNodeImpl::Child makeParagraphOfTruth(bool value);
/// @}

} // namespace vellox::ppt

#endif
