/// @file
/// The state behind ExternalLink. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_EXTERNALLINKIMPL_H
#define VELLOX_PPT_TREE_EXTERNALLINKIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

class ExternalLinkImpl : public NodeOf<NodeType::ExternalLink, ExternalLinkImpl, ExternalLink, TextImpl> {
public:
    ExternalLinkImpl();
    ExternalLinkImpl(const std::wstring& target, const std::wstring& text);
    ExternalLinkImpl(const ExternalLinkImpl& other);
    ~ExternalLinkImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    const std::wstring& getTarget() const { return target_; }
    void setTarget(const std::wstring& target) { target_ = target; }

private:
    std::wstring target_;
};

} // namespace vellox::ppt

#endif
