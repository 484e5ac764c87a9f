#include "vellox/ppt/writers/ParagraphWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// The format knows no more levels; lists may be nested deeper.
constexpr unsigned int kDeepestLevel = 9;

} // namespace

ParagraphWriter::ParagraphWriter(const ParagraphImpl& paragraph, PPTWriter& writer, DOMNode* parentNode)
    : ElementWriter(paragraph, writer, parentNode),
      paragraph_(paragraph),
      pPr_(xml::kAPPr) {}

void ParagraphWriter::write() {
    applyFormats();
    opc::MarkupBuffer& out = getMarkup();
    const std::size_t start = out.openElement("a:p");
    const BaseAttribute<unsigned int>& level = paragraph_.getLevel();
    if (level.isSet() && level.get() != 0)
        pPr_.setAttribute(xml::kLvl, num2str(std::min(level.get(), kDeepestLevel) - 1));
    pPr_.writeTo(out);
    writeChildren();
    out.closeElement("a:p", start);
    getWriter().countParagraph();
}

void ParagraphWriter::applyFormat(const Format& format) {
    implOf<FormatImpl>(format)->applyToParagraph(*this);
}

const ElementWriter::FormatTypes& ParagraphWriter::inheritedFormatTypes() const {
    static const FormatTypes& types = *new const FormatTypes{FormatType::HAlign};
    return types;
}

void ParagraphWriter::setPPrAttribute(const XMLCh* name, const ValueMapping& mapping) {
    pPr_.setAttribute(name, mapping.xmlValue);
}

} // namespace vellox::ppt
