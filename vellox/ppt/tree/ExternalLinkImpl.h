/// @file
/// The state behind ExternalLink. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_EXTERNALLINKIMPL_H
#define VELLOX_PPT_TREE_EXTERNALLINKIMPL_H

#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

class ExternalLinkImpl : public TextImpl {
public:
    ExternalLinkImpl();
    ExternalLinkImpl(const std::wstring& target, const std::wstring& text);
    ExternalLinkImpl(const ExternalLinkImpl& other);
    ~ExternalLinkImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;

    const std::wstring& getTarget() const { return target_; }
    void setTarget(const std::wstring& target) { target_ = target; }

private:
    std::wstring target_;
};

} // namespace vellox::ppt

#endif
