// Slides as a whole: copied, moved, removed, hidden, and with notes.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

const char* const kChartXml =
    "<c:chartSpace xmlns:c='http://schemas.openxmlformats.org/drawingml/2006/chart' "
    "xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/relationships'>"
    "<c:chart><c:plotArea/></c:chart><c:externalData r:id='rId1'/></c:chartSpace>";

std::string link(const char* id) {
    return std::string("<a:hlinkClick r:id='") + id + "' action='ppaction://hlinksldjump'/>";
}

std::string linkingShape(int id, const std::string& name, const std::string& links) {
    std::string xml = shape(id, name, "", "", name);
    const std::size_t at = xml.find("<a:r>") + 5;
    return xml.insert(at, "<a:rPr>" + links + "</a:rPr>");
}

std::string notesXml(const std::string& text) {
    return "<p:notes xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main' "
           "xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main'><p:cSld><p:spTree>"
           "<p:nvGrpSpPr><p:cNvPr id='1' name=''/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>" +
           shape(2, "Notes", "<p:ph type='body' idx='1'/>", "", text) + "</p:spTree></p:cSld></p:notes>";
}

/// Two slides that link to each other and to themselves; the first has a chart with its workbook, a picture, notes.
class SlidesTest : public DeckTest {
protected:
    SlidesTest() {
        builder.addMaster("Theme", shape(2, "Title", "<p:ph type='title'/>"));
        layout = &builder.addLayout("Own", shape(2, "Title", "<p:ph type='title'/>"));
        Page& first = builder.addSlide(
            "First", *layout,
            shape(2, "Title", "<p:ph type='title'/>", "", "Proto") + linkingShape(3, "Links", link("rId7")) +
                linkingShape(4, "Self", link("rId8")) + pictureShape(5, "Photo", "rId9", place(0, 0, 9, 9)));
        first.behindData =
            "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr><p:transition><p:fade/></p:transition>";
        first.relations = {{"rId7", "slide", "slide2.xml"},
                           {"rId8", "slide", "slide1.xml"},
                           {"rId9", "image", "../media/image1.png"},
                           {"rId10", "chart", "../charts/chart1.xml"},
                           {"rId11", "notesSlide", "../notesSlides/notesSlide1.xml"},
                           {"rId12", "comments", "../comments/comment1.xml"}};
        Page& second = builder.addSlide("Second", *layout, linkingShape(2, "Back", link("rId7")));
        second.relations = {{"rId7", "slide", "slide1.xml"}};
        builder.addPart("ppt/media/image1.png", "image/png", makePng(2, 2));
        builder.addPart("ppt/charts/chart1.xml",
                        "application/vnd.openxmlformats-officedocument.drawingml.chart+xml", kChartXml,
                        {{"rId1", "package", "../embeddings/Sheet1.xlsx"}});
        builder.addPart("ppt/embeddings/Sheet1.xlsx",
                        "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet", "workbook");
        builder.addPart("ppt/notesSlides/notesSlide1.xml",
                        "application/vnd.openxmlformats-officedocument.presentationml.notesSlide+xml",
                        notesXml("Say it"), {{"rId1", "slide", "../slides/slide1.xml"}});
        builder.addPart("ppt/comments/comment1.xml",
                        "application/vnd.openxmlformats-officedocument.presentationml.comments+xml",
                        "<p:cmLst/>");
        builder.addSection("All", 1, 2);
        builder.addToPresentation(
            "<p:custShowLst><p:custShow name='Show' id='0'><p:sldLst><p:sld r:id='rId90'/>"
            "<p:sld r:id='rId91'/></p:sldLst></p:custShow></p:custShowLst>",
            {{"rId90", "slide", "slides/slide1.xml"}, {"rId91", "slide", "slides/slide2.xml"}});
        useTemplate(builder.build());
        deck.open();
    }
    Slide slide(std::size_t i) { return *Slide::cast(deck.getChildren().at(i)); }
    /// The target of a relationship of an entry; "-" if it has none of the id.
    std::string target(const std::string& part, const std::string& id) {
        const std::size_t slash = part.rfind('/');
        const std::string rels = part.substr(0, slash) + "/_rels" + part.substr(slash) + ".rels";
        const auto found = parts().find(rels);
        if (found == parts().end())
            return "-";
        const Texts ids = valuesOf(found->second, "Relationship", "Id");
        const Texts targets = valuesOf(found->second, "Relationship", "Target");
        for (std::size_t i = 0; i < ids.size(); ++i)
            if (ids[i] == id)
                return targets[i];
        return "-";
    }
    const Parts& parts() {
        if (parts_.empty()) {
            EXPECT_TRUE(deck.close());
            parts_ = readParts(output);
        }
        return parts_;
    }

    TemplateBuilder builder;
    Page* layout = nullptr;

private:
    Parts parts_;
};

TEST_F(SlidesTest, ACopyHasPartsOfItsOwnAndSharesTheRest) {
    slide(0).replace(L"Title", L"Original");
    Slide copy = deck.copy(slide(0));
    copy.replace(L"Title", L"Copied");
    slide(0).replace(L"Title", L"Later");
    const std::string part = "ppt/slides/slide3.xml";
    EXPECT_EQ(textsOf(parts().at(part), "a:t"), (Texts{"Copied", "Links", "Self"}));
    EXPECT_EQ(textsOf(parts().at("ppt/slides/slide1.xml"), "a:t").front(), "Later");
    EXPECT_EQ(findAll(parts().at(part), "p:transition").size(), 1u);
    EXPECT_EQ(target(part, "rId7"), "slide2.xml");
    EXPECT_EQ(target(part, "rId8"), "slide3.xml") << "a link to the slide itself";
    EXPECT_EQ(target(part, "rId9"), "../media/image1.png");
    EXPECT_EQ(target(part, "rId10"), "../charts/chart2.xml");
    EXPECT_EQ(target("ppt/charts/chart2.xml", "rId1"), "../embeddings/Sheet2.xlsx");
    EXPECT_EQ(parts().at("ppt/embeddings/Sheet2.xlsx"), "workbook");
    EXPECT_EQ(target(part, "rId11"), "../notesSlides/notesSlide2.xml");
    EXPECT_EQ(target("ppt/notesSlides/notesSlide2.xml", "rId1"), "../slides/slide3.xml");
    EXPECT_EQ(target(part, "rId12"), "-") << "comments stay with the original";
    EXPECT_EQ(valuesOf(parts().at("ppt/presentation.xml"), "p14:sldId", "id"), (Texts{"256", "257", "258"}));
}

TEST_F(SlidesTest, WhatBelongsToARemovedSlideGoesWithIt) {
    Slide former = slide(0);
    deck.remove(former);
    EXPECT_EQ(errorOf([&] { deck.remove(former); }), "ppt_error:slideNotInPresentation");
    EXPECT_EQ(errorOf([&] { deck.move(former, 0); }), "ppt_error:slideNotInPresentation");
    EXPECT_EQ(errorOf([&] { deck.copy(former); }), "ppt_error:slideNotInPresentation");
    for (const char* gone :
         {"ppt/slides/slide1.xml", "ppt/slides/_rels/slide1.xml.rels", "ppt/charts/chart1.xml",
          "ppt/embeddings/Sheet1.xlsx", "ppt/notesSlides/notesSlide1.xml", "ppt/media/image1.png",
          "ppt/comments/comment1.xml"})
        EXPECT_EQ(parts().count(gone), 0u) << gone;
    EXPECT_EQ(parts().at("[Content_Types].xml").find("slide1.xml"), std::string::npos);
    EXPECT_EQ(target("ppt/slides/slide2.xml", "rId7"), "-");
    EXPECT_TRUE(findAll(parts().at("ppt/slides/slide2.xml"), "a:hlinkClick").empty());
    const std::string& presentation = parts().at("ppt/presentation.xml");
    EXPECT_EQ(valuesOf(presentation, "p:sld", "r:id"), Texts{"rId91"}) << "in the custom show";
    EXPECT_EQ(findAll(presentation, "p14:sldId").size(), 1u);
    EXPECT_EQ(findAll(presentation, "p:sldId").size(), 1u);
}

TEST_F(SlidesTest, CopiesOutliveTheSamplesThatTheyWereMadeOf) {
    for (const wchar_t* name : {L"One", L"Two"})
        deck.copy(slide(0)).setName(name);
    deck.copy(deck.copy(*Slide::cast(deck.getChildren()[2]), 0)).setName(L"Three");
    deck.clear();
    ASSERT_EQ(deck.getNChildren(), 4u);
    deck.move(slide(0), 9);
    EXPECT_EQ(slide(3).getName(), L"One");
    EXPECT_EQ(parts().count("ppt/slides/slide1.xml"), 0u);
    EXPECT_EQ(parts().count("ppt/media/image1.png"), 1u);
    EXPECT_EQ(textsOf(parts().at("ppt/slides/slide3.xml"), "a:t"), (Texts{"Proto", "Links", "Self"}));
    EXPECT_EQ(target("ppt/slides/slide3.xml", "rId7"), "-") << "to a sample";
    EXPECT_EQ(target("ppt/slides/slide3.xml", "rId8"), "slide3.xml");
}

TEST_F(SlidesTest, CopiesOfNewSlidesHaveTheirShapes) {
    Slide original = deck.add(L"Own");
    original.replace(L"Title", L"New");
    Table table(2u);
    TableRow row;
    row.append(TableEntry(L"cell"));
    row.append(TableEntry(L"other"));
    table.append(row);
    original.add(table);
    const std::string png = makePng(1, 1);
    Picture picture(std::vector<unsigned char>(png.begin(), png.end()));
    picture.setLink(original);
    original.add(picture);
    Paragraph line;
    line.append(ExternalLink(original, L"self"));
    line.append(ExternalLink(deck.add(L"Own"), L"third"));
    original.add(L"Title", line);
    Slide copy = deck.copy(original);
    copy.add(L"Title", L"more");
    const auto targets = [&](const char* slide) {
        Texts names;
        for (const std::string& id : valuesOf(parts().at(slide), "a:hlinkClick", "r:id"))
            names.push_back(target(slide, id));
        return names;
    };
    EXPECT_EQ(targets("ppt/slides/slide3.xml"), (Texts{"slide3.xml", "slide4.xml", "slide3.xml"}));
    EXPECT_EQ(targets("ppt/slides/slide5.xml"), (Texts{"slide5.xml", "slide4.xml", "slide5.xml"}))
        << "what led to itself does so";
    EXPECT_EQ(textsOf(parts().at("ppt/slides/slide5.xml"), "a:t"),
              (Texts{"New", "self", "third", "more", "cell", "other"}));
    EXPECT_EQ(textsOf(parts().at("ppt/slides/slide3.xml"), "a:t"),
              (Texts{"New", "self", "third", "cell", "other"}));
}

TEST_F(SlidesTest, NotesAreReadChangedAndMade) {
    EXPECT_EQ(slide(0).getNotes(), L"Say it");
    EXPECT_EQ(slide(1).getNotes(), L"");
    Slide copy = deck.copy(slide(0));
    copy.setNotes(L"Say that\nand that");
    EXPECT_EQ(copy.getNotes(), L"Say that\nand that");
    EXPECT_EQ(slide(0).getNotes(), L"Say it");
    deck.copy(slide(0));
    slide(0).setNotes(L"Of this alone");
    Slide added = deck.add(L"Own");
    added.setNotes(L"All new");
    EXPECT_EQ(textsOf(parts().at("ppt/notesSlides/notesSlide1.xml"), "a:t"), Texts{"Of this alone"});
    EXPECT_EQ(textsOf(parts().at("ppt/notesSlides/notesSlide2.xml"), "a:t"), (Texts{"Say that", "and that"}));
    EXPECT_EQ(textsOf(parts().at("ppt/notesSlides/notesSlide3.xml"), "a:t"), Texts{"Say it"});
    EXPECT_EQ(textsOf(parts().at("ppt/notesSlides/notesSlide4.xml"), "a:t"), Texts{"All new"});
    EXPECT_EQ(target("ppt/notesSlides/notesSlide4.xml", "rId1"), "../notesMasters/notesMaster1.xml");
    EXPECT_EQ(target("ppt/notesMasters/notesMaster1.xml", "rId1"), "../theme/theme2.xml");
    EXPECT_EQ(findAll(parts().at("ppt/presentation.xml"), "p:notesMasterId").size(), 1u);
}

TEST_F(SlidesTest, SlidesAreHiddenAndShown) {
    slide(1).setHidden(true);
    Slide added = deck.add(L"Own");
    added.setHidden(true);
    deck.copy(slide(1)).setHidden(false);
    const auto show = [&](const char* part) { return valuesOf(parts().at(part), "p:sld", "show").front(); };
    EXPECT_EQ(show("ppt/slides/slide1.xml"), "");
    EXPECT_EQ(show("ppt/slides/slide2.xml"), "0");
    EXPECT_EQ(show("ppt/slides/slide3.xml"), "0");
    EXPECT_EQ(show("ppt/slides/slide4.xml"), "");
}

} // namespace
