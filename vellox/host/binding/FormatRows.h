/// @file
/// The format properties of element classes, as rows of the class table.

#ifndef VELLOX_HOST_BINDING_FORMATROWS_H
#define VELLOX_HOST_BINDING_FORMATROWS_H

#include <vector>

#include "vellox/host/binding/Adapters.h"

namespace vellox::ppt::hostbind {

/// A facet of an element's fonts. An empty one is one that isn't set.
template <class C, auto kFacet> HostResult getFontFacet(const C& element) {
    const boost::shared_ptr<FontFamily> family = element.getFontFamily();
    if (!family || ((*family).*kFacet)().empty())
        return Empty();
    return ((*family).*kFacet)();
}

template <class C, auto kFacet, auto kSet, auto kUnset>
BoundProperty fontProperty(const char* name, const char* doc) {
    return {name,
            SignatureWord("char"),
            true,
            AdaptedClassGetter<C, getFontFacet<C, kFacet>>::get,
            UnsettingClassSetter<C, kSet, kUnset>::set,
            doc};
}

/// What every element that holds text has.
template <class C> std::vector<BoundProperty> makeFontRows() {
    return {
        fontProperty<C, &FontFamily::getFont, &C::setFont, &C::unsetFont>("Font",
                                                                          "The font for Latin scripts."),
        fontProperty<C, &FontFamily::getComplexScriptFont, &C::setComplexScriptFont,
                     &C::unsetComplexScriptFont>("ComplexScriptFont",
                                                 "The font for complex scripts, such as Arabic or Thai."),
        formatProperty<C, &C::getFontColor, &FontColor::getValue, &C::setFontColor, &C::unsetFontColor>(
            "FontColor", "The colour of text: \"#\" and six hexadecimal digits, or a name."),
        formatProperty<C, &C::getFontSize, &FontSize::getValue, &C::setFontSize, &C::unsetFontSize>(
            "FontSize", "The size of text: a length, such as \"18pt\"."),
    };
}

/// A setter of a truth value, picked from the overloads that refuse texts.
template <template <class> class Property, class C> using LogicalSetter = void (Property<C>::*)(bool);

/// The character set: fonts, and how a run looks besides.
template <class C> std::vector<BoundProperty> makeCharacterRows() {
    std::vector<BoundProperty> rows = {
        formatProperty<C, &C::getBold, &Bold::getValue, LogicalSetter<BoldProperty, C>(&C::setBold),
                       &C::unsetBold>("Bold", "Whether text is bold."),
        formatProperty<C, &C::getItalic, &Italic::getValue, LogicalSetter<ItalicProperty, C>(&C::setItalic),
                       &C::unsetItalic>("Italic", "Whether text is slanted."),
        formatProperty<C, &C::getSubscript, &Subscript::getValue,
                       LogicalSetter<SubscriptProperty, C>(&C::setSubscript), &C::unsetSubscript>(
            "Subscript", "Whether text is lowered."),
        formatProperty<C, &C::getSuperscript, &Superscript::getValue,
                       LogicalSetter<SuperscriptProperty, C>(&C::setSuperscript), &C::unsetSuperscript>(
            "Superscript", "Whether text is raised."),
        formatProperty<C, &C::getLanguage, &Language::getValue, &C::setLanguage, &C::unsetLanguage>(
            "Language", "The language of text, such as \"en-US\" or \"ar\"."),
        formatProperty<C, &C::getStrike, &Strike::getStyle, &C::setStrikeStyle, &C::unsetStrike>(
            "Strike", "The line through text: \"none\", \"single\" or \"double\"."),
        formatProperty<C, &C::getUnderline, &Underline::getStyle, &C::setUnderlineStyle, &C::unsetUnderline>(
            "Underline", "The line under text: \"none\", \"single\", \"double\", \"wavy\" and others."),
    };
    append(rows, makeFontRows<C>());
    return rows;
}

/// How paragraphs stand.
template <class C> std::vector<BoundProperty> makeParagraphFormatRows() {
    return {
        formatProperty<C, &C::getBullet, &Bullet::getValue, &C::setBullet, &C::unsetBullet>(
            "Bullet",
            "What stands ahead: a character, \"1.\", \"a)\", \"(i)\" or another number, \"none\", or "
            "several for the levels: \"1. a) -\"."),
        formatProperty<C, &C::getSpaceBefore, &SpaceBefore::getValue, &C::setSpaceBefore,
                       &C::unsetSpaceBefore>(
            "SpaceBefore", "The room above: a length, or a share of a line such as \"50%\"."),
        formatProperty<C, &C::getSpaceAfter, &SpaceAfter::getValue, &C::setSpaceAfter, &C::unsetSpaceAfter>(
            "SpaceAfter", "The room below: a length, or a share of a line."),
        formatProperty<C, &C::getLineSpacing, &LineSpacing::getValue, &C::setLineSpacing,
                       &C::unsetLineSpacing>("LineSpacing",
                                             "How high a line is: a share such as \"90%\", \"150%\" for one "
                                             "and a half lines, or a length; \"1.5\" is 1.5 pixels."),
        formatProperty<C, &C::getLeftIndent, &LeftIndent::getValue, &C::setLeftIndent, &C::unsetLeftIndent>(
            "LeftIndent", "How far lines stand from the edge: a length."),
        formatProperty<C, &C::getFirstLineIndent, &FirstLineIndent::getValue, &C::setFirstLineIndent,
                       &C::unsetFirstLineIndent>(
            "FirstLineIndent", "How much further the first line does: a length, negative if it hangs out."),
        formatProperty<C, &C::getRightToLeft, &RightToLeft::getValue,
                       LogicalSetter<RightToLeftProperty, C>(&C::setRightToLeft), &C::unsetRightToLeft>(
            "RightToLeft", "Whether it is read from right to left."),
    };
}

template <class C> BoundProperty makeBackgroundRow() {
    return formatProperty<C, &C::getBackgroundColor, &BackgroundColor::getValue, &C::setBackgroundColor,
                          &C::unsetBackgroundColor>("BackgroundColor",
                                                    "The fill: \"#\" and six hexadecimal digits, or a name.");
}

template <class C> BoundProperty makeHAlignRow() {
    return formatProperty<C, &C::getHAlign, &HAlign::getValue, &C::setHAlign, &C::unsetHAlign>(
        "HAlign", "The alignment: \"left\", \"right\", \"center\", \"justified\" and others.");
}

template <class C> BoundProperty makeVAlignRow() {
    return formatProperty<C, &C::getVAlign, &VAlign::getValue, &C::setVAlign, &C::unsetVAlign>(
        "VAlign", "Where text is anchored: \"top\", \"middle\", \"bottom\", or with \"Centered\" behind.");
}

/// How values are shown: what a presentation, a table, its rows, columns and entries have.
template <class C> std::vector<BoundProperty> makeValueRows() {
    return {
        optionalProperty<C, &C::getNumberFormat, &C::setNumberFormat, &C::unsetNumberFormat>(
            "NumberFormat",
            "The form of numbers, such as \",.1f\" or \"{:.0%} of all\", or of dates, such as "
            "\"%d.%m.%Y\"; \"none\" leaves values as they are."),
        optionalProperty<C, &C::getMissingText, &C::setMissingText, &C::unsetMissingText>(
            "MissingText", "What cells show that hold nothing, or a number that is none."),
        optionalProperty<C, &C::getTrueText, &C::setTrueText, &C::unsetTrueText>("TrueText",
                                                                                 "What cells show for true."),
        optionalProperty<C, &C::getFalseText, &C::setFalseText, &C::unsetFalseText>(
            "FalseText", "What cells show for false."),
    };
}

/// Lines and distances of cells.
template <class C> std::vector<BoundProperty> makeBorderRows() {
    return {
        optionalProperty<C, &C::getBorder, &C::setBorder, &C::unsetBorder>(
            "Border", "The four lines around: a width, a kind and a colour, such as \"1.5pt dash #17384a\"; "
                      "\"none\" for no line."),
        optionalProperty<C, &C::getBorderLeft, &C::setBorderLeft, &C::unsetBorderLeft>(
            "BorderLeft", "The line at the left."),
        optionalProperty<C, &C::getBorderRight, &C::setBorderRight, &C::unsetBorderRight>(
            "BorderRight", "The line at the right."),
        optionalProperty<C, &C::getBorderTop, &C::setBorderTop, &C::unsetBorderTop>("BorderTop",
                                                                                    "The line above."),
        optionalProperty<C, &C::getBorderBottom, &C::setBorderBottom, &C::unsetBorderBottom>(
            "BorderBottom", "The line below."),
        optionalProperty<C, &C::getBorderInsideH, &C::setBorderInsideH, &C::unsetBorderInsideH>(
            "BorderInsideH", "The lines across, between the cells."),
        optionalProperty<C, &C::getBorderInsideV, &C::setBorderInsideV, &C::unsetBorderInsideV>(
            "BorderInsideV", "The lines from top to bottom, between the cells."),
        optionalProperty<C, &C::getMarginLeft, &C::setMarginLeft, &C::unsetMarginLeft>(
            "MarginLeft", "The distance of text from the left edge: a length."),
        optionalProperty<C, &C::getMarginRight, &C::setMarginRight, &C::unsetMarginRight>(
            "MarginRight", "The distance of text from the right edge: a length."),
        optionalProperty<C, &C::getMarginTop, &C::setMarginTop, &C::unsetMarginTop>(
            "MarginTop", "The distance of text from the upper edge: a length."),
        optionalProperty<C, &C::getMarginBottom, &C::setMarginBottom, &C::unsetMarginBottom>(
            "MarginBottom", "The distance of text from the lower edge: a length."),
    };
}

/// How cells look: what a table, its rows, columns and entries have.
template <class C> std::vector<BoundProperty> makeCellRows() {
    std::vector<BoundProperty> rows = makeCharacterRows<C>();
    append(rows, {makeBackgroundRow<C>(), makeHAlignRow<C>(), makeVAlignRow<C>()});
    append(rows, makeBorderRows<C>());
    append(rows, makeValueRows<C>());
    return rows;
}

} // namespace vellox::ppt::hostbind

#endif
