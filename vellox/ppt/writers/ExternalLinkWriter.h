/// @file
/// Links: runs with an a:hlinkClick (ECMA-376 Part 1, 21.1.2.3.5).

#ifndef VELLOX_PPT_WRITERS_EXTERNALLINKWRITER_H
#define VELLOX_PPT_WRITERS_EXTERNALLINKWRITER_H

#include "vellox/ppt/writers/TextWriter.h"

namespace vellox::ppt {

class ExternalLinkImpl;
class SlideTarget;

/// The relationship of a link from what a writer writes, to a slide if it leads to one.
/// @return its id; empty for a link that leads nowhere, which is reported
std::wstring addLink(const ElementWriter& writer, const std::wstring& target, const SlideTarget& slide);

/// What a click on a link to a slide does.
inline constexpr const XMLCh* kSlideJump = u"ppaction://hlinksldjump";

class ExternalLinkWriter : public TextWriter {
public:
    ExternalLinkWriter(const ExternalLinkImpl& link, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    const ExternalLinkImpl& link_;
};

} // namespace vellox::ppt

#endif
