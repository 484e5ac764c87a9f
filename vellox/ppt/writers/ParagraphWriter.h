/// @file
/// Paragraphs: a:p with a:pPr (ECMA-376 Part 1, 21.1.2.2).

#ifndef VELLOX_PPT_WRITERS_PARAGRAPHWRITER_H
#define VELLOX_PPT_WRITERS_PARAGRAPHWRITER_H

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ElementWriter.h"
#include "vellox/ppt/xml/PropertyElement.h"

namespace vellox::ppt {

class ParagraphImpl;
class TextImpl;
struct ParagraphLook;

class ParagraphWriter : public ElementWriter {
public:
    ParagraphWriter(const ParagraphImpl& paragraph, PPTWriter& writer, xercesc::DOMNode* parentNode);

    void write() override;
    /// Lays the formats of the paragraph over those of one that is there.
    void applyTo(xercesc::DOMElement* paragraph);
    void applyFormat(const Format& format) override;
    const FormatTypes& inheritedFormatTypes() const override;

    /// The paragraph's properties. They are written if anything is put in.
    PropertyElement& getPPr() { return pPr_; }
    void setPPrAttribute(const XMLCh* name, const ValueMapping& mapping);

private:
    void preparePPr();
    unsigned int getLevel() const;
    PPTWriter::Frame makeRunFrame() const;
    void writeEnd(bool hasRuns) const;
    bool isWholeContent() const;
    bool isAmongNumbers() const;
    void writeLines(const TextImpl& text, const std::vector<std::wstring>& lines) const;
    void writeLine(const TextImpl& text, const std::wstring& line) const;
    void writeValue() const;
    void writeRun(const boost::shared_ptr<PPTNode>& run) const;

    const ParagraphImpl& paragraph_;
    PropertyElement pPr_;
    const ParagraphLook* look_; // of the one in whose stead it comes; null if there is none
};

} // namespace vellox::ppt

#endif
