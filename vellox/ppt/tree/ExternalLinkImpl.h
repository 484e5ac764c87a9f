/// @file
/// The state behind ExternalLink. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_EXTERNALLINKIMPL_H
#define VELLOX_PPT_TREE_EXTERNALLINKIMPL_H

#include <boost/weak_ptr.hpp>

#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

struct TemplateSlide;

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
        leadsToSlide_ = false;
    }
    /// @{ The slide by its record: a handle would keep alive the slide that the link itself may stand on.
    bool leadsToSlide() const { return leadsToSlide_; }
    boost::shared_ptr<TemplateSlide> getSlide() const { return slide_.lock(); }
    void setSlide(const boost::shared_ptr<TemplateSlide>& slide) {
        target_.clear();
        slide_ = slide;
        leadsToSlide_ = true;
    }
    /// @}

private:
    std::wstring target_;
    bool leadsToSlide_ = false;
    boost::weak_ptr<TemplateSlide> slide_;
};

} // namespace vellox::ppt

#endif
