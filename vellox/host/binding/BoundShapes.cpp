#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/binding/ContentArguments.h"
#include "vellox/host/binding/FormatRows.h"
#include "vellox/host/binding/ParagraphRows.h"
#include "vellox/ppt/tree/Group.h"

namespace vellox::ppt::hostbind {

namespace {

BoundClass describeShape() {
    BoundClass bound = describe<Shape>("Shape", "Element", "What stands on a slide.");
    bound.constructors = {make<Shape>()};
    bound.properties = {
        property<Shape, &Shape::getName, &Shape::setName>("Name", "What the shape is found by."),
        optionalProperty<Shape, &Shape::getX, &Shape::setX, &Shape::unsetX>(
            "X", "The left edge, from the slide's: a length."),
        optionalProperty<Shape, &Shape::getY, &Shape::setY, &Shape::unsetY>(
            "Y", "The top edge, from the slide's: a length."),
        optionalProperty<Shape, &Shape::getWidth, &Shape::setWidth, &Shape::unsetWidth>("Width", "A length."),
        optionalProperty<Shape, &Shape::getHeight, &Shape::setHeight, &Shape::unsetHeight>("Height",
                                                                                           "A length."),
        optionalProperty<Shape, &Shape::getAltText, &Shape::setAltText, &Shape::unsetAltText>(
            "AltText", "What the shape shows, in words, for people who can't see it."),
    };
    return bound;
}

BoundClass describeBaseTextBox() {
    BoundClass bound = describe<BaseTextBox>("BaseTextBox", "Shape", "A shape that holds paragraphs.");
    bound.constructors = {make<BaseTextBox>()};
    bound.properties = makeCharacterRows<BaseTextBox>();
    append(bound.properties, makeParagraphFormatRows<BaseTextBox>());
    bound.properties.push_back(makeBackgroundRow<BaseTextBox>());
    bound.properties.push_back(makeVAlignRow<BaseTextBox>());
    bound.properties.push_back(optionalProperty<BaseTextBox, &BaseTextBox::getAutofit,
                                                &BaseTextBox::setAutofit, &BaseTextBox::unsetAutofit>(
        "Autofit", "What becomes of text that is too long: \"none\", \"shrink\" or \"resize\"."));
    bound.properties.push_back(
        readOnlyProperty<BaseTextBox, &BaseTextBox::getText>("Text", "What the shape shows, as text."));
    bound.methods = makeParagraphRows();
    append(bound.methods, makeContentRows());
    return bound;
}

BoundClass describeTextBox() {
    BoundClass bound = describe<TextBox>("TextBox", "BaseTextBox", "A text box of the user's own.");
    bound.constructors = {make<TextBox>()};
    bound.methods = makeParagraphRows();
    append(bound.methods, makeContentRows());
    return bound;
}

BoundClass describePicture() {
    BoundClass bound = describe<Picture>(
        "Picture", "Shape", "An image from a file or from memory, in its own size unless told otherwise.");
    bound.constructors = {make<Picture>(), make<Picture, std::wstring>({"path"}),
                          make<Picture, std::vector<unsigned char>>({"image"})};
    constexpr void (Picture::*kSetLink)(const std::wstring&) = &Picture::setLink;
    constexpr void (Picture::*kLead)(const Slide&) = &Picture::setLink;
    bound.properties = {
        optionalProperty<Picture, &Picture::getFit, &Picture::setFit, &Picture::unsetFit>(
            "Fit", "How it goes into its box: \"contain\", \"enlarge\", \"cover\" or \"stretch\"."),
        optionalProperty<Picture, &Picture::getFitPosition, &Picture::setFitPosition,
                         &Picture::unsetFitPosition>(
            "FitPosition", "Where it stands in its box, or what is kept of it: \"center\", \"top\", "
                           "\"topLeft\" and others."),
        optionalProperty<Picture, &Picture::getLink, kSetLink, &Picture::unsetLink>(
            "Link",
            "Where a click on it leads, such as \"https://example.org/report\"; not set for a slide."),
    };
    bound.methods = {
        makeReplaceRow<Picture, Picture>("picture"),
        Method<Picture, void(const Slide&)>::row<kLead>(
            "leadTo", {"slide"}, "Makes a click on it lead to a slide of the same presentation.")};
    return bound;
}

BoundClass describeGroup() {
    BoundClass bound = describe<Group>("Group", "Shape", "A group of shapes of a template's slide.");
    bound.constructors = {make<Group>()};
    return bound;
}

} // namespace

std::vector<BoundClass> describeShapes() {
    return {describeShape(), describeBaseTextBox(), describeTextBox(), describePicture(), describeGroup()};
}

} // namespace vellox::ppt::hostbind
