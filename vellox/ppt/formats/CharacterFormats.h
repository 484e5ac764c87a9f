/// @file
/// How a run of text looks: weight, slant, lines, position, font and size. Set on an element above the run,
/// they act on all runs below it that have none of their kind.

#ifndef VELLOX_PPT_FORMATS_CHARACTERFORMATS_H
#define VELLOX_PPT_FORMATS_CHARACTERFORMATS_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/Format.h"

namespace vellox::ppt {

class BoldImpl;
class FontFamilyImpl;
class FontSizeImpl;
class ItalicImpl;
class LanguageImpl;
class StrikeImpl;
class SubscriptImpl;
class SuperscriptImpl;
class UnderlineImpl;

/// Bold text; true unless told otherwise. False switches off what the template turns on.
class VELLOX_API Bold : public Format {
public:
    Bold();
    explicit Bold(bool value);
    template <class T> explicit Bold(const T*) = delete; ///< a text is no truth value
    bool getValue() const;
    void setValue(bool value);
    template <class T> void setValue(const T*) = delete;

protected:
    friend struct ObjectAccess;
    explicit Bold(BoldImpl* impl);
};

/// Slanted text; true unless told otherwise.
class VELLOX_API Italic : public Format {
public:
    Italic();
    explicit Italic(bool value);
    template <class T> explicit Italic(const T*) = delete; ///< a text is no truth value
    bool getValue() const;
    void setValue(bool value);
    template <class T> void setValue(const T*) = delete;

protected:
    friend struct ObjectAccess;
    explicit Italic(ItalicImpl* impl);
};

/// Lowered text, by a quarter of its size; true unless told otherwise. Where a run is in both, the one that is
/// applied last stays: Superscript if both are the run's own or both are inherited, else the inherited one.
class VELLOX_API Subscript : public Format {
public:
    Subscript();
    explicit Subscript(bool value);
    template <class T> explicit Subscript(const T*) = delete; ///< a text is no truth value
    bool getValue() const;
    void setValue(bool value);
    template <class T> void setValue(const T*) = delete;

protected:
    friend struct ObjectAccess;
    explicit Subscript(SubscriptImpl* impl);
};

/// Raised text, by 30 percent of its size; true unless told otherwise.
class VELLOX_API Superscript : public Format {
public:
    Superscript();
    explicit Superscript(bool value);
    template <class T> explicit Superscript(const T*) = delete; ///< a text is no truth value
    bool getValue() const;
    void setValue(bool value);
    template <class T> void setValue(const T*) = delete;

protected:
    friend struct ObjectAccess;
    explicit Superscript(SuperscriptImpl* impl);
};

/// A line through the text: "none", "single" (the default) or "double", in any case.
class VELLOX_API Strike : public Format {
public:
    Strike();
    /// @throws invalidPropertyValue
    explicit Strike(const std::wstring& style);
    /// The style in its own spelling, whatever the case in which it was given.
    std::wstring getStyle() const;
    /// @throws invalidPropertyValue; the style stays as it is then
    void setStyle(const std::wstring& style);
    /// An independent copy.
    boost::shared_ptr<Strike> clone() const;

protected:
    friend struct ObjectAccess;
    explicit Strike(StrikeImpl* impl);
};

/// A line under the text: "none", "words", "single" (the default), "double", "heavy", "dotted",
/// "dottedHeavy", "dash", "dashHeavy", "dashLong", "dotDash", "dotDashHeavy", "dotDotDash",
/// "dotDotDashHeavy", "wavy", "wavyHeavy" or "wavyDouble", in any case. "wavyDouble" reads back as "wavyDbl".
class VELLOX_API Underline : public Format {
public:
    Underline();
    /// @throws invalidPropertyValue
    explicit Underline(const std::wstring& style);
    /// The style in its own spelling, whatever the case in which it was given.
    std::wstring getStyle() const;
    /// @throws invalidPropertyValue; the style stays as it is then
    void setStyle(const std::wstring& style);
    /// An independent copy.
    boost::shared_ptr<Underline> clone() const;

protected:
    friend struct ObjectAccess;
    explicit Underline(UnderlineImpl* impl);
};

/// The size of the text: a length, "12pt" by default. Written in hundredths of a point, the fraction dropped.
class VELLOX_API FontSize : public BaseDimension {
public:
    FontSize();
    /// @throws invalidPropertyValue for what isn't a length
    explicit FontSize(const std::wstring& value);
    /// An independent copy.
    boost::shared_ptr<FontSize> clone() const;

protected:
    friend struct ObjectAccess;
    explicit FontSize(FontSizeImpl* impl);
};

/// The fonts of the text, for Latin and for complex scripts, "Times New Roman" and none by default. No check
/// is made whether a font exists; an empty name leaves the template's font.
class VELLOX_API FontFamily : public Format {
public:
    FontFamily();
    /// The default fonts, whatever the argument. Use setFont(), or the constructor with two fonts.
    explicit FontFamily(const std::wstring& font);
    FontFamily(const std::wstring& font, const std::wstring& complexScriptFont);
    const std::wstring& getFont() const;
    void setFont(const std::wstring& font);
    const std::wstring& getComplexScriptFont() const;
    void setComplexScriptFont(const std::wstring& font);
    /// An independent copy.
    boost::shared_ptr<FontFamily> clone() const;

protected:
    friend struct ObjectAccess;
    explicit FontFamily(FontFamilyImpl* impl);
    FontFamilyImpl* pimpl();
    const FontFamilyImpl* pimpl() const;
};

/// The language of the text, by which programs check its spelling and break its words: a tag such as "en-US", the
/// default, or "ar".
class VELLOX_API Language : public Format {
public:
    Language();
    /// @throws invalidPropertyValue for what is no such tag
    explicit Language(const std::wstring& tag);
    const std::wstring& getValue() const;
    /// @throws invalidPropertyValue; the value stays as it is then
    void setValue(const std::wstring& tag);

protected:
    friend struct ObjectAccess;
    explicit Language(LanguageImpl* impl);
};

} // namespace vellox::ppt

#endif
