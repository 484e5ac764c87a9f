#include "vellox/ppt/xml/PropertyElement.h"

#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/Dom.h"
#include "vellox/ppt/xml/XmlNames.h"

#include "tests/support/Xml.h"

#include <boost/functional/hash.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

using namespace vellox::ppt;

namespace {

using Filling = std::function<void(PropertyElement&)>;

PropertyElement make(const Filling& filling) {
    PropertyElement element(xml::kARPr);
    filling(element);
    return element;
}

const Filling kReference = [](PropertyElement& e) {
    e.setAttribute(xml::kB, xml::kTrue);
    e.setAttribute(xml::kSz, u"1200");
    e.addChild(xml::kASolidFill).addChild(xml::kASrgbClr).setAttribute(xml::kVal, L"FF0000");
    e.addChild(xml::kALatin).setAttribute(xml::kTypeface, L"Arial");
};

// What is equal is written to the same bytes, and only that: a fragment kept for one would else be used for the
// other.
TEST(PropertyElementTest, IsEqualToWhatIsWrittenAlike) {
    const PropertyElement reference = make(kReference);
    const Filling alike[] = {
        kReference,
        // attributes in another order, and one that is set twice
        [](PropertyElement& e) {
            e.setAttribute(xml::kSz, u"900");
            e.setAttribute(xml::kSz, std::wstring(L"1200"));
            e.setAttribute(u"b", u"1");
            e.addChild(xml::kASolidFill).addChild(xml::kASrgbClr).setAttribute(xml::kVal, u"FF0000");
            e.addChild(xml::kALatin).setAttribute(xml::kTypeface, L"Arial");
        },
        // a child in the place of another of its name
        [](PropertyElement& e) {
            e.addChild(xml::kASolidFill).setAttribute(xml::kVal, u"no");
            e.addChild(xml::kALatin).setAttribute(xml::kTypeface, L"Arial");
            e.putChild(xml::kASolidFill).addChild(xml::kASrgbClr).setAttribute(xml::kVal, u"FF0000");
            e.setAttribute(xml::kB, xml::kTrue);
            e.setAttribute(xml::kSz, u"1200");
        },
    };
    for (const Filling& filling : alike) {
        const PropertyElement element = make(filling);
        EXPECT_EQ(element, reference);
        EXPECT_EQ(boost::hash<PropertyElement>()(element), boost::hash<PropertyElement>()(reference));
    }
    const Filling different[] = {
        [](PropertyElement&) {},
        [](PropertyElement& e) { kReference(e), e.setAttribute(xml::kB, xml::kFalse); },
        [](PropertyElement& e) { kReference(e), e.setAttribute(xml::kI, u""); },
        [](PropertyElement& e) { kReference(e), e.addChild(xml::kACs); },
        [](PropertyElement& e) { kReference(e), e.putChild(xml::kALatin); },
        [](PropertyElement& e) { // the order of children
            e.setAttribute(xml::kB, xml::kTrue);
            e.setAttribute(xml::kSz, u"1200");
            e.addChild(xml::kALatin).setAttribute(xml::kTypeface, L"Arial");
            e.addChild(xml::kASolidFill).addChild(xml::kASrgbClr).setAttribute(xml::kVal, u"FF0000");
        },
    };
    for (const Filling& filling : different)
        EXPECT_NE(make(filling), reference);
    EXPECT_NE(PropertyElement(xml::kARPr), PropertyElement(xml::kAPPr));
}

TEST(PropertyElementTest, FillsAnElementThatIsThere) {
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(
        boost::make_shared<std::istringstream>("<a><a:rPr b='0' i='1'><a:latin/><a:cs/></a:rPr></a>"));
    const OwnedDocument document(
        opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
    xercesc::DOMElement* root = document->getDocumentElement();
    const PropertyElement properties = make(kReference);
    properties.applyTo(findChild(root, xml::kARPr));
    properties.appendTo(root);
    EXPECT_EQ(vellox::test::canonical(*root),
              "<a><a:rPr b='1' i='1' sz='1200'><a:latin typeface='Arial'/><a:cs/>"
              "<a:solidFill><a:srgbClr val='FF0000'/></a:solidFill></a:rPr>"
              "<a:rPr b='1' sz='1200'><a:solidFill><a:srgbClr val='FF0000'/></a:solidFill>"
              "<a:latin typeface='Arial'/></a:rPr></a>");
}

// Attributes each for itself, children by name, and one fill.
TEST(PropertyElementTest, LiesOverAnother) {
    const auto lay = [](const Filling& own) {
        PropertyElement element = make(own);
        element.layOver(make(kReference));
        opc::MarkupBuffer out;
        element.writeTo(out);
        return std::string(out.get());
    };
    EXPECT_EQ(lay([](PropertyElement&) {}),
              R"(<a:rPr b="1" sz="1200"><a:solidFill><a:srgbClr val="FF0000"/></a:solidFill>)"
              R"(<a:latin typeface="Arial"/></a:rPr>)");
    EXPECT_EQ(lay([](PropertyElement& e) {
                  e.setAttribute(xml::kSz, u"900");
                  e.addChild(xml::kANoFill);
              }),
              R"(<a:rPr b="1" sz="900"><a:latin typeface="Arial"/><a:noFill/></a:rPr>)");
}

} // namespace
