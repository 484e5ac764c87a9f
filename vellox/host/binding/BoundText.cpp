#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/binding/FormatRows.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt::hostbind {

namespace {

void setLevel(Paragraph& paragraph, const hvArray& value) {
    constexpr double kDeepest = 9;
    if (value.getNElements() == 0) {
        paragraph.unsetLevel();
        return;
    }
    const HvContent::ContentType type = HvCell(&value).getContentType();
    const bool isNumber = type == HvContent::Integer || type == HvContent::Double;
    const double level = isNumber ? value.getDouble() : 0;
    if (!(level >= 1 && level <= kDeepest) || level != static_cast<unsigned int>(level))
        raise(ppt_error::invalidPropertyValue(describeValue(value)));
    paragraph.setLevel(static_cast<unsigned int>(level));
}

HostResult getContent(const Text& text) {
    if (text.isNumContent())
        return text.getNumContent();
    return text.getTextContent();
}

void setContent(Text& text, const hvArray& value) {
    const HvContentPtr content = HvCell(&value).getContent();
    switch (content ? content->getContentType() : HvContent::Empty) {
    case HvContent::String:
        return text.setTextContent(StringContent::getValue(content));
    case HvContent::Boolean:
        return implOf<TextImpl>(text)->setGiven(BooleanContent::getValue(content));
    case HvContent::Integer:
    case HvContent::Double:
        return text.setNumContent(value.getDouble());
    default:
        raise(ppt_error::invalidPropertyValue(describeValue(value)));
    }
}

BoundClass describeParagraph() {
    BoundClass bound = describe<Paragraph>("Paragraph", "Element", "A paragraph of one text or several.");
    bound.constructors = {
        make<Paragraph>(),
        make<Paragraph, std::wstring>({"text"}),
        make<Paragraph, std::wstring, unsigned int>({"text", "level"}),
        make<Paragraph, double>({"number"}),
        make<Paragraph, double, unsigned int>({"number", "level"}),
        make<Paragraph, Text>({"text"}),
        make<Paragraph, Text, unsigned int>({"text", "level"}),
    };
    bound.properties = makeCharacterRows<Paragraph>();
    append(bound.properties, makeParagraphFormatRows<Paragraph>());
    bound.properties.push_back(makeHAlignRow<Paragraph>());
    bound.properties.push_back(
        {"Level", SignatureWord("uint32 scalar"), true, ClassGetter<Paragraph, &Paragraph::getLevel>::get,
         AdaptedClassSetter<Paragraph, setLevel>::set, "The list level, from 1 to 9."});
    bound.methods = {
        Method<Paragraph, Text(Wide)>::row<&Paragraph::append>("append", {"text"}, "Appends a new text."),
        Method<Paragraph, Text(const Text&)>::row<&Paragraph::append>(
            "append", {"text"}, "Appends this very object, which must not stand anywhere yet."),
        Method<Paragraph, ExternalLink(const ExternalLink&)>::row<&Paragraph::append>(
            "append", {"link"}, "Appends this very object, which must not stand anywhere yet."),
    };
    return bound;
}

BoundClass describeRun() {
    BoundClass bound =
        describe<Text>("Text", "Element", "A piece of a paragraph that looks the same throughout.");
    bound.constructors = {make<Text>(), make<Text, std::wstring>({"text"}), make<Text, double>({"number"})};
    bound.properties = makeCharacterRows<Text>();
    bound.properties.push_back(
        {"Content", SignatureWord("char or double scalar"), false, AdaptedClassGetter<Text, getContent>::get,
         AdaptedClassSetter<Text, setContent>::set, "What it says: a text or a number."});
    return bound;
}

BoundClass describeLink() {
    BoundClass bound = describe<ExternalLink>("ExternalLink", "Text", "A text that leads somewhere.");
    bound.constructors = {make<ExternalLink>(),
                          make<ExternalLink, std::wstring, std::wstring>({"target", "text"}),
                          make<ExternalLink, Slide, std::wstring>({"slide", "text"})};
    constexpr void (ExternalLink::*kSetTarget)(const std::wstring&) = &ExternalLink::setTarget;
    bound.properties = {property<ExternalLink, &ExternalLink::getTarget, kSetTarget>(
        "Target",
        "Where it leads, such as \"https://example.org/report\" or \"mailto:team@example.org\"; empty "
        "for a slide.")};
    constexpr void (ExternalLink::*kLead)(const Slide&) = &ExternalLink::setTarget;
    bound.methods = {Method<ExternalLink, void(const Slide&)>::row<kLead>(
        "leadTo", {"slide"}, "Makes it lead to a slide of the same presentation.")};
    return bound;
}

} // namespace

std::vector<BoundClass> describeText() {
    return {describeRun(), describeLink(), describeParagraph()};
}

} // namespace vellox::ppt::hostbind
