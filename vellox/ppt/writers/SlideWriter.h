/// @file
/// Slides: the parts that hold p:sld (ECMA-376 Part 1, 19.3.1.38).

#ifndef VELLOX_PPT_WRITERS_SLIDEWRITER_H
#define VELLOX_PPT_WRITERS_SLIDEWRITER_H

#include <set>
#include <string>

#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/writers/ElementWriter.h"

namespace vellox::ppt {

class PageFieldWriter;
class SlideDocument;
class SlideImpl;
struct TemplateSlide;

class SlideWriter : public ElementWriter {
public:
    SlideWriter(const SlideImpl& slide, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    /// The name of the slide's part, which is made if there is none.
    std::wstring requirePart(const TemplateSlide& slide, SlideDocument& document) const;
    void writeFields(const PageFieldWriter& fields, SlideDocument& document) const;
    void writeShapes(SlideDocument& document, const PPTNode::Children& shapes, std::set<std::wstring>& taken);

    const SlideImpl& slide_;
};

} // namespace vellox::ppt

#endif
