// How slides come from layouts, and what of a template is understood.

#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"
#include "vellox/ppt/writers/Sections.h"

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"

#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

const std::string kTitle = "<p:ph type='title'/>";

/// A template with one layout, "Own".
class SlideDocumentsTest : public DeckTest {
protected:
    SlideDocumentsTest() {
        builder.addMaster("Master", shape(8, "Greatest"));
        own = &builder.addLayout("Own");
    }

    void useBuilt(const std::wstring& name = L"template.pptx") { useTemplate(builder.build(), name); }

    TemplateBuilder builder;
    Page* own;
};

TEST_F(SlideDocumentsTest, ANewSlideIsTheLayoutStripped) {
    own->attributes = " type='blank' preserve='1' userDrawn='1' matchingName='x' showMasterSp='0'";
    own->shapes = shape(7, "Title", kTitle, place(100, 200, 300, 400)) +
                  shape(9, "Date", "<p:ph type='dt'/>") + shape(10, "Text") + connectorShape(11, "c") +
                  shape(12, "Obj", "<p:ph type='obj' idx='3'/>");
    own->behindData = "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>";
    useBuilt();
    const Slide slide = deck.add(L"Own");
    ASSERT_EQ(slide.getNChildren(), 1u); // of the others no record is kept
    EXPECT_EQ(slide.getChildren()[0]->getNodeType(), NodeType::TextBoxPlaceholder);
    deck.add(L"Own");
    close();
    EXPECT_EQ(
        canonical(slideXml(1)),
        "<p:sld showMasterSp='0'><p:cSld name=''><p:spTree><p:nvGrpSpPr><p:cNvPr id='1' name=''/>"
        "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>"
        "<p:sp><p:nvSpPr><p:cNvPr id='7' name='Title'/><p:cNvSpPr/><p:nvPr><p:ph type='title'/></p:nvPr>"
        "</p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p></p:txBody></p:sp>" +
            canonical(shape(9, "Date", "<p:ph type='dt'/>")) +
            canonical(shape(12, "Obj", "<p:ph type='obj' idx='3'/>")) + "</p:spTree></p:cSld></p:sld>");
    EXPECT_EQ(slideXml(1), slideXml(2));
}

TEST_F(SlideDocumentsTest, ALayoutWithABackgroundKeepsItsShapesAndHasNoPlaceholders) {
    own->background = "<p:bg><p:bgPr><a:noFill/><a:effectLst/></p:bgPr></p:bg>";
    own->shapes = shape(2, "Title", kTitle);
    useBuilt();
    Slide slide = deck.add(L"Own");
    EXPECT_EQ(slide.getNChildren(), 0u);
    slide.add(TextBox(L"Free")); // finds the tree behind the background
    close();
    EXPECT_EQ(textsOf(shapeXml(1, "Title"), "a:t"), std::vector<std::string>{"prompt"});
    EXPECT_EQ(findAll(shapeXml(1, "Free"), "p:txBody").size(), 1u);
}

TEST_F(SlideDocumentsTest, IndentationAndMissingIdentitiesAreNotCarriedOn) {
    own->shapes = "\n  <p:sp>\n <p:nvSpPr><p:cNvSpPr/><p:nvPr><p:ph type='body' idx='1'/></p:nvPr></p:nvSpPr>"
                  "<p:spPr>\n<a:noFill/>\n</p:spPr><p:txBody><a:bodyPr/><a:p/></p:txBody></p:sp>\n";
    useBuilt();
    Slide slide = deck.add(L"Own");
    EXPECT_EQ(slide.getChildren()[0]->getName(), L"");
    slide.add(TextBox(L"Free"));
    close();
    EXPECT_EQ(slideXml(1).find('\n'), std::string::npos);
    // Of the tree, the placeholder and the box. None is the master's, from which a place would be inherited.
    EXPECT_EQ(valuesOf(slideXml(1), "p:cNvPr", "id"), (std::vector<std::string>{"1", "9", "10"}));
}

// What a layout doesn't declare, or refers to, on its own.
TEST_F(SlideDocumentsTest, PrefixesAndRelationshipsComeAlong) {
    own->xml =
        "<p:sldLayout xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main' "
        "xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main'><p:cSld name='Own'><p:spTree>"
        "<p:nvGrpSpPr/>" +
        shape(7, "Title", kTitle) + "</p:spTree></p:cSld></p:sldLayout>";
    useBuilt();
    Paragraph paragraph(L"to ");
    paragraph.append(ExternalLink(L"https://example.org/", L"there"));
    deck.add(L"Own").replace(L"Title", paragraph);
    close(); // which expects a sound deck

    own->xml.clear();
    own->shapes = "<p:pic><p:nvPicPr><p:cNvPr id='5' name='p'/><p:cNvPicPr/><p:nvPr><p:custDataLst>"
                  "<p:tags r:id='rId8'/></p:custDataLst></p:nvPr></p:nvPicPr><p:blipFill/><p:spPr/></p:pic>" +
                  shape(7, "Title", kTitle, "<a:blipFill><a:blip r:embed='rId9'/></a:blipFill>");
    own->relations = {{"rId9", "image", "../media/own.png"}, {"rId8", "tags", "../tags/tag1.xml"}};
    builder.addPart("ppt/media/own.png", "image/png", "bytes");
    builder.addPart("ppt/tags/tag1.xml", "application/xml", "<a/>");
    Parts parts = builder.build();
    // Left behind by some other program; the new slide has relationships of its own.
    parts["ppt/slides/_rels/slide1.xml.rels"] = parts.at("ppt/slideLayouts/_rels/slideLayout1.xml.rels");
    useTemplate(parts, L"second.pptx");
    deck.add(L"Own").replace(L"Title", paragraph);
    const Parts& closed = close();
    // The picture, the layout, the link.
    EXPECT_EQ(valuesOf(closed.at("ppt/slides/_rels/slide1.xml.rels"), "Relationship", "Id"),
              (std::vector<std::string>{"rId9", "rId1", "rId2"}));
}

TEST_F(SlideDocumentsTest, PartsAreFoundHoweverTheyAreSpelled) {
    const char* const rels = "ppt/slideLayouts/_rels/slideLayout1.xml.rels";
    Parts parts = withChange(getTemplateParts(), rels, "slideMasters/slideMaster1.xml",
                             "SLIDEMASTERS/slideMaster1%2Exml");
    // A number sign belongs to the name here, and would begin a fragment in a target.
    const auto rename = [&](const std::string& from, const std::string& to) {
        parts[to] = parts.at(from);
        parts.erase(from);
    };
    rename("ppt/slideLayouts/slideLayout1.xml", "ppt/slideLayouts/a#1?.xml");
    rename(rels, "ppt/slideLayouts/_rels/a%231%3F.xml.rels");
    parts =
        withChange(parts, "ppt/slideMasters/_rels/slideMaster1.xml.rels", "slideLayout1.xml", "a%231%3F.xml");
    parts = withChange(parts, "[Content_Types].xml", "slideLayout1.xml", "a%231%3F.xml");
    useTemplate(parts);
    const Slide slide = deck.add(deck.getLayoutNames(L"Vellox").at(0));
    EXPECT_EQ(slide.getSlideMasterName(), L"Vellox");
    const Parts& closed = close(); // which expects a sound deck
    EXPECT_NE(closed.at("ppt/slides/_rels/slide1.xml.rels").find("slideLayouts/a%231%3F.xml"),
              std::string::npos);
}

TEST_F(SlideDocumentsTest, MarksAndPrefixesOfNobodyStayBehind) {
    own->shapes = shape(7, "Title", kTitle, "<x:fill y:z='1'/>") +
                  "<p:sp data-uid='1'><p:nvSpPr/></p:sp><p:extLst xmlns:d='urn:d' u:v='1' d:w='2'>"
                  "<d:kept/><u:gone><d:kept/></u:gone></p:extLst>";
    useBuilt();
    deck.add(L"Own").replace(L"Title", L"text");
    close();
    EXPECT_EQ(findOne(slideXml(1), "p:extLst"), "<p:extLst d:w='2'><d:kept/></p:extLst>");
    EXPECT_EQ(findOne(shapeXml(1, "Title"), "p:spPr"), "<p:spPr/>");
    EXPECT_EQ(findAll(slideXml(1), "p:sp").size(), 1u); // a mark doesn't make a placeholder

    const Parts made = readParts(output);
    const std::wstring next = folder / L"next.pptx";
    useTemplate(withChange(withChange(made, "ppt/slides/slide1.xml", "<p:sp>", "<p:sp data-uid='1'>"),
                           "ppt/slides/slide1.xml", "<p:spPr", "<p:spPr data-uid='1'"),
                L"marked.pptx");
    output = next;
    deck = Presentation(next, folder / L"marked.pptx");
    deck.replace(L"Title", L"new");
    close();
    EXPECT_EQ(runsOf(slideXml(1)), "new");
}

TEST_F(SlideDocumentsTest, NewShapesAreNumberedBehindThePlaceholders) {
    own->shapes = shape(7, "Title", kTitle) + shape(40, "Date", "<p:ph type='dt'/>");
    useBuilt();
    Slide slide = deck.add(L"Own");
    slide.add(TextBox(L"First"));
    slide.add(TextBox());
    close();
    EXPECT_EQ(valuesOf(slideXml(1), "p:cNvPr", "id"), (std::vector<std::string>{"1", "7", "40", "8", "9"}));
    EXPECT_EQ(valuesOf(slideXml(1), "p:cNvPr", "name").back().size(), 36u); // a UUID
}

TEST_F(SlideDocumentsTest, LayoutsAreFoundByTheFirstMasterInPartOrder) {
    builder.addLayout("Blank");
    builder.addMaster("Aaa").part = "ppt/slideMasters/a.xml";
    builder.addLayout("Blank");
    useBuilt();
    EXPECT_EQ(deck.getMasterNames(), (std::vector<std::wstring>{L"Master", L"Aaa"}));
    EXPECT_EQ(deck.add(L"Blank").getSlideMasterName(), L"Aaa");
    EXPECT_EQ(deck.add(L"Blank", L"Master").getSlideMasterName(), L"Master");
    EXPECT_EQ(deck.add(L"Own").getSlideMasterName(), L"Master");
    close();
}

TEST_F(SlideDocumentsTest, SlidesOfATemplateKeepTheirPartsAndSections) {
    builder.addSlide("One", *own);
    // A chart is no node, and not to be touched.
    builder.addSlide("Two", *own,
                     shape(3, "Title", kTitle) + chartShape(50, "Chart") +
                         groupShape(51, "Group", groupShape(52, "Inner", shape(53, "Deep"))));
    builder.addSection("s", 2, 2);
    builder.addPart("ppt/slides/slide5.xml", // takes the number of a new slide
                    "application/vnd.openxmlformats-officedocument.presentationml.slide+xml",
                    "<p:sld xmlns:p='p'/>");
    useBuilt();
    Slide second = *Slide::cast(deck.find(L"Two").at(0));
    ASSERT_EQ(second.getNChildren(), 2u);
    ASSERT_EQ(deck.find(L"Deep").size(), 1u);
    EXPECT_EQ(deck.find(L"Inner").size(), 1u);
    EXPECT_NE(deck.find(L"Deep")[0]->getId().find(L":"), std::wstring::npos);
    for (int i = 0; i < 3; ++i)
        deck.add(L"Own", 0u);
    second.add(TextBox(L"Free"));
    const Parts& saved = close();
    EXPECT_EQ(saved.count("ppt/slides/slide3.xml") + saved.count("ppt/slides/slide4.xml") +
                  saved.count("ppt/slides/slide6.xml"),
              3u);
    EXPECT_EQ(valuesOf(shapeXml(2, "Chart"), "a:graphicData", "uri"), std::vector<std::string>{"chart"});
    EXPECT_EQ(textsOf(shapeXml(2, "Deep"), "a:t"), std::vector<std::string>{"prompt"});
    EXPECT_EQ(valuesOf(shapeXml(2, "Free"), "p:cNvPr", "id"),
              std::vector<std::string>{"1"}); // counted anew there
    const std::string& presentation = saved.at("ppt/presentation.xml");
    EXPECT_EQ(valuesOf(presentation, "p14:sldId", "id"),
              (std::vector<std::string>{"256", "257", "258", "260"}));
    EXPECT_EQ(findAll(presentation, "p:sldId").back(), "<p:sldId id='260' r:id='rId3'/>");
}

TEST(Sections, FollowTheSlides) {
    struct Row {
        const char* why;
        std::vector<std::wstring> formerIds;
        const char *before, *after;
        bool isListed = false; // slides 1 to 9 of the template
    };
    const auto make = [](const char* sections, bool isListed) { // "7 8|9": the ids of each section
        std::string xml = "<all xmlns:p='p' xmlns:p14='p14'>";
        for (int id = 1; isListed && id < 10; ++id)
            xml += "<p:sldId id='" + std::to_string(id) + "'/>";
        xml += "<p14:sectionLst><p14:section><p14:sldIdLst>";
        std::istringstream ids(sections);
        for (std::string id; ids >> id;)
            xml += id == "|" ? "</p14:sldIdLst></p14:section><p14:section><p14:sldIdLst>"
                             : "<p14:sldId id='" + id + "'/>";
        return xml + "</p14:sldIdLst></p14:section></p14:sectionLst></all>";
    };
    const Row rows[] = {
        {"renumbered", {L"7", L"8", L"9"}, "7 8 | 9", "256 257 | 258"},
        {"behind, between, ahead",
         {L"", L"7", L"", L"", L"8", L"9", L""},
         "7 8 | 9",
         "256 257 258 259 260 | 261 262"},
        {"gone", {L"8", L"", L"9"}, "7 8 | 9", "256 257 | 258"},
        {"named twice", {L"7", L"8"}, "7 8 | 8", "256 257 |"},
        {"in none", {L"6", L"", L"7"}, "| 7", "| 257 258"},
        {"all new", {L"", L""}, "|", "256 257 |"},
        {"in another order by the template", {L"9", L"", L"7"}, "7 | 9", "258 | 256 257"},
        {"moved ahead", {L"6", L"1", L"2", L"5"}, "1 2 | 5 6", "256 257 258 | 259", true},
        {"moved behind", {L"2", L"5", L"1"}, "1 2 | 5", "256 | 257 258", true},
        {"moved within", {L"2", L"1", L"6", L"5"}, "1 2 | 5 6", "256 257 | 258 259", true},
    };
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    for (const Row& row : rows) {
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(make(row.before, row.isListed)));
        const OwnedDocument document(
            opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
        updateSections(*document.get(), row.formerIds, 256);
        EXPECT_EQ(canonical(*document->getDocumentElement()), canonical(make(row.after, row.isListed)))
            << row.why;
    }
}

} // namespace
