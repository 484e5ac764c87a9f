#include "vellox/ppt/tree/ExternalLink.h"

#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/ExternalLinkImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

namespace vellox::ppt {

// ExternalLinkImpl

ExternalLinkImpl::ExternalLinkImpl() {
    announceCreated(*this);
}

ExternalLinkImpl::ExternalLinkImpl(const std::wstring& target, const std::wstring& text)
    : NodeOf(text),
      target_(target) {
    announceCreated(*this);
}

ExternalLinkImpl::ExternalLinkImpl(const ExternalLinkImpl& other)
    : NodeOf(other),
      target_(other.target_),
      slide_(other.slide_) {
    announceCreated(*this);
}

ExternalLinkImpl::~ExternalLinkImpl() {
    announceDestroyed(*this);
}

// ExternalLink

ExternalLink::ExternalLink() : ExternalLink(new ExternalLinkImpl) {}
ExternalLink::ExternalLink(const std::wstring& target, const std::wstring& text)
    : ExternalLink(new ExternalLinkImpl(target, text)) {}
ExternalLink::ExternalLink(const Slide& target, const std::wstring& text)
    : ExternalLink(std::wstring(), text) {
    setTarget(target);
}
ExternalLink::ExternalLink(ExternalLinkImpl* impl) : Text(impl) {}

ExternalLinkImpl* ExternalLink::pimpl() {
    return implOf<ExternalLinkImpl>(*this);
}

const ExternalLinkImpl* ExternalLink::pimpl() const {
    return implOf<ExternalLinkImpl>(*this);
}

const std::wstring& ExternalLink::getTarget() const {
    return pimpl()->getTarget();
}

void ExternalLink::setTarget(const std::wstring& target) {
    pimpl()->setTarget(target);
}

void ExternalLink::setTarget(const Slide& target) {
    pimpl()->setSlide(implOf<SlideImpl>(target)->getTemplateSlide());
}

} // namespace vellox::ppt
