#include "vellox/ppt/formats/CharacterFormats.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/formats/SpelledFormatImpl.h"
#include "vellox/ppt/writers/TextWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

// Flags: formats that are on or off and write one attribute

namespace {

struct FlagRow {
    const char* hostTypeName;
    FormatType type;
    const XMLCh* attribute;
    const XMLCh* whenTrue;
    const XMLCh* whenFalse;
};

constexpr FlagRow kBold{"vellox.ppt.Bold", FormatType::Bold, xml::kB, xml::kTrue, xml::kFalse};
constexpr FlagRow kItalic{"vellox.ppt.Italic", FormatType::Italic, xml::kI, xml::kTrue, xml::kFalse};
// The two positions share one attribute; whichever is applied last stays.
constexpr FlagRow kSubscript{"vellox.ppt.Subscript", FormatType::Subscript, xml::kBaseline, u"-25000",
                             xml::kFalse};
constexpr FlagRow kSuperscript{"vellox.ppt.Superscript", FormatType::Superscript, xml::kBaseline, u"30000",
                               xml::kFalse};

template <class Facade, class Impl, const FlagRow& kRow> class FlagImpl : public FormatImpl {
public:
    explicit FlagImpl(bool value) : value_(value) {}

    const char* getFullyQualifiedHostTypeName() const override { return kRow.hostTypeName; }
    boost::shared_ptr<Format> makeInterface() override {
        return ObjectAccess::makeFacade<Facade>(static_cast<Impl*>(this));
    }
    FormatType getFormatType() const override { return kRow.type; }
    void applyToText(TextWriter& writer) const override {
        writer.setRPrAttribute(kRow.attribute, value_ ? kRow.whenTrue : kRow.whenFalse);
    }
    bool getValue() const { return value_; }
    void setValue(bool value) { value_ = value; }

private:
    bool value_;
};

} // namespace

class BoldImpl : public FlagImpl<Bold, BoldImpl, kBold> {
public:
    using FlagImpl::FlagImpl;
};

class ItalicImpl : public FlagImpl<Italic, ItalicImpl, kItalic> {
public:
    using FlagImpl::FlagImpl;
};

class SubscriptImpl : public FlagImpl<Subscript, SubscriptImpl, kSubscript> {
public:
    using FlagImpl::FlagImpl;
};

class SuperscriptImpl : public FlagImpl<Superscript, SuperscriptImpl, kSuperscript> {
public:
    using FlagImpl::FlagImpl;
};

Bold::Bold() : Bold(true) {}
Bold::Bold(bool value) : Bold(new BoldImpl(value)) {}
Bold::Bold(BoldImpl* impl) : Format(impl) {}
bool Bold::getValue() const {
    return implOf<BoldImpl>(*this)->getValue();
}
void Bold::setValue(bool value) {
    implOf<BoldImpl>(*this)->setValue(value);
}

Italic::Italic() : Italic(true) {}
Italic::Italic(bool value) : Italic(new ItalicImpl(value)) {}
Italic::Italic(ItalicImpl* impl) : Format(impl) {}
bool Italic::getValue() const {
    return implOf<ItalicImpl>(*this)->getValue();
}
void Italic::setValue(bool value) {
    implOf<ItalicImpl>(*this)->setValue(value);
}

Subscript::Subscript() : Subscript(true) {}
Subscript::Subscript(bool value) : Subscript(new SubscriptImpl(value)) {}
Subscript::Subscript(SubscriptImpl* impl) : Format(impl) {}
bool Subscript::getValue() const {
    return implOf<SubscriptImpl>(*this)->getValue();
}
void Subscript::setValue(bool value) {
    implOf<SubscriptImpl>(*this)->setValue(value);
}

Superscript::Superscript() : Superscript(true) {}
Superscript::Superscript(bool value) : Superscript(new SuperscriptImpl(value)) {}
Superscript::Superscript(SuperscriptImpl* impl) : Format(impl) {}
bool Superscript::getValue() const {
    return implOf<SuperscriptImpl>(*this)->getValue();
}
void Superscript::setValue(bool value) {
    implOf<SuperscriptImpl>(*this)->setValue(value);
}

// Lines

namespace {

const SpellingTable& getStrikes() {
    static const SpellingTable& words = *new const SpellingTable{
        {L"none", L"none", u"noStrike"},
        {L"single", L"single", u"sngStrike"},
        {L"double", L"double", u"dblStrike"},
    };
    return words;
}

const SpellingTable& getUnderlines() {
    static const SpellingTable& words = *new const SpellingTable{
        {L"none", L"none", u"none"},
        {L"words", L"words", u"words"},
        {L"single", L"single", u"sng"},
        {L"double", L"double", u"dbl"},
        {L"heavy", L"heavy", u"heavy"},
        {L"dotted", L"dotted", u"dotted"},
        {L"dottedheavy", L"dottedHeavy", u"dottedHeavy"},
        {L"dash", L"dash", u"dash"},
        {L"dashheavy", L"dashHeavy", u"dashHeavy"},
        {L"dashlong", L"dashLong", u"dashLong"},
        // The capital in this key is no slip: no text in lower case finds it, so that the style is refused.
        {L"dashlongHeavy", L"dashLongHeavy", u"dashLongHeavy"},
        {L"dotdash", L"dotDash", u"dotDash"},
        {L"dotdashheavy", L"dotDashHeavy", u"dotDashHeavy"},
        {L"dotdotdash", L"dotDotDash", u"dotDotDash"},
        {L"dotdotdashheavy", L"dotDotDashHeavy", u"dotDotDashHeavy"},
        {L"wavy", L"wavy", u"wavy"},
        {L"wavyheavy", L"wavyHeavy", u"wavyHeavy"},
        // Neither is this: it is asked for as "wavyDouble" and reads back as "wavyDbl".
        {L"wavydouble", L"wavyDbl", u"wavyDbl"},
    };
    return words;
}

constexpr wchar_t kDefaultStrike[] = L"single";
constexpr wchar_t kDefaultUnderline[] = L"single";

} // namespace

class StrikeImpl : public SpelledFormatImpl {
public:
    explicit StrikeImpl(const std::wstring& word) : SpelledFormatImpl(getStrikes(), word) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.Strike"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<Strike>(this); }
    FormatType getFormatType() const override { return FormatType::Strike; }
    void applyToText(TextWriter& writer) const override {
        writer.setRPrAttribute(xml::kStrike, getMapping());
    }
    virtual boost::shared_ptr<Strike> clone() const {
        return ObjectAccess::makeFacade<Strike>(new StrikeImpl(*this));
    }
};

Strike::Strike() : Strike(kDefaultStrike) {}
Strike::Strike(const std::wstring& style) : Strike(new StrikeImpl(style)) {}
Strike::Strike(StrikeImpl* impl) : Format(impl) {}

std::wstring Strike::getStyle() const {
    return implOf<StrikeImpl>(*this)->getLabel();
}

void Strike::setStyle(const std::wstring& style) {
    implOf<StrikeImpl>(*this)->setWord(style);
}

boost::shared_ptr<Strike> Strike::clone() const {
    return implOf<StrikeImpl>(*this)->clone();
}

class UnderlineImpl : public SpelledFormatImpl {
public:
    explicit UnderlineImpl(const std::wstring& word) : SpelledFormatImpl(getUnderlines(), word) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.Underline"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<Underline>(this); }
    FormatType getFormatType() const override { return FormatType::Underline; }
    void applyToText(TextWriter& writer) const override { writer.setRPrAttribute(xml::kU, getMapping()); }
    virtual boost::shared_ptr<Underline> clone() const {
        return ObjectAccess::makeFacade<Underline>(new UnderlineImpl(*this));
    }
};

Underline::Underline() : Underline(kDefaultUnderline) {}
Underline::Underline(const std::wstring& style) : Underline(new UnderlineImpl(style)) {}
Underline::Underline(UnderlineImpl* impl) : Format(impl) {}

std::wstring Underline::getStyle() const {
    return implOf<UnderlineImpl>(*this)->getLabel();
}

void Underline::setStyle(const std::wstring& style) {
    implOf<UnderlineImpl>(*this)->setWord(style);
}

boost::shared_ptr<Underline> Underline::clone() const {
    return implOf<UnderlineImpl>(*this)->clone();
}

// Size

class FontSizeImpl : public BaseDimensionImpl {
public:
    using BaseDimensionImpl::BaseDimensionImpl;

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.FontSize"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<FontSize>(this); }
    FormatType getFormatType() const override { return FormatType::FontSize; }
    void applyToText(TextWriter& writer) const override {
        const int hundredths = truncateToInt(getDimension().getPointNumber() * 100.0);
        writer.setRPrAttribute(xml::kSz, opc::XercesString(num2str(hundredths)));
    }
    virtual boost::shared_ptr<FontSize> clone() const {
        return ObjectAccess::makeFacade<FontSize>(new FontSizeImpl(*this));
    }
};

FontSize::FontSize() : FontSize(L"12pt") {}
FontSize::FontSize(const std::wstring& value) : FontSize(new FontSizeImpl(value)) {}
FontSize::FontSize(FontSizeImpl* impl) : BaseDimension(impl) {}

boost::shared_ptr<FontSize> FontSize::clone() const {
    return implOf<FontSizeImpl>(*this)->clone();
}

// Fonts

class FontFamilyImpl : public FormatImpl {
public:
    FontFamilyImpl(const std::wstring& font, const std::wstring& complexScriptFont)
        : font_(font),
          complexScriptFont_(complexScriptFont) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.FontFamily"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<FontFamily>(this); }
    FormatType getFormatType() const override { return FormatType::FontFamily; }
    void applyToText(TextWriter& writer) const override {
        write(writer, xml::kALatin, font_);
        write(writer, xml::kACs, complexScriptFont_);
    }
    virtual boost::shared_ptr<FontFamily> clone() const {
        return ObjectAccess::makeFacade<FontFamily>(new FontFamilyImpl(*this));
    }

    const std::wstring& getFont() const { return font_; }
    void setFont(const std::wstring& font) { font_ = font; }
    const std::wstring& getComplexScriptFont() const { return complexScriptFont_; }
    void setComplexScriptFont(const std::wstring& font) { complexScriptFont_ = font; }

private:
    static void write(TextWriter& writer, const XMLCh* element, const std::wstring& font) {
        if (!font.empty())
            writer.addRPrChild(element).setAttribute(xml::kTypeface, font);
    }

    std::wstring font_;
    std::wstring complexScriptFont_;
};

FontFamily::FontFamily() : FontFamily(L"Times New Roman", std::wstring()) {}
FontFamily::FontFamily(const std::wstring&) : FontFamily() {}
FontFamily::FontFamily(const std::wstring& font, const std::wstring& complexScriptFont)
    : FontFamily(new FontFamilyImpl(font, complexScriptFont)) {}
FontFamily::FontFamily(FontFamilyImpl* impl) : Format(impl) {}

FontFamilyImpl* FontFamily::pimpl() {
    return implOf<FontFamilyImpl>(*this);
}

const FontFamilyImpl* FontFamily::pimpl() const {
    return implOf<FontFamilyImpl>(*this);
}

const std::wstring& FontFamily::getFont() const {
    return pimpl()->getFont();
}

void FontFamily::setFont(const std::wstring& font) {
    pimpl()->setFont(font);
}

const std::wstring& FontFamily::getComplexScriptFont() const {
    return pimpl()->getComplexScriptFont();
}

void FontFamily::setComplexScriptFont(const std::wstring& font) {
    pimpl()->setComplexScriptFont(font);
}

boost::shared_ptr<FontFamily> FontFamily::clone() const {
    return pimpl()->clone();
}

// Language

namespace {

// Parts of letters and digits with hyphens between them; the first, of letters, is the language.
const std::wstring& requireTag(const std::wstring& tag) {
    constexpr std::size_t kLongestPart = 8, kLongest = 35;
    const auto isLetter = [](wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); };
    std::size_t length = 0, parts = 0;
    bool isTag = tag.size() >= 2 && tag.size() <= kLongest;
    for (const wchar_t c : tag) {
        if (c == L'-') {
            isTag = isTag && length > 0;
            length = 0;
            ++parts;
            continue;
        }
        isTag = isTag && ++length <= kLongestPart && (isLetter(c) || (parts > 0 && c >= L'0' && c <= L'9'));
    }
    if (!isTag || length == 0)
        raise(ppt_error::invalidPropertyValue(tag));
    return tag;
}

} // namespace

class LanguageImpl : public FormatImpl {
public:
    explicit LanguageImpl(const std::wstring& tag) : tag_(requireTag(tag)) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.Language"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<Language>(this); }
    FormatType getFormatType() const override { return FormatType::Language; }
    void applyToText(TextWriter& writer) const override {
        writer.setRPrAttribute(xml::kLang, opc::XercesString(tag_));
    }

    const std::wstring& getValue() const { return tag_; }
    void setValue(const std::wstring& tag) { tag_ = requireTag(tag); }

private:
    std::wstring tag_;
};

Language::Language() : Language(L"en-US") {}
Language::Language(const std::wstring& tag) : Language(new LanguageImpl(tag)) {}
Language::Language(LanguageImpl* impl) : Format(impl) {}

const std::wstring& Language::getValue() const {
    return implOf<LanguageImpl>(*this)->getValue();
}

void Language::setValue(const std::wstring& tag) {
    implOf<LanguageImpl>(*this)->setValue(tag);
}

} // namespace vellox::ppt
