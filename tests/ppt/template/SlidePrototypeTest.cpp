// What is read of shapes, and what the rules can make of a layout.

#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/rules/ClassicRules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlideDocument.h"

#include "tests/support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <sstream>

using namespace vellox::ppt;
using vellox::test::canonical;

namespace {

OwnedDocument parse(const std::string& xml) {
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(xml));
    return OwnedDocument(opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
}

std::string write(SlideDocument& slide) {
    opc::MarkupBuffer text;
    slide.writeTo(text);
    return canonical(*parse(std::string(text.get()))->getDocumentElement());
}

TEST(ShapeReader, FactsOfShapes) {
    const OwnedDocument placeholder(
        parse("<p:sp><p:nvSpPr><p:cNvPr id='4' name='Box'/><p:nvPr><p:ph type='pic' idx='7'/></p:nvPr>"
              "</p:nvSpPr><p:txBody/></p:sp>"));
    const ShapeFacts facts = readFacts(*placeholder->getDocumentElement(), true);
    EXPECT_EQ(facts.element, ShapeElement::Shape);
    EXPECT_EQ(facts.id + L"|" + facts.name, L"4|Box");
    EXPECT_EQ(facts.placeholderType + L"|" + facts.placeholderIndex, L"pic|7");
    EXPECT_TRUE(facts.isPlaceholder && facts.hasTextBody && facts.isInGroup);
    EXPECT_FALSE(facts.hasTable);
    const std::pair<const char*, NodeType> rows[] = {
        {"<p:sp/>", NodeType::TextBox},
        {"<p:sp><p:nvSpPr><p:nvPr><p:ph/></p:nvPr></p:nvSpPr></p:sp>", NodeType::ContentPlaceholder},
        {"<p:sp><p:nvPicPr><p:nvPr><p:ph type='pic'/></p:nvPr></p:nvPicPr></p:sp>", NodeType::TextBox},
        {"<p:pic/>", NodeType::Picture},
        {"<p:grpSp/>", NodeType::Group},
        {"<p:graphicFrame/>", NodeType::None},
        {"<p:graphicFrame><a:graphic><a:graphicData><a:tbl/></a:graphicData></a:graphic></p:graphicFrame>",
         NodeType::Table},
        {"<p:graphicFrame><a:graphic><a:tbl/></a:graphic></p:graphicFrame>", NodeType::None},
        {"<p:cxnSp/>", NodeType::None},
        {"<sp/>", NodeType::None},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ClassicRules().classify(readFacts(*parse(row.first)->getDocumentElement())), row.second)
            << row.first;
}

TEST(ShapeReader, PlacesAsTheyAreWritten) {
    struct Row {
        const char* xml;
        const wchar_t* place; // "-" for none; with "!" if it is whole
    };
    const Row rows[] = {
        {"<p:sp/>", L"-"},
        {"<p:sp><p:spPr><a:xfrm/></p:spPr></p:sp>", L",,,"},
        {"<p:sp><p:spPr><a:xfrm><a:off x='1in'/></a:xfrm></p:spPr></p:sp>", L"1in,,,"},
        {"<p:sp><p:spPr><a:xfrm><a:off x='1' y='2'/><a:ext cx='3'/></a:xfrm></p:spPr></p:sp>", L"1,2,3,!"},
        {"<p:graphicFrame><p:xfrm><a:off/><a:ext cx='3' cy='4'/></p:xfrm></p:graphicFrame>", L",,3,4!"},
        {"<p:sp><p:xfrm><a:off/><a:ext/></p:xfrm></p:sp>", L"-"},
    };
    for (const Row& row : rows) {
        const Place place = readPlace(*parse(row.xml)->getDocumentElement());
        EXPECT_EQ(place ? place->x + L"," + place->y + L"," + place->cx + L"," + place->cy +
                              (place->isWhole ? L"!" : L"")
                        : L"-",
                  row.place)
            << row.xml;
    }
}

/// Rules by which a slide takes the one thing that the classic ones leave, and leaves the others.
class OtherRules : public ClassicRules {
public:
    TreePath findsTree() const override { return TreePath::ByName; }
    bool takes(Inherited what) const override { return !ClassicRules::takes(what); }
};

std::string makeSlide(const Rules& rules) {
    TemplateSlide slide;
    slide.layout = boost::make_shared<TemplateLayout>();
    slide.layout->document =
        parse("<p:sldLayout showMasterSp='0' type='x'><p:cSld name='n'><p:bg/><p:spTree><p:grpSpPr/><p:pic/>"
              "<p:sp data-uid='7'><p:spPr><a:xfrm/></p:spPr><p:txBody><a:p/></p:txBody></p:sp></p:spTree>"
              "<p:custDataLst/></p:cSld><p:clrMapOvr/><p:timing/></p:sldLayout>");
    const xercesc::DOMElement* shape = findFirstShape(slide.layout->document.get(), rules.findsTree());
    for (; shape; shape = shape->getNextElementSibling()) {
        const ShapeFacts facts = readFacts(*shape);
        slide.layout->fates.push_back(facts.element == ShapeElement::Shape ? Fate::Empty
                                                                           : rules.fateOf(facts));
    }
    SlideDocument document(slide, rules);
    EXPECT_FALSE(slide.layout->document); // has done its duty
    return write(document);
}

TEST(SlidePrototype, RulesSayWhatALayoutGivesASlide) {
    EXPECT_EQ(makeSlide(ClassicRules()),
              "<p:sld showMasterSp='0'><p:cSld><p:bg/><p:spTree><p:grpSpPr/><p:pic/><p:sp><p:spPr><a:xfrm/>"
              "</p:spPr><p:txBody><a:p/></p:txBody></p:sp></p:spTree><p:custDataLst/></p:cSld></p:sld>");
    EXPECT_EQ(
        makeSlide(OtherRules()),
        "<p:sld><p:cSld><p:spTree><p:grpSpPr/><p:sp><p:spPr/><p:txBody><a:p><a:endParaRPr/></a:p></p:txBody>"
        "</p:sp></p:spTree></p:cSld><p:clrMapOvr/></p:sld>");
}

// What stands in a slide's text, or instead of one, and what nobody touches.
std::string fillSlide(const std::string& kept) {
    TemplateSlide slide;
    slide.layout = boost::make_shared<TemplateLayout>();
    const std::string box = "'><p:txBody><a:bodyPr/></p:txBody></p:sp>";
    slide.layout->document = parse("<p:sldLayout><p:cSld><p:spTree><p:grpSpPr/><p:sp data-uid='1" + box +
                                   "<p:sp data-uid='2" + box + "<p:sp data-uid='3" + box + kept +
                                   "<p:sp data-uid='4" + box + "</p:spTree></p:cSld></p:sldLayout>");
    slide.layout->fates.assign(16, Fate::Keep);
    SlideDocument document(slide, ClassicRules());
    document.setName(L"<&\"");
    const bool isInPieces = document.takesText(L"1");
    if (isInPieces)
        document.getText(L"1").append("<a:p><a:r/></a:p>");
    else
        document.getContent(findChild(document.findElement(L"1"), u"p:txBody")).append("<a:p><a:r/></a:p>");
    document.hide(L"2");
    EXPECT_FALSE(document.takesText(L"2"));
    EXPECT_FALSE(document.findElement(L"2"));
    document.showHidden();
    document.findElement(L"2")->setAttribute(u"x", u"1");
    EXPECT_FALSE(document.takesText(L"2"));
    xercesc::DOMElement* former = document.findElement(L"3");
    former->getParentNode()->replaceChild(document.createElement(u"p:pic"), former);
    document.appendShape(document.createElement(u"p:cxnSp"));
    return (isInPieces ? "pieces: " : "nodes: ") + write(document);
}

TEST(SlideDocument, PiecesAndNodesComeToTheSame) {
    const std::string shapes = "<p:sld><p:cSld name='<&\"'><p:spTree><p:grpSpPr/>"
                               "<p:sp><p:txBody><a:bodyPr/><a:p><a:r/></a:p></p:txBody></p:sp>"
                               "<p:sp x='1'><p:txBody><a:bodyPr/><a:p><a:endParaRPr/></a:p></p:txBody></p:sp>"
                               "<p:pic/>";
    const std::string end =
        "<p:sp><p:txBody><a:bodyPr/><a:p><a:endParaRPr/></a:p></p:txBody></p:sp><p:cxnSp/>"
        "</p:spTree></p:cSld></p:sld>";
    EXPECT_EQ(fillSlide("<p:pic/>"), "pieces: " + shapes + "<p:pic/>" + end);
    EXPECT_EQ(fillSlide("<?vellox-cut?>").substr(0, 7), "nodes: ");
    // No plain document, which has the name of a mark in it, too: it is written by the base class.
    EXPECT_EQ(fillSlide("<p:pic><x><![CDATA[content]]></x></p:pic>"),
              "nodes: " + shapes + "<p:pic><x/></p:pic>" + end);
}

TEST(SlideDocument, MarksLeadToElements) {
    SlideDocument document(parse("<p:sld><p:cSld><p:spTree><p:sp data-uid='1'/><p:sp data-uid='2'/>"
                                 "</p:spTree></p:cSld></p:sld>"),
                           11);
    EXPECT_EQ(document.takeShapeId(), 11u);
    EXPECT_EQ(document.takeShapeId(), 12u);
    xercesc::DOMElement* second = document.findElement(L"2");
    ASSERT_TRUE(second);
    EXPECT_FALSE(document.findElement(L"3"));
    document.hide(L"2");
    EXPECT_FALSE(document.findElement(L"2"));
    document.showHidden();
    EXPECT_EQ(document.findElement(L"2"), second);
    document.setName(L"Name");
    document.appendShape(document.createElement(u"p:pic"));
    EXPECT_EQ(write(document),
              "<p:sld><p:cSld name='Name'><p:spTree><p:sp/><p:sp/><p:pic/></p:spTree></p:cSld></p:sld>");
}

} // namespace
