// How slides come from layouts, and what of a template is understood.

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"
#include "vellox/ppt/writers/Sections.h"

#include "tests/support/DeckTest.h"

#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

const char kHead[] =
    "<p:sldLayout xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main' "
    "xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/relationships' "
    "xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main' type='blank' preserve='1' "
    "userDrawn='1' matchingName='x' showMasterSp='0'>";
const char kTreeStart[] =
    "<p:nvGrpSpPr><p:cNvPr id='1' name=''/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>";

std::string shape(int id, const std::string& name, const std::string& ph, const std::string& spPr = "",
                  const std::string& body = "<a:p><a:r><a:t>prompt</a:t></a:r></a:p>") {
    return "<p:sp><p:nvSpPr><p:cNvPr id='" + std::to_string(id) + "' name='" + name +
           "'/><p:cNvSpPr/><p:nvPr>" + ph + "</p:nvPr></p:nvSpPr><p:spPr>" + spPr +
           "</p:spPr><p:txBody><a:bodyPr/><a:lstStyle><a:lvl1pPr/></a:lstStyle>" + body +
           "</p:txBody></p:sp>";
}

std::string layout(const std::string& tree, const std::string& beforeTree = "",
                   const std::string& behind = "") {
    return kHead + std::string("<p:cSld name='Own'>") + beforeTree + "<p:spTree>" + kTreeStart + tree +
           "</p:spTree></p:cSld>" + behind + "</p:sldLayout>";
}

const char kXfrm[] = "<a:xfrm><a:off x='100' y='200'/><a:ext cx='300' cy='400'/></a:xfrm>";

class SlideDocumentsTest : public DeckTest {
protected:
    /// A template whose first layout is this one.
    void useLayout(const std::string& xml) {
        Parts parts = getTemplateParts();
        parts["ppt/slideLayouts/slideLayout1.xml"] = xml;
        useTemplate(parts);
    }
};

TEST_F(SlideDocumentsTest, ANewSlideIsTheLayoutStripped) {
    useLayout(
        layout(shape(7, "Title", "<p:ph type='title'/>", kXfrm) + shape(9, "Date", "<p:ph type='dt'/>") +
                   shape(10, "Text", "") +
                   "<p:cxnSp><p:nvCxnSpPr><p:cNvPr id='11' name='c'/><p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr>"
                   "<p:spPr/></p:cxnSp>" +
                   shape(12, "Obj", "<p:ph type='obj' idx='3'/>"),
               "", "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>"));
    const Slide slide = deck.add(L"Own");
    ASSERT_EQ(slide.getNChildren(), 1u); // of the others no record is kept
    EXPECT_EQ(slide.getChildren()[0]->getNodeType(), NodeType::TextBoxPlaceholder);
    deck.add(L"Own");
    close();
    const auto stripped = [](int id, const std::string& name, const std::string& ph) {
        return canonical(
            "<p:sp><p:nvSpPr><p:cNvPr id='" + std::to_string(id) + "' name='" + name +
            "'/><p:cNvSpPr/><p:nvPr>" + ph +
            "</p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p>"
            "</p:txBody></p:sp>");
    };
    EXPECT_EQ(canonical(slideXml(1)),
              "<p:sld showMasterSp='0'><p:cSld name=''><p:spTree><p:nvGrpSpPr><p:cNvPr id='1' name=''/>"
              "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>" +
                  stripped(7, "Title", "<p:ph type='title'/>") +
                  canonical(shape(9, "Date", "<p:ph type='dt'/>")) +
                  canonical(shape(12, "Obj", "<p:ph type='obj' idx='3'/>")) + "</p:spTree></p:cSld></p:sld>");
    EXPECT_EQ(slideXml(1), slideXml(2));
}

TEST_F(SlideDocumentsTest, ALayoutWithABackgroundKeepsItsShapesAndHasNoPlaceholders) {
    useLayout(layout(shape(2, "Title", "<p:ph type='title'/>", kXfrm),
                     "<p:bg><p:bgPr><a:noFill/><a:effectLst/></p:bgPr></p:bg>"));
    Slide slide = deck.add(L"Own");
    EXPECT_EQ(slide.getNChildren(), 0u);
    slide.add(TextBox(L"Free")); // finds the tree behind the background
    close();
    EXPECT_NE(shapeXml(1, "Title").find("prompt"), std::string::npos);
    EXPECT_NE(shapeXml(1, "Free").find("<p:txBody>"), std::string::npos);
}

TEST_F(SlideDocumentsTest, IndentationAndMissingIdentitiesAreNotCarriedOn) {
    useLayout(
        layout("\n  <p:sp>\n <p:nvSpPr><p:cNvSpPr/><p:nvPr><p:ph type='body' idx='1'/></p:nvPr></p:nvSpPr>"
               "<p:spPr>\n<a:noFill/>\n</p:spPr><p:txBody><a:bodyPr/><a:p/></p:txBody></p:sp>\n"));
    Slide slide = deck.add(L"Own");
    EXPECT_EQ(slide.getChildren()[0]->getName(), L"");
    slide.add(TextBox(L"Free"));
    close();
    EXPECT_EQ(slideXml(1).find('\n'), std::string::npos);
    const std::vector<std::string> identities = findAll(slideXml(1), "p:cNvPr");
    ASSERT_EQ(identities.size(), 3u); // of the tree, the placeholder and the box
    const auto idOf = [&](std::size_t i) { return std::stoi(identities[i].substr(13)); };
    EXPECT_GT(idOf(1), 8); // none of the master's, from which a place would be inherited
    EXPECT_EQ(idOf(2), idOf(1) + 1);
}

// What a layout or a slide of a template doesn't declare, or refers to, on its own.
TEST_F(SlideDocumentsTest, PrefixesAndRelationshipsComeAlong) {
    std::string xml = layout(shape(7, "Title", "<p:ph type='title'/>"), "", "");
    const std::string declaration =
        "xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/relationships' ";
    xml.erase(xml.find(declaration), declaration.size());
    useLayout(xml);
    Paragraph paragraph(L"to ");
    paragraph.append(ExternalLink(L"https://example.org/", L"there"));
    deck.add(L"Own").replace(L"Title", paragraph);
    close(); // which expects a sound deck

    Parts parts = getTemplateParts();
    parts["ppt/slideLayouts/slideLayout1.xml"] = layout(
        "<p:pic><p:nvPicPr><p:cNvPr id='5' name='p'/><p:cNvPicPr/><p:nvPr><p:custDataLst>"
        "<p:tags r:id='rId8'/></p:custDataLst></p:nvPr></p:nvPicPr><p:blipFill/><p:spPr/></p:pic>" +
        shape(7, "Title", "<p:ph type='title'/>", "<a:blipFill><a:blip r:embed='rId9'/></a:blipFill>"));
    std::string relationships = parts["ppt/slideLayouts/_rels/slideLayout1.xml.rels"];
    relationships.insert(
        relationships.find("</Relationships>"),
        "<Relationship Id='rId9' Type='http://schemas.openxmlformats.org/officeDocument/2006/"
        "relationships/image' Target='../media/own.png'/>"
        "<Relationship Id='rId8' Type='http://schemas.openxmlformats.org/officeDocument/2006/"
        "relationships/tags' Target='../tags/tag1.xml'/>");
    parts["ppt/slideLayouts/_rels/slideLayout1.xml.rels"] = relationships;
    parts["ppt/media/own.png"] = "bytes";
    parts["ppt/tags/tag1.xml"] = "<a/>";
    parts = withChange(parts, "[Content_Types].xml", "<Default ",
                       "<Default Extension='png' ContentType='image/png'/><Default ");
    // Left behind by some other program; the new slide has relationships of its own.
    parts["ppt/slides/_rels/slide1.xml.rels"] = relationships;
    useTemplate(parts, L"second.pptx");
    deck.add(L"Own").replace(L"Title", paragraph);
    const Parts& closed = close();
    const std::string& own = closed.at("ppt/slides/_rels/slide1.xml.rels");
    EXPECT_EQ(findAll(own, "Relationship").size(), 3u); // the picture, the layout, the link
    EXPECT_NE(own.find("Id=\"rId9\""), std::string::npos);
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
    useLayout(layout(shape(7, "Title", "<p:ph type='title'/>", "<x:fill y:z='1'/>") +
                     "<p:sp data-uid='1'><p:nvSpPr/></p:sp><p:extLst xmlns:d='urn:d' u:v='1' d:w='2'>"
                     "<d:kept/><u:gone><d:kept/></u:gone></p:extLst>"));
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
    useLayout(layout(shape(7, "Title", "<p:ph type='title'/>") + shape(40, "Date", "<p:ph type='dt'/>")));
    Slide slide = deck.add(L"Own");
    slide.add(TextBox(L"First"));
    slide.add(TextBox());
    close();
    EXPECT_NE(shapeXml(1, "First").find("<p:cNvPr id='8' name='First'/>"), std::string::npos);
    const std::string last = findAll(slideXml(1), "p:sp").back();
    const std::size_t name = last.find("<p:cNvPr id='9' name='") + 22;
    EXPECT_EQ(last.find('\'', name) - name, 36u); // a UUID
}

TEST_F(SlideDocumentsTest, LayoutsAreFoundByTheFirstMasterInPartOrder) {
    Parts parts = getTemplateParts();
    // A second master with a theme and a layout of its own names.
    const auto copy = [&](const std::string& from, const std::string& to) { parts[to] = parts.at(from); };
    copy("ppt/slideMasters/slideMaster1.xml", "ppt/slideMasters/a.xml");
    copy("ppt/theme/theme1.xml", "ppt/theme/a.xml");
    copy("ppt/slideLayouts/slideLayout7.xml", "ppt/slideLayouts/a.xml");
    std::string& master = parts["ppt/slideMasters/a.xml"];
    const std::size_t list = master.find("<p:sldLayoutIdLst>");
    master.erase(list, master.find("</p:sldLayoutIdLst>") + 19 - list);
    const std::string rel = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    const std::string open =
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>";
    parts["ppt/slideMasters/_rels/a.xml.rels"] =
        open + "<Relationship Id='rId1' Type='" + rel + "slideLayout' Target='../slideLayouts/a.xml'/>" +
        "<Relationship Id='rId2' Type='" + rel + "theme' Target='../theme/a.xml'/></Relationships>";
    parts["ppt/slideLayouts/_rels/a.xml.rels"] =
        open + "<Relationship Id='rId1' Type='" + rel +
        "slideMaster' Target='../slideMasters/a.xml'/></Relationships>";
    parts = withChange(parts, "ppt/theme/a.xml", "name=\"Vellox\"", "name=\"Aaa\"");
    parts =
        withChange(parts, "[Content_Types].xml", "</Types>",
                   "<Override PartName='/ppt/slideMasters/a.xml' ContentType='application/vnd.openxmlformats-"
                   "officedocument.presentationml.slideMaster+xml'/></Types>");
    parts = withChange(parts, "ppt/presentation.xml", "</p:sldMasterIdLst>",
                       "<p:sldMasterId id='2147484000' r:id='rId99'/></p:sldMasterIdLst>");
    parts = withChange(parts, "ppt/_rels/presentation.xml.rels", "</Relationships>",
                       "<Relationship Id='rId99' Type='" + rel +
                           "slideMaster' Target='slideMasters/a.xml'/>"
                           "</Relationships>");
    useTemplate(parts);
    EXPECT_EQ(deck.getMasterNames(), (std::vector<std::wstring>{L"Vellox", L"Aaa"}));
    EXPECT_EQ(deck.add(L"Blank").getSlideMasterName(), L"Aaa");
    EXPECT_EQ(deck.add(L"Blank", L"Vellox").getSlideMasterName(), L"Vellox");
    EXPECT_EQ(deck.add(L"Title Slide").getSlideMasterName(), L"Vellox");
    close();
}

TEST_F(SlideDocumentsTest, SlidesOfATemplateKeepTheirPartsAndSections) {
    deck.add(L"Title Only").setName(L"One");
    deck.add(L"Blank").setName(L"Two");
    close();
    Parts parts = readParts(output);
    parts =
        withChange(parts, "ppt/presentation.xml", "</p:presentation>",
                   "<p:extLst><p:ext uri='{521415D9-36F7-43E2-AB2F-B90AF26B5E84}'><p14:sectionLst xmlns:p14='"
                   "http://schemas.microsoft.com/office/powerpoint/2010/main'><p14:section name='s' id='{}'>"
                   "<p14:sldIdLst><p14:sldId id='257'/></p14:sldIdLst></p14:section></p14:sectionLst></p:ext>"
                   "</p:extLst></p:presentation>");
    // A chart would be such a frame: no node, and not to be touched.
    parts = withChange(
        parts, "ppt/slides/slide2.xml", "</p:spTree>",
        "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='50' name='Chart'/><p:cNvGraphicFramePr/>"
        "<p:nvPr/></p:nvGraphicFramePr><p:xfrm><a:off x='0' y='0'/><a:ext cx='1' cy='1'/></p:xfrm>"
        "<a:graphic><a:graphicData uri='chart'/></a:graphic></p:graphicFrame>"
        "<p:grpSp><p:nvGrpSpPr><p:cNvPr id='51' name='Group'/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
        "<p:grpSpPr/><p:grpSp><p:nvGrpSpPr><p:cNvPr id='52' name='Inner'/><p:cNvGrpSpPr/><p:nvPr/>"
        "</p:nvGrpSpPr><p:grpSpPr/>" +
            shape(53, "Deep", "") + "</p:grpSp></p:grpSp></p:spTree>");
    parts["ppt/slides/slide5.xml"] = parts.at("ppt/slides/slide2.xml"); // takes the number of a new slide
    parts =
        withChange(parts, "[Content_Types].xml", "</Types>",
                   "<Override PartName='/ppt/slides/slide5.xml' ContentType='application/vnd.openxmlformats-"
                   "officedocument.presentationml.slide+xml'/></Types>");
    output = folder / L"next.pptx";
    useTemplate(parts);
    Slide second = *Slide::cast(deck.find(L"Two").at(0));
    ASSERT_EQ(second.getNChildren(), 1u);
    ASSERT_EQ(deck.find(L"Deep").size(), 1u);
    EXPECT_EQ(deck.find(L"Inner").size(), 1u);
    EXPECT_NE(deck.find(L"Deep")[0]->getId().find(L":"), std::wstring::npos);
    for (int i = 0; i < 3; ++i)
        deck.add(L"Blank", 0u);
    second.add(TextBox(L"Free"));
    const Parts& saved = close();
    EXPECT_EQ(saved.count("ppt/slides/slide3.xml") + saved.count("ppt/slides/slide4.xml") +
                  saved.count("ppt/slides/slide6.xml"),
              3u);
    EXPECT_NE(shapeXml(2, "Chart").find("uri='chart'"), std::string::npos);
    EXPECT_NE(shapeXml(2, "Deep").find("prompt"), std::string::npos);
    EXPECT_NE(shapeXml(2, "Free").find("<p:cNvPr id='1' "),
              std::string::npos); // counted from the start there
    EXPECT_EQ(
        findOne(saved.at("ppt/presentation.xml"), "p14:sldIdLst"),
        "<p14:sldIdLst><p14:sldId id='256'/><p14:sldId id='257'/><p14:sldId id='258'/><p14:sldId id='260'/>"
        "</p14:sldIdLst>");
    EXPECT_EQ(findAll(saved.at("ppt/presentation.xml"), "p:sldId").back(), "<p:sldId id='260' r:id='rId7'/>");
}

TEST(Sections, FollowTheSlides) {
    struct Row {
        const char* why;
        std::vector<std::wstring> formerIds;
        const char *before, *after;
    };
    const auto make = [](const char* sections) { // "7 8|9": the ids of each section
        std::string xml = "<p14:sectionLst xmlns:p14='p14'><p14:section><p14:sldIdLst>";
        std::istringstream ids(sections);
        for (std::string id; ids >> id;)
            xml += id == "|" ? "</p14:sldIdLst></p14:section><p14:section><p14:sldIdLst>"
                             : "<p14:sldId id='" + id + "'/>";
        return xml + "</p14:sldIdLst></p14:section></p14:sectionLst>";
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
        {"in another order", {L"9", L"", L"7"}, "7 | 9", "258 | 256 257"},
    };
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    for (const Row& row : rows) {
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(make(row.before)));
        const OwnedDocument document(
            opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
        updateSections(*document.get(), row.formerIds, 256);
        EXPECT_EQ(canonical(*document.get()), canonical(make(row.after))) << row.why;
    }
}

TEST(PresentationModel, ClassifiesShapes) {
    const auto ph = [](const std::string& attributes) {
        return "<p:sp><p:nvSpPr><p:nvPr><p:ph " + attributes + "/></p:nvPr></p:nvSpPr></p:sp>";
    };
    const std::pair<std::string, NodeType> rows[] = {
        {ph(""), NodeType::ContentPlaceholder},
        {ph("type=''"), NodeType::ContentPlaceholder},
        {ph("type='obj'"), NodeType::None}, // written out it isn't the same
        {ph("type='body'"), NodeType::BodyPlaceholder},
        {ph("type='pic'"), NodeType::PicturePlaceholder},
        {ph("type='clipArt'"), NodeType::PicturePlaceholder},
        {ph("type='tbl'"), NodeType::TablePlaceholder},
        {ph("type='ctrTitle'"), NodeType::TextBoxPlaceholder},
        {ph("type='subTitle'"), NodeType::TextBoxPlaceholder},
        {ph("type='Title'"), NodeType::None},
        {ph("type='sldNum'"), NodeType::None},
        {"<p:sp/>", NodeType::TextBox},
        {"<p:pic/>", NodeType::Picture},
        {"<p:grpSp/>", NodeType::Group},
        {"<p:graphicFrame/>", NodeType::None},
        {"<p:graphicFrame><a:graphic><a:graphicData><a:tbl/></a:graphicData></a:graphic></p:graphicFrame>",
         NodeType::Table},
        {"<p:cxnSp/>", NodeType::None},
        {"<sp/>", NodeType::None},
    };
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    for (const auto& row : rows) {
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(row.first));
        const OwnedDocument document(
            opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
        EXPECT_EQ(PresentationModel::classify(document->getDocumentElement()), row.second) << row.first;
    }
    EXPECT_EQ(PresentationModel::classify(nullptr), NodeType::None);
}

} // namespace
