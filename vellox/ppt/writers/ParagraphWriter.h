/// @file
/// Paragraphs: a:p with a:pPr (ECMA-376 Part 1, 21.1.2.2).

#ifndef VELLOX_PPT_WRITERS_PARAGRAPHWRITER_H
#define VELLOX_PPT_WRITERS_PARAGRAPHWRITER_H

#include <optional>

#include "vellox/ppt/formats/BulletForms.h"
#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ElementWriter.h"
#include "vellox/ppt/xml/PropertyElement.h"

namespace vellox {
class Dimension;
}

namespace vellox::ppt {

class ParagraphImpl;
class TextImpl;
struct BulletForm;
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
    /// @param forms by level; they have to stay until the paragraph is written
    void setBullet(const std::vector<BulletForm>& forms);
    /// @{ An element or an attribute that is a length. What is beyond the format is brought to its limit, and reported.
    void setSpacing(const XMLCh* name, const Dimension& spacing);
    void setIndent(const XMLCh* name, const Dimension& indent);
    /// @}
    void setRightToLeft(bool isRightToLeft);

private:
    void preparePPr();
    void finishFormats();
    void putBullet();
    void hangBullet();
    double limit(const XMLCh* name, double value, double least, double greatest) const;
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
    std::optional<BulletForm> bullet_;
    bool isRightToLeft_ = false;
    bool isArranged_ = true;    // whether the children are in the sequence of the schema
    const ParagraphLook* look_; // of the one in whose stead it comes; null if there is none
};

} // namespace vellox::ppt

#endif
