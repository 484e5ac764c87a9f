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
    const std::wstring id = addLink(*this, link_.getTarget(), link_.getSlide());
    // The rule of links: their element stands ahead of what the formats append.
    PropertyElement& click = addRPrChild(xml::kAHlinkClick);
    click.setAttribute(xml::kRId, id);
    if (link_.getSlide().isSet() && !id.empty())
        click.setAttribute(u"action", kSlideJump);
    TextWriter::write();
}

namespace {

// The slide may still have to be written, or not be in the deck any more.
std::wstring addJump(const ElementWriter& writer, const SlideTarget& target) {
    const boost::shared_ptr<TemplateSlide> slide = target.get();
    const std::wstring from = writer.getCurrentSlidePartName();
    if (!slide || from.empty() || !writer.getWriter().isPlanned(*slide))
        return {};
    return writer.getPartWriter().addRelationship(from, relationship::kSlide,
                                                  writer.getWriter().requirePartName(*slide));
}

} // namespace

std::wstring addLink(const ElementWriter& writer, const std::wstring& target, const SlideTarget& slide) {
    const std::wstring id =
        slide.isSet() ? addJump(writer, slide)
                      : writer.getPartWriter().addHyperlink(writer.getCurrentSlidePartName(), target);
    if (id.empty())
        writer.getWriter().report(ppt_finding::emptyLinkTarget());
    return id;
}

} // namespace vellox::ppt
