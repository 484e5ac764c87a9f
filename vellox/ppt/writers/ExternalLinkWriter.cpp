#include "vellox/ppt/writers/ExternalLinkWriter.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/tree/ExternalLinkImpl.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

ExternalLinkWriter::ExternalLinkWriter(const ExternalLinkImpl& link, PPTWriter& writer,
                                       xercesc::DOMNode* parentNode)
    : TextWriter(link, writer, parentNode),
      link_(link) {}

void ExternalLinkWriter::write() {
    const std::wstring id = link_.leadsToSlide()
                                ? addJump()
                                : getPartWriter().addHyperlink(getCurrentSlidePartName(), link_.getTarget());
    if (id.empty())
        getWriter().report(ppt_finding::emptyLinkTarget());
    // The rule of links: their element stands ahead of what the formats append.
    PropertyElement& click = addRPrChild(xml::kAHlinkClick);
    click.setAttribute(xml::kRId, id);
    if (link_.leadsToSlide() && !id.empty())
        click.setAttribute(u"action", u"ppaction://hlinksldjump");
    TextWriter::write();
}

// The slide may still have to be written, or not be in the deck any more.
std::wstring ExternalLinkWriter::addJump() const {
    const boost::shared_ptr<TemplateSlide> slide = link_.getSlide();
    const std::wstring from = getCurrentSlidePartName();
    if (!slide || from.empty() || !getWriter().isPlanned(*slide))
        return {};
    return getPartWriter().addRelationship(from, relationship::kSlide, getWriter().requirePartName(*slide));
}

} // namespace vellox::ppt
