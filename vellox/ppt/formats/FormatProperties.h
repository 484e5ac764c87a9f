/// @file
/// The format properties of elements: each format as a property of its own, such as getBold(), setBold() and
/// unsetBold(). Which class has which is said by the bases that it lists:
///
///                            box  paragraph  text  table  row  entry  column
///     CharacterProperties     x       x       x     x       x     x     x
///     ParagraphProperties     x       x
///     BackgroundColor         x                     x       x     x     x
///     HAlign                          x             x       x     x     x
///     VAlign                  x                     x       x     x     x
///     Width                                                              x
///
/// A getter gives an empty pointer if the element has no such format of its own; else a handle on the format
/// that the element has, so that a change through it reaches the element, and every element that shares the
/// format. A setter gives this element a format of its own. Values are checked as by the formats, and the
/// element keeps what it had if one is refused.

#ifndef VELLOX_PPT_FORMATS_FORMATPROPERTIES_H
#define VELLOX_PPT_FORMATS_FORMATPROPERTIES_H

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/Alignment.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/CharacterFormats.h"
#include "vellox/ppt/formats/Color.h"
#include "vellox/ppt/formats/ParagraphFormats.h"

namespace vellox::ppt {

class Element;

/// The way of the properties to an element's style. Not for direct use. The name is one that no program has of its
/// own, since many say `using namespace vellox::ppt`.
namespace element_style {

/// A new handle on the element's own format of a kind; empty if there is none.
VELLOX_API boost::shared_ptr<Format> find(const Element& element, FormatType type);
VELLOX_API void append(Element& element, const boost::shared_ptr<Format>& format);
VELLOX_API void append(Element& element, const Format& format);
VELLOX_API void unset(Element& element, FormatType type);

template <class F> boost::shared_ptr<F> find(const Element& element, FormatType type) {
    return boost::dynamic_pointer_cast<F>(find(element, type));
}

/// A format of this element's alone: a copy of the one that it has, put in that one's place. Empty if there is
/// none.
template <class F> boost::shared_ptr<F> findOwn(Element& element, FormatType type) {
    const boost::shared_ptr<F> shared = find<F>(element, type);
    const boost::shared_ptr<F> own = shared ? shared->clone() : shared;
    append(element, own);
    return own;
}

} // namespace element_style

/// A property of `Owner` that is one format of class F, made from one value. The names are long so that they
/// hide nothing of the owner's.
template <class Owner, class F, FormatType kType> class FormatProperty {
protected:
    boost::shared_ptr<F> findProperty() const {
        return element_style::find<F>(static_cast<const Owner&>(*this), kType);
    }
    template <class Value> void setProperty(const Value& value) {
        element_style::append(static_cast<Owner&>(*this), F(value));
    }
    void unsetProperty() { element_style::unset(static_cast<Owner&>(*this), kType); }
};

/// See BackgroundColor.
template <class Owner>
class BackgroundColorProperty : public FormatProperty<Owner, BackgroundColor, FormatType::BackgroundColor> {
public:
    boost::shared_ptr<BackgroundColor> getBackgroundColor() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setBackgroundColor(const std::wstring& color) { this->setProperty(color); }
    void unsetBackgroundColor() { this->unsetProperty(); }
};

/// See Bold.
template <class Owner> class BoldProperty : public FormatProperty<Owner, Bold, FormatType::Bold> {
public:
    boost::shared_ptr<Bold> getBold() const { return this->findProperty(); }
    void setBold(bool bold) { this->setProperty(bold); }
    template <class T> void setBold(const T*) = delete; ///< a text is no truth value
    void unsetBold() { this->unsetProperty(); }
};

/// See FontColor.
template <class Owner>
class FontColorProperty : public FormatProperty<Owner, FontColor, FormatType::FontColor> {
public:
    boost::shared_ptr<FontColor> getFontColor() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setFontColor(const std::wstring& color) { this->setProperty(color); }
    void unsetFontColor() { this->unsetProperty(); }
};

/// See FontSize.
template <class Owner> class FontSizeProperty : public FormatProperty<Owner, FontSize, FormatType::FontSize> {
public:
    boost::shared_ptr<FontSize> getFontSize() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setFontSize(const std::wstring& size) { this->setProperty(size); }
    void unsetFontSize() { this->unsetProperty(); }
};

/// See HAlign.
template <class Owner> class HAlignProperty : public FormatProperty<Owner, HAlign, FormatType::HAlign> {
public:
    boost::shared_ptr<HAlign> getHAlign() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setHAlign(const std::wstring& alignment) { this->setProperty(alignment); }
    void unsetHAlign() { this->unsetProperty(); }
};

/// See Italic.
template <class Owner> class ItalicProperty : public FormatProperty<Owner, Italic, FormatType::Italic> {
public:
    boost::shared_ptr<Italic> getItalic() const { return this->findProperty(); }
    void setItalic(bool italic) { this->setProperty(italic); }
    template <class T> void setItalic(const T*) = delete; ///< a text is no truth value
    void unsetItalic() { this->unsetProperty(); }
};

/// See Subscript.
template <class Owner>
class SubscriptProperty : public FormatProperty<Owner, Subscript, FormatType::Subscript> {
public:
    boost::shared_ptr<Subscript> getSubscript() const { return this->findProperty(); }
    void setSubscript(bool subscript) { this->setProperty(subscript); }
    template <class T> void setSubscript(const T*) = delete; ///< a text is no truth value
    void unsetSubscript() { this->unsetProperty(); }
};

/// See Superscript.
template <class Owner>
class SuperscriptProperty : public FormatProperty<Owner, Superscript, FormatType::Superscript> {
public:
    boost::shared_ptr<Superscript> getSuperscript() const { return this->findProperty(); }
    void setSuperscript(bool superscript) { this->setProperty(superscript); }
    template <class T> void setSuperscript(const T*) = delete; ///< a text is no truth value
    void unsetSuperscript() { this->unsetProperty(); }
};

/// See VAlign.
template <class Owner> class VAlignProperty : public FormatProperty<Owner, VAlign, FormatType::VAlign> {
public:
    boost::shared_ptr<VAlign> getVAlign() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setVAlign(const std::wstring& alignment) { this->setProperty(alignment); }
    void unsetVAlign() { this->unsetProperty(); }
};

/// See ColWidth.
template <class Owner> class WidthProperty : public FormatProperty<Owner, ColWidth, FormatType::ColWidth> {
public:
    boost::shared_ptr<ColWidth> getWidth() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setWidth(const std::wstring& width) { this->setProperty(width); }
    void unsetWidth() { this->unsetProperty(); }
};

/// See Bullet.
template <class Owner> class BulletProperty : public FormatProperty<Owner, Bullet, FormatType::Bullet> {
public:
    boost::shared_ptr<Bullet> getBullet() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setBullet(const std::wstring& bullet) { this->setProperty(bullet); }
    void unsetBullet() { this->unsetProperty(); }
};

/// See SpaceBefore.
template <class Owner>
class SpaceBeforeProperty : public FormatProperty<Owner, SpaceBefore, FormatType::SpaceBefore> {
public:
    boost::shared_ptr<SpaceBefore> getSpaceBefore() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setSpaceBefore(const std::wstring& space) { this->setProperty(space); }
    void unsetSpaceBefore() { this->unsetProperty(); }
};

/// See SpaceAfter.
template <class Owner>
class SpaceAfterProperty : public FormatProperty<Owner, SpaceAfter, FormatType::SpaceAfter> {
public:
    boost::shared_ptr<SpaceAfter> getSpaceAfter() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setSpaceAfter(const std::wstring& space) { this->setProperty(space); }
    void unsetSpaceAfter() { this->unsetProperty(); }
};

/// See LineSpacing.
template <class Owner>
class LineSpacingProperty : public FormatProperty<Owner, LineSpacing, FormatType::LineSpacing> {
public:
    boost::shared_ptr<LineSpacing> getLineSpacing() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setLineSpacing(const std::wstring& spacing) { this->setProperty(spacing); }
    void unsetLineSpacing() { this->unsetProperty(); }
};

/// See LeftIndent.
template <class Owner>
class LeftIndentProperty : public FormatProperty<Owner, LeftIndent, FormatType::LeftIndent> {
public:
    boost::shared_ptr<LeftIndent> getLeftIndent() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setLeftIndent(const std::wstring& indent) { this->setProperty(indent); }
    void unsetLeftIndent() { this->unsetProperty(); }
};

/// See FirstLineIndent.
template <class Owner>
class FirstLineIndentProperty : public FormatProperty<Owner, FirstLineIndent, FormatType::FirstLineIndent> {
public:
    boost::shared_ptr<FirstLineIndent> getFirstLineIndent() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setFirstLineIndent(const std::wstring& indent) { this->setProperty(indent); }
    void unsetFirstLineIndent() { this->unsetProperty(); }
};

/// See Language.
template <class Owner> class LanguageProperty : public FormatProperty<Owner, Language, FormatType::Language> {
public:
    boost::shared_ptr<Language> getLanguage() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setLanguage(const std::wstring& tag) { this->setProperty(tag); }
    void unsetLanguage() { this->unsetProperty(); }
};

/// See RightToLeft.
template <class Owner>
class RightToLeftProperty : public FormatProperty<Owner, RightToLeft, FormatType::RightToLeft> {
public:
    boost::shared_ptr<RightToLeft> getRightToLeft() const { return this->findProperty(); }
    void setRightToLeft(bool isRightToLeft) { this->setProperty(isRightToLeft); }
    template <class T> void setRightToLeft(const T*) = delete; ///< a text is no truth value
    void unsetRightToLeft() { this->unsetProperty(); }
};

/// What paragraphs have, and boxes for those in them.
template <class Owner>
class ParagraphProperties : public BulletProperty<Owner>,
                            public SpaceBeforeProperty<Owner>,
                            public SpaceAfterProperty<Owner>,
                            public LineSpacingProperty<Owner>,
                            public LeftIndentProperty<Owner>,
                            public FirstLineIndentProperty<Owner>,
                            public RightToLeftProperty<Owner> {};

/// A property that is set by a style and keeps its format when the style changes.
template <class Owner, class F, FormatType kType>
class StyledProperty : public FormatProperty<Owner, F, kType> {
protected:
    void setPropertyStyle(const std::wstring& value) {
        if (const boost::shared_ptr<F> own = element_style::findOwn<F>(static_cast<Owner&>(*this), kType))
            own->setStyle(value);
        else
            this->setProperty(value);
    }
};

/// See Strike.
template <class Owner> class StrikeProperty : public StyledProperty<Owner, Strike, FormatType::Strike> {
public:
    boost::shared_ptr<Strike> getStrike() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setStrikeStyle(const std::wstring& strike) { this->setPropertyStyle(strike); }
    void unsetStrike() { this->unsetProperty(); }
};

/// See Underline.
template <class Owner>
class UnderlineProperty : public StyledProperty<Owner, Underline, FormatType::Underline> {
public:
    boost::shared_ptr<Underline> getUnderline() const { return this->findProperty(); }
    /// @throws invalidPropertyValue
    void setUnderlineStyle(const std::wstring& underline) { this->setPropertyStyle(underline); }
    void unsetUnderline() { this->unsetProperty(); }
};

/// The two facets of FontFamily. Unsetting the one that is left takes the format away; unlike setting, it acts
/// on the format that elements share.
template <class Owner> class FontFamilyProperty {
public:
    boost::shared_ptr<FontFamily> getFontFamily() const {
        return element_style::find<FontFamily>(static_cast<const Owner&>(*this), FormatType::FontFamily);
    }
    void setFont(const std::wstring& font) { setFacet(&FontFamily::setFont, font); }
    void unsetFont() { unsetFacet(&FontFamily::setFont); }
    void setComplexScriptFont(const std::wstring& font) { setFacet(&FontFamily::setComplexScriptFont, font); }
    void unsetComplexScriptFont() { unsetFacet(&FontFamily::setComplexScriptFont); }

private:
    using Setter = void (FontFamily::*)(const std::wstring&);

    void setFacet(Setter setter, const std::wstring& font) {
        Owner& owner = static_cast<Owner&>(*this);
        boost::shared_ptr<FontFamily> family =
            element_style::findOwn<FontFamily>(owner, FormatType::FontFamily);
        if (!family)
            family = boost::make_shared<FontFamily>(std::wstring(), std::wstring());
        ((*family).*setter)(font);
        element_style::append(owner, family);
    }
    void unsetFacet(Setter setter) {
        const boost::shared_ptr<FontFamily> family = getFontFamily();
        if (!family)
            return;
        ((*family).*setter)(std::wstring());
        if (family->getFont().empty() && family->getComplexScriptFont().empty())
            element_style::unset(static_cast<Owner&>(*this), FormatType::FontFamily);
    }
};

/// The fonts, their size and colour.
template <class Owner>
class FontProperties : public FontColorProperty<Owner>,
                       public FontFamilyProperty<Owner>,
                       public FontSizeProperty<Owner> {};

/// What every element that holds text has.
template <class Owner>
class CharacterProperties : public FontProperties<Owner>,
                            public BoldProperty<Owner>,
                            public ItalicProperty<Owner>,
                            public LanguageProperty<Owner>,
                            public StrikeProperty<Owner>,
                            public SubscriptProperty<Owner>,
                            public SuperscriptProperty<Owner>,
                            public UnderlineProperty<Owner> {};

} // namespace vellox::ppt

#endif
