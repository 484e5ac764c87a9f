/// @file
/// Text shapes: p:sp (ECMA-376 Part 1, 19.3.1.43), filled in place or new.

#ifndef VELLOX_PPT_WRITERS_BASETEXTBOXWRITER_H
#define VELLOX_PPT_WRITERS_BASETEXTBOXWRITER_H

#include <string>

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ShapeWriter.h"
#include "vellox/ppt/xml/PropertyElement.h"

namespace vellox::ppt {

class BaseTextBoxImpl;
class TextLook;

class BaseTextBoxWriter : public ShapeWriter {
public:
    BaseTextBoxWriter(const BaseTextBoxImpl& textBox, PPTWriter& writer, xercesc::DOMNode* parentNode);

    void write() override;
    void applyFormat(const Format& format) override;
    const FormatTypes& inheritedFormatTypes() const override;

    /// What is put into the body's properties.
    PropertyElement& getBodyPr() { return bodyPr_; }
    void setBodyPrAttribute(const XMLCh* name, const ValueMapping& mapping);
    void setBodyPrAttribute(const XMLCh* name, const std::wstring& text);
    void setBodyPrFlag(const XMLCh* name, bool value);
    /// What is put into the shape's properties. For a shape without any it is lost, and reported.
    PropertyElement& getSpPr() { return spPr_; }
    /// A new element in the shape's properties, in the place of one of its name or at the end.
    PropertyElement& addSpPrChild(const XMLCh* name);

private:
    bool staysInPlace() const;
    void putAutofit();
    void measure(PropertyElement& autofit);
    void resize(xercesc::DOMElement* shape) const;
    xercesc::DOMElement* findOrMakeShape();
    xercesc::DOMElement* makeTextBody(xercesc::DOMElement* shape) const;
    void writeParagraphs(opc::MarkupBuffer& out, const TextLook* former, bool hasParagraphs) const;
    void writeSpPr(xercesc::DOMElement* shape) const;
    void writeBodyPr(xercesc::DOMElement* txBody) const;
    void reportLostText() const;

    const BaseTextBoxImpl& textBox_;
    PropertyElement spPr_;
    PropertyElement bodyPr_;
    double fittingHeight_ = 0; // of a box that is to be as high as its text, if that is known
};

} // namespace vellox::ppt

#endif
