/// @file
/// The state behind ExternalLink. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_EXTERNALLINKIMPL_H
#define VELLOX_PPT_TREE_EXTERNALLINKIMPL_H

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/SlideTarget.h"
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
    void setTarget(const std::wstring& target) {
        target_ = target;
        slide_.unset();
    }
    const SlideTarget& getSlide() const { return slide_; }
    SlideTarget& slide() { return slide_; }
    void setSlide(const boost::shared_ptr<TemplateSlide>& slide) {
        target_.clear();
        slide_.set(slide);
    }

private:
    std::wstring target_;
    SlideTarget slide_;
};

} // namespace vellox::ppt

#endif
