#include "vellox/ppt/formats/Color.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/ColorTable.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/writers/BaseTextBoxWriter.h"
#include "vellox/ppt/writers/TableEntryWriter.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <boost/algorithm/string/trim.hpp>

namespace vellox::ppt {

// ColorImpl

class ColorImpl : public FormatImpl {
public:
    explicit ColorImpl(const std::wstring& value) { setValue(value); }

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.Color"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<Color>(this); }

    const std::wstring& getValue() const { return value_; }
    void setValue(const std::wstring& value);

protected:
    /// Makes this the colour of a fill.
    void writeTo(PropertyElement& fill) const {
        fill.addChild(xml::kASrgbClr).setAttribute(xml::kVal, toHex(value_));
    }

private:
    std::wstring value_; // in lower case, without blanks around it
};

void ColorImpl::setValue(const std::wstring& value) {
    const std::wstring trimmed = toLowerString(boost::algorithm::trim_copy(value));
    if (!isColor(trimmed))
        raise(ppt_error::invalidPropertyValue(value));
    value_ = trimmed;
}

Color::Color() : Color(new ColorImpl(L"black")) {}
Color::Color(const std::wstring& value) : Color(new ColorImpl(value)) {}
Color::Color(ColorImpl* impl) : Format(impl) {}

const std::wstring& Color::getValue() const {
    return implOf<ColorImpl>(*this)->getValue();
}

void Color::setValue(const std::wstring& value) {
    implOf<ColorImpl>(*this)->setValue(value);
}

// FontColor

class FontColorImpl : public ColorImpl {
public:
    using ColorImpl::ColorImpl;

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.FontColor"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<FontColor>(this); }
    FormatType getFormatType() const override { return FormatType::FontColor; }
    void applyToText(TextWriter& writer) const override { writeTo(writer.addRPrChild(xml::kASolidFill)); }
};

FontColor::FontColor() : FontColor(L"black") {}
FontColor::FontColor(const std::wstring& value) : FontColor(new FontColorImpl(value)) {}
FontColor::FontColor(FontColorImpl* impl) : Color(impl) {}

// BackgroundColor

class BackgroundColorImpl : public ColorImpl {
public:
    using ColorImpl::ColorImpl;

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.BackgroundColor"; }
    boost::shared_ptr<Format> makeInterface() override {
        return ObjectAccess::makeFacade<BackgroundColor>(this);
    }
    FormatType getFormatType() const override { return FormatType::BackgroundColor; }
    void applyToTextBox(BaseTextBoxWriter& writer) const override {
        writeTo(writer.addSpPrChild(xml::kASolidFill));
    }
    void applyToTableEntry(TableEntryWriter& writer) const override {
        writeTo(writer.addTcPrChild(xml::kASolidFill));
    }
};

BackgroundColor::BackgroundColor() : BackgroundColor(L"white") {}
BackgroundColor::BackgroundColor(const std::wstring& value)
    : BackgroundColor(new BackgroundColorImpl(value)) {}
BackgroundColor::BackgroundColor(BackgroundColorImpl* impl) : Color(impl) {}

} // namespace vellox::ppt
