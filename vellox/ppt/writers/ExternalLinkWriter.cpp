#include "vellox/ppt/writers/ExternalLinkWriter.h"

#include "vellox/foundation/Identifiers.h"
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
    const std::wstring id = getPartWriter().addHyperlink(getCurrentSlidePartName(), link_.getTarget());
    if (id.empty())
        getWriter().report(ppt_finding::emptyLinkTarget());
    // The rule of links: their element stands ahead of what the formats append.
    addRPrChild(xml::kAHlinkClick).setAttribute(xml::kRId, id);
    TextWriter::write();
}

} // namespace vellox::ppt
