/// @file
/// Runs of text: a:r with a:rPr and a:t (ECMA-376 Part 1, 21.1.2.3).

#ifndef VELLOX_PPT_WRITERS_TEXTWRITER_H
#define VELLOX_PPT_WRITERS_TEXTWRITER_H

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ElementWriter.h"
#include "vellox/ppt/xml/PropertyElement.h"

namespace vellox::ppt {

class TextImpl;

class TextWriter : public ElementWriter {
public:
    TextWriter(const TextImpl& text, PPTWriter& writer, xercesc::DOMNode* parentNode);

    void write() override;
    /// Lays the formats of the run over those of a run, or of the end of a paragraph, that is there.
    void applyTo(xercesc::DOMElement* properties);
    /// Writes the formats of the run on a text of one line.
    void writeLine(const std::wstring& line);
    void applyFormat(const Format& format) override;
    const FormatTypes& inheritedFormatTypes() const override;

    /// The run's properties. They are written if anything is put in.
    PropertyElement& getRPr() { return rPr_; }
    void setRPrAttribute(const XMLCh* name, const XMLCh* value);
    void setRPrAttribute(const XMLCh* name, const ValueMapping& mapping);
    void setRPrFlag(const XMLCh* name, bool value);
    /// Appends a new element to the run's properties.
    PropertyElement& addRPrChild(const XMLCh* name);

private:
    void prepare();
    void measure(const std::wstring& line) const;
    void writeRun(const std::wstring& line);
    void writeBreak();

    const TextImpl& text_;
    PropertyElement rPr_;
};

} // namespace vellox::ppt

#endif
