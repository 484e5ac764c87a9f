#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/ppt/formats/Alignment.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/CellFormats.h"
#include "vellox/ppt/formats/CharacterFormats.h"
#include "vellox/ppt/formats/Color.h"

namespace vellox::ppt::hostbind {

namespace {

/// A format that is one truth value.
template <class C> BoundClass describeLogical(const char* name, const char* doc) {
    BoundClass bound = describe<C>(name, "Format", doc);
    bound.constructors = {make<C>(), make<C, bool>({"value"})};
    constexpr void (C::*kSet)(bool) = &C::setValue; // the one that refuses no texts
    bound.properties = {property<C, &C::getValue, kSet>("Value", "Whether it is so.")};
    return bound;
}

/// A format that is one text, which a property of its own or of its superclass holds.
template <class C>
BoundClass describeText(const char* name, const char* superclass, const char* doc,
                        const std::vector<BoundProperty>& properties = {}) {
    BoundClass bound = describe<C>(name, superclass, doc);
    bound.constructors = {make<C>(), make<C, std::wstring>({"value"})};
    bound.properties = properties;
    return bound;
}

BoundClass describeFontFamily() {
    BoundClass bound = describe<FontFamily>("FontFamily", "Format",
                                            "The fonts of text, \"Times New Roman\" and none by default. One "
                                            "font alone is passed over: give two, or set Font.");
    bound.constructors = {make<FontFamily>(), make<FontFamily, std::wstring>({"font"}),
                          make<FontFamily, std::wstring, std::wstring>({"font", "complexScriptFont"})};
    bound.properties = {
        property<FontFamily, &FontFamily::getFont, &FontFamily::setFont>("Font",
                                                                         "The font for Latin scripts."),
        property<FontFamily, &FontFamily::getComplexScriptFont, &FontFamily::setComplexScriptFont>(
            "ComplexScriptFont", "The font for complex scripts, such as Arabic or Thai."),
    };
    return bound;
}

BoundClass describeColor() {
    BoundClass bound = describeAbstract<Color>("Color", "Format", "A colour.");
    bound.properties = {property<Color, &Color::getValue, &Color::setValue>(
        "Value", "\"#\" and six hexadecimal digits, or a name such as \"cornflowerblue\".")};
    return bound;
}

/// @{ A facet of a format as a property.
template <class C, unsigned int kFacet> HostResult getFacet(const C& format) {
    return ToHost<BaseAttribute<std::wstring>>::convert(format.getFacet(kFacet));
}

template <class C, unsigned int kFacet> void setFacet(C& format, const hvArray& value) {
    if (value.getNElements() == 0)
        format.unsetFacet(kFacet);
    else
        format.setFacet(kFacet, value.getString());
}

template <class C, unsigned int kFacet> BoundProperty facetRow(const char* name, const char* doc) {
    return {name,
            SignatureWord("char"),
            true,
            AdaptedClassGetter<C, getFacet<C, kFacet>>::get,
            AdaptedClassSetter<C, setFacet<C, kFacet>>::set,
            doc};
}
/// @}

BoundClass describeBorders() {
    using C = CellBorders;
    BoundClass bound = describe<C>("CellBorders", "Format", "The lines around and between cells.");
    bound.constructors = {make<C>()};
    bound.properties = {
        facetRow<C, C::Left>("Left", "The line at the left, such as \"1pt solid black\"."),
        facetRow<C, C::Right>("Right", "The line at the right."),
        facetRow<C, C::Top>("Top", "The line above."),
        facetRow<C, C::Bottom>("Bottom", "The line below."),
        facetRow<C, C::InsideH>("InsideH", "The lines across, between the cells."),
        facetRow<C, C::InsideV>("InsideV", "The lines from top to bottom, between the cells.")};
    return bound;
}

BoundClass describeMargins() {
    using C = CellMargins;
    BoundClass bound =
        describe<C>("CellMargins", "Format", "The distances of text from the edges of its cell.");
    bound.constructors = {make<C>()};
    bound.properties = {facetRow<C, C::Left>("Left", "That from the left: a length."),
                        facetRow<C, C::Right>("Right", "That from the right."),
                        facetRow<C, C::Top>("Top", "That from above."),
                        facetRow<C, C::Bottom>("Bottom", "That from below.")};
    return bound;
}

BoundClass describeValues() {
    using C = ValueFormat;
    BoundClass bound = describe<C>("ValueFormat", "Format", "How numbers, dates and truth values are shown.");
    bound.constructors = {make<C>()};
    bound.properties = {facetRow<C, C::NumberFormat>("NumberFormat", "The form of numbers or dates."),
                        facetRow<C, C::MissingText>("MissingText", "What is shown for nothing."),
                        facetRow<C, C::TrueText>("TrueText", "What is shown for true."),
                        facetRow<C, C::FalseText>("FalseText", "What is shown for false.")};
    return bound;
}

} // namespace

std::vector<BoundClass> describeFormats() {
    return {
        describeAbstract<Format>("Format", "Object",
                                 "How an element looks in one respect. One format may be in several styles."),
        describeLogical<Bold>("Bold", "Bold text."),
        describeLogical<Italic>("Italic", "Slanted text."),
        describeLogical<Subscript>("Subscript", "Lowered text."),
        describeLogical<Superscript>("Superscript", "Raised text."),
        describeText<Strike>("Strike", "Format", "A line through text.",
                             {property<Strike, &Strike::getStyle, &Strike::setStyle>(
                                 "Style", "\"none\", \"single\" or \"double\".")}),
        describeText<Underline>(
            "Underline", "Format", "A line under text.",
            {property<Underline, &Underline::getStyle, &Underline::setStyle>(
                "Style", "\"none\", \"single\", \"double\", \"wavy\" and others, see the guide.")}),
        describeFontFamily(),
        describeColor(),
        describeText<FontColor>("FontColor", "Color", "The colour of text, \"black\" by default."),
        describeText<BackgroundColor>("BackgroundColor", "Color",
                                      "The fill of a text box or a table cell, \"white\" by default."),
        describeText<BaseDimension>(
            "BaseDimension", "Format", "A length, \"0px\" by default.",
            {property<BaseDimension, &BaseDimension::getValue, &BaseDimension::setValue>(
                "Value", "A number and a unit, such as \"2.5cm\".")}),
        describeText<FontSize>("FontSize", "BaseDimension", "The size of text, \"12pt\" by default."),
        describeText<ColWidth>("ColWidth", "BaseDimension",
                               "The width of a table's column, \"0.25in\" by default."),
        describeText<SpaceBefore>("SpaceBefore", "BaseDimension",
                                  "The room above a paragraph, \"0pt\" by default, or a share of a line."),
        describeText<SpaceAfter>("SpaceAfter", "BaseDimension",
                                 "The room below a paragraph, \"0pt\" by default, or a share of a line."),
        describeText<LineSpacing>("LineSpacing", "BaseDimension",
                                  "How high a line is, \"100%\" of its font by default."),
        describeText<LeftIndent>("LeftIndent", "BaseDimension",
                                 "How far lines stand from the edge, \"0cm\" by default."),
        describeText<FirstLineIndent>("FirstLineIndent", "BaseDimension",
                                      "How much further the first line does, \"0cm\" by default."),
        describeText<Bullet>(
            "Bullet", "Format", "What stands ahead of a paragraph, a dot by default.",
            {property<Bullet, &Bullet::getValue, &Bullet::setValue>(
                "Value",
                "A character, \"1.\", \"a)\", \"(i)\" or another number, or \"none\"; several for levels.")}),
        describeLogical<RightToLeft>("RightToLeft", "Whether a paragraph is read from right to left."),
        describeText<Language>("Language", "Format", "The language of text, \"en-US\" by default.",
                               {property<Language, &Language::getValue, &Language::setValue>(
                                   "Value", "A tag such as \"en-US\" or \"ar\".")}),
        describeText<HAlign>("HAlign", "Format", "The alignment of a paragraph, \"left\" by default.",
                             {property<HAlign, &HAlign::getValue, &HAlign::setValue>(
                                 "Value", "\"left\", \"right\", \"center\", \"justified\" and others.")}),
        describeText<VAlign>("VAlign", "Format", "Where text is anchored, \"top\" by default.",
                             {property<VAlign, &VAlign::getValue, &VAlign::setValue>(
                                 "Value", "\"top\", \"middle\", \"bottom\", or with \"Centered\" behind.")}),
        describeBorders(),
        describeMargins(),
        describeValues(),
    };
}

} // namespace vellox::ppt::hostbind
