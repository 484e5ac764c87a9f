/// @file
/// Links: runs with an a:hlinkClick (ECMA-376 Part 1, 21.1.2.3.5).

#ifndef VELLOX_PPT_WRITERS_EXTERNALLINKWRITER_H
#define VELLOX_PPT_WRITERS_EXTERNALLINKWRITER_H

#include "vellox/ppt/writers/TextWriter.h"

namespace vellox::ppt {

class ExternalLinkImpl;

class ExternalLinkWriter : public TextWriter {
public:
    ExternalLinkWriter(const ExternalLinkImpl& link, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    /// The id of a relationship with the slide that the link leads to; empty if it isn't in the deck.
    std::wstring addJump() const;

    const ExternalLinkImpl& link_;
};

} // namespace vellox::ppt

#endif
