// Date, footer and slide number, and links to slides of the deck.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/TextBox.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

std::string field(int id, const std::string& name, const std::string& ph, const std::string& type,
                  const std::string& text) {
    std::string xml = shape(id, name, ph, place(1, 2, 3, 4), text);
    if (type.empty())
        return xml;
    xml.replace(xml.find("<a:r>"), 5,
                "<a:fld id='{B6F15528-21DE-4FAA-801E-634DDDAF4B2B}' type='" + type + "'>");
    return xml.replace(xml.find("</a:r>"), 6, "</a:fld>");
}

/// A layout with all three, and one with none.
class PageFieldsTest : public DeckTest {
protected:
    PageFieldsTest() {
        builder.addMaster("Theme");
        builder.addLayout(
            "All", shape(2, "Title", "<p:ph type='title'/>") +
                       field(3, "Date", "<p:ph type='dt' sz='half' idx='10'/>", "datetime1", "5/1/2019") +
                       field(4, "Footer", "<p:ph type='ftr' sz='quarter' idx='11'/>", "", "Old Co") +
                       field(5, "Number", "<p:ph type='sldNum' idx='12'/>", "slidenum", "7"));
        builder.addLayout("None", shape(2, "Title", "<p:ph type='title'/>"));
    }
    void open(const wchar_t* profile) {
        useTemplate(builder.build());
        deck.setProfile(profile);
        deck.open();
    }
    /// What of them is on a slide: "dt:text", and "dt[type]:text" for what is brought up to date.
    Texts fieldsOf(unsigned number) {
        Texts found;
        for (const std::string& sp : findAll(slideXml(number), "p:sp")) {
            const std::string type = valuesOf(sp, "p:ph", "type").at(0);
            const Texts moving = valuesOf(sp, "a:fld", "type");
            const Texts said = textsOf(sp, "a:t");
            if (type != "title")
                found.push_back(type + (moving.empty() ? "" : "[" + moving[0] + "]") + ":" +
                                (said.empty() ? "" : said[0]));
        }
        return found;
    }

    TemplateBuilder builder;
};

TEST_F(PageFieldsTest, WhatIsSetStandsWhereTheLayoutHasAPlaceForIt) {
    open(L"office");
    deck.setFooter(L"Tests");
    deck.setDate(L"auto");
    deck.add(L"All");
    Slide own = deck.add(L"All");
    own.setFooter(L"");
    own.setDate(L"1 May\r\n2026");
    own.setSlideNumbers(false);
    Slide bare = deck.add(L"None");
    bare.setFooter(L"wanted here");
    close();
    EXPECT_EQ(fieldsOf(1), (Texts{"sldNum[slidenum]:7", "dt[datetime1]:5/1/2019", "ftr:Tests"}));
    EXPECT_EQ(fieldsOf(2), Texts{"dt:1 May"});
    EXPECT_EQ(textsOf(slideXml(2), "a:t").back(), "2026") << "on a line of its own";
    EXPECT_EQ(findAll(slideXml(2), "a:br").size(), 1u);
    EXPECT_EQ(fieldsOf(3), Texts{});
    EXPECT_EQ(valuesOf(shapeXml(1, "Footer"), "p:ph", "sz"), Texts{"quarter"})
        << "place and looks are inherited";
    EXPECT_EQ(findAll(shapeXml(1, "Footer"), "a:xfrm").size(), 0u);
    std::wstring told;
    for (const Finding& finding : deck.getFindings())
        if (finding.code == "pageFieldNotShown")
            told += std::to_wstring(finding.slide) + finding.text;
    EXPECT_EQ(told, L"3the layout has no placeholder for the footer of a slide")
        << "not of what is the deck's";
}

TEST_F(PageFieldsTest, ClassicKeepsThoseOfTheLayoutUnlessToldOtherwise) {
    open(L"classic");
    deck.add(L"All");
    Slide second = deck.add(L"All");
    second.setFooter(L"New Co");
    second.setDate(L"");
    second.setSlideNumbers(true);
    close();
    EXPECT_EQ(fieldsOf(1), (Texts{"dt[datetime1]:5/1/2019", "ftr:Old Co", "sldNum[slidenum]:7"}));
    EXPECT_EQ(fieldsOf(2), (Texts{"ftr:New Co", "sldNum[slidenum]:7"}));
}

TEST_F(PageFieldsTest, LinksLeadToSlidesWhereverTheyStandByTheEnd) {
    open(L"office");
    Slide contents = deck.add(L"None");
    Slide later = deck.add(L"None"), gone = deck.add(L"None");
    TextBox box(L"Contents");
    const auto lead = [&](const Slide& to) {
        Paragraph paragraph;
        paragraph.append(ExternalLink(to, L"there"));
        box.add(paragraph);
    };
    lead(later);
    lead(contents);
    lead(gone);
    contents.add(box);
    const std::string png = makePng(1, 1);
    for (const Slide& to : {later, gone}) {
        Picture picture(std::vector<unsigned char>(png.begin(), png.end()));
        picture.setLink(L"https://example.org");
        picture.setLink(to);
        EXPECT_FALSE(picture.getLink().isSet());
        contents.add(picture);
    }
    deck.remove(gone);
    deck.move(later, 0);
    const Parts parts = close();
    const std::string xml = slideXml(1), moved = slideXml(2);
    const std::string& own = xml.find("there") != std::string::npos ? xml : moved;
    EXPECT_EQ(valuesOf(own, "a:hlinkClick", "action"), (Texts(3, "ppaction://hlinksldjump")))
        << "two of texts, one of a picture";
    EXPECT_EQ(textsOf(own, "a:t").size(), 3u) << "a link that leads nowhere is a text";
    const std::string rels =
        parts.at(&own == &xml ? "ppt/slides/_rels/slide1.xml.rels" : "ppt/slides/_rels/slide2.xml.rels");
    EXPECT_EQ(findAll(rels, "Relationship").size(), 6u) << "layout, two images and three links";
    const std::vector<Finding> findings = deck.getFindings();
    EXPECT_EQ(std::count_if(findings.begin(), findings.end(),
                            [](const Finding& finding) { return finding.code == "emptyLinkTarget"; }),
              2);
    for (const char* target : {"slide1.xml", "slide2.xml"})
        EXPECT_NE(rels.find(target), std::string::npos) << target;
}

} // namespace
