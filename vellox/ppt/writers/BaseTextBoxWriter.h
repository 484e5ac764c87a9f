/// @file
/// Text shapes: p:sp (ECMA-376 Part 1, 19.3.1.43), filled in place or new.

#ifndef VELLOX_PPT_WRITERS_BASETEXTBOXWRITER_H
#define VELLOX_PPT_WRITERS_BASETEXTBOXWRITER_H

#include <string>

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ShapeWriter.h"

namespace vellox::ppt {

class BaseTextBoxImpl;

class BaseTextBoxWriter : public ShapeWriter {
public:
    BaseTextBoxWriter(const BaseTextBoxImpl& textBox, PPTWriter& writer, xercesc::DOMNode* parentNode);

    void write() override;
    void applyFormat(const Format& format) override;
    const FormatTypes& inheritedFormatTypes() const override;

    /// The body's properties, made if the shape has none.
    xercesc::DOMElement* getBodyPr();
    void setBodyPrAttribute(const XMLCh* name, const ValueMapping& mapping);
    void setBodyPrAttribute(const XMLCh* name, const std::wstring& text);
    void setBodyPrFlag(const XMLCh* name, bool value);
    /// The shape's properties. For a shape without any they are made and attached nowhere, so that what is
    /// written into them is lost, and reported.
    xercesc::DOMElement* getSpPr();
    /// A new element in the shape's properties, in the place of one of its name or at the end.
    xercesc::DOMElement* addSpPrChild(const XMLCh* name);

private:
    xercesc::DOMElement* findOrMakeShape();
    void reportLostText() const;

    const BaseTextBoxImpl& textBox_;
    xercesc::DOMElement* spPr_ = nullptr;
    xercesc::DOMElement* bodyPr_ = nullptr;
};

} // namespace vellox::ppt

#endif
