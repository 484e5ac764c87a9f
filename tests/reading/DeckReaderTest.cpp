#include "vellox/reading/DeckReader.h"
#include "vellox/reading/DeckComparison.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/reading/Alignment.h"

#include "tests/support/Files.h"
#include "tests/support/Mutations.h"
#include "tests/support/TemplateBuilder.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using test::Parts;

namespace {

constexpr char kRun[] = "<a:t>prompt</a:t>";

/// A series of a chart, with what it keeps of its data.
std::string series(const std::string& name, const std::string& first, const std::string& second) {
    const auto point = [](const std::string& value, int index = 0) {
        return "<c:pt idx='" + std::to_string(index) + "'><c:v>" + value + "</c:v></c:pt>";
    };
    return "<c:ser><c:tx><c:strRef><c:strCache>" + point(name) +
           "</c:strCache></c:strRef></c:tx><c:cat><c:strRef>" + "<c:strCache>" + point("Q1") +
           point("Q2", 1) + "</c:strCache></c:strRef></c:cat><c:val><c:numRef><c:numCache>" + point(first) +
           point(second, 1) + "</c:numCache></c:numRef></c:val></c:ser>";
}

class DeckReader : public testing::Test {
protected:
    DeckContents read(const Parts& parts) {
        test::writeParts(path, parts);
        return readDeck(path);
    }

    /// A deck of two slides with all that the reader knows.
    static Parts makeDeck() {
        test::TemplateBuilder builder;
        builder.addMaster("Theme");
        test::Page& layout = builder.addLayout("Own", test::shape(7, "Title", "<p:ph type='title'/>"));
        test::Page& first = builder.addSlide(
            "", layout,
            test::shape(2, "Title", "<p:ph type='title'/>") +
                test::groupShape(3, "Group", test::groupShape(4, "Inner", test::shape(5, "Deep"))) +
                "<mc:AlternateContent xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'>"
                "<mc:Choice Requires='p14'>" +
                test::shape(6, "New") + "</mc:Choice><mc:Fallback>" + test::shape(6, "Old") +
                "</mc:Fallback></mc:AlternateContent>" + test::tableShape(8, "Table", 1, 2));
        first.attributes = " show='0' xmlns:p14='http://schemas.microsoft.com/office/powerpoint/2010/main'";
        test::Page& second = builder.addSlide(
            "", layout,
            test::pictureShape(2, "Picture", "rId7", "<p:spPr/>") +
                "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='3' name='Chart' descr='Growth'/>"
                "</p:nvGraphicFramePr><a:graphic><a:graphicData><c:chart "
                "xmlns:c='http://schemas.openxmlformats.org/drawingml/2006/chart' r:id='rId8'/>"
                "</a:graphicData></a:graphic></p:graphicFrame>");
        second.relations = {{"rId7", "image", "../media/image1.png"},
                            {"rId8", "chart", "../charts/chart1.xml"},
                            {"rId9", "notesSlide", "../notesSlides/notesSlide1.xml"}};
        builder.addPart("ppt/media/image1.png", "image/png", test::makePng(4, 3));
        builder.addPart(
            "ppt/charts/chart1.xml", "application/vnd.openxmlformats-officedocument.drawingml.chart+xml",
            "<c:chartSpace xmlns:c='http://schemas.openxmlformats.org/drawingml/2006/chart'><c:chart>" +
                series("North", "1", "2") + series("South", "3", "4") + "</c:chart></c:chartSpace>");
        builder.addPart("ppt/notesSlides/notesSlide1.xml",
                        "application/vnd.openxmlformats-officedocument.presentationml.notesSlide+xml",
                        "<p:notes xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main' "
                        "xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'><p:cSld><p:spTree>" +
                            test::shape(2, "Notes", "<p:ph type='body'/>") +
                            "</p:spTree></p:cSld></p:notes>");
        return builder.build();
    }

    const test::TempFolder folder;
    const std::wstring path = folder / L"deck.pptx";
};

TEST_F(DeckReader, ShowsWhatIsOnSlides) {
    const DeckContents contents = read(makeDeck());
    ASSERT_EQ(contents.slides.size(), 2U);
    EXPECT_TRUE(contents.findings.empty());
    const DeckSlide &first = contents.slides[0], &second = contents.slides[1];
    EXPECT_EQ(first.layout, L"Own");
    EXPECT_TRUE(first.isHidden);
    EXPECT_FALSE(second.isHidden);

    // Groups are entered, and of alternatives the first one counts that is known.
    std::wstring names;
    for (const DeckShape& shape : first.shapes)
        names += shape.name + L" ";
    EXPECT_EQ(names, L"Title Deep New Table ");
    EXPECT_EQ(first.shapes[0].placeholder, L"title");
    ASSERT_EQ(first.shapes[1].paragraphs.size(), 1U);
    EXPECT_EQ(first.shapes[1].paragraphs[0].text, L"prompt");
    ASSERT_EQ(first.shapes[3].rows.size(), 1U);
    EXPECT_EQ(first.shapes[3].rows[0].size(), 2U);

    ASSERT_EQ(second.shapes.size(), 2U);
    EXPECT_EQ(second.shapes[0].kind, DeckShape::Kind::Picture);
    EXPECT_EQ(second.shapes[0].digest.size(), 40U);
    EXPECT_EQ(second.shapes[0].bytes, test::makePng(4, 3).size());
    const std::vector<std::vector<std::wstring>> values = {
        {L"", L"Q1", L"Q2"}, {L"North", L"1", L"2"}, {L"South", L"3", L"4"}};
    EXPECT_EQ(second.shapes[1].rows, values);
    EXPECT_EQ(second.shapes[1].altText, L"Growth");
    ASSERT_EQ(second.notes.size(), 1U);
    EXPECT_EQ(second.notes[0].text, L"prompt");
}

TEST_F(DeckReader, PutsPointsWhereTheyBelong) {
    Parts parts = makeDeck();
    std::string& slide = parts["ppt/slides/slide2.xml"];
    const std::size_t start = slide.find("<p:graphicFrame>");
    slide.insert(start, slide.substr(start, slide.find("</p:graphicFrame>") + 17 - start));
    std::string& chart = parts["ppt/charts/chart1.xml"];
    const std::string gap = "<c:ptCount val='4'/><c:pt idx='2'>", huge = "<c:pt idx='4294967295'>";
    chart.replace(chart.find("<c:pt idx='1'><c:v>2<"), 14, gap);
    chart.replace(chart.find("<c:pt idx='1'><c:v>4<"), 14, huge);
    for (std::size_t at = 0; (at = chart.find("<c:cat>", at)) != std::string::npos; at += 7)
        chart.replace(at, chart.find("</c:cat>", at) - at,
                      "<c:cat><c:multiLvlStrRef><c:multiLvlStrCache><c:lvl><c:pt idx='0'><c:v>Q1</c:v></c:pt>"
                      "<c:pt idx='1'><c:v>Q2</c:v></c:pt></c:lvl><c:lvl><c:pt idx='0'><c:v>2026</c:v></c:pt>"
                      "</c:lvl></c:multiLvlStrCache></c:multiLvlStrRef>");
    const DeckContents contents = read(parts);
    ASSERT_EQ(contents.slides.at(1).shapes.size(), 3U);
    const std::vector<std::vector<std::wstring>> values = {
        {L"", L"2026 Q1", L"2026 Q2"}, {L"North", L"1", L"", L"2", L""}, {L"South", L"3"}};
    EXPECT_EQ(contents.slides[1].shapes[1].rows, values);
    EXPECT_EQ(contents.slides[1].shapes[2].rows, values) << "of a second frame of the chart";
    const DeckContents unknown = read(
        test::withChange(makeDeck(), "ppt/slides/slide1.xml", "schemas.microsoft.com/office", "example.org"));
    EXPECT_EQ(unknown.slides.at(0).shapes.at(2).name, L"Old");
}

TEST_F(DeckReader, TellsDecksApart) {
    const Parts parts = makeDeck();
    const DeckContents former = read(parts);
    EXPECT_TRUE(compareDecks(former, former).empty());
    const auto compare = [&](const Parts& changed) {
        std::string kinds;
        for (const DeckDifference& difference : compareDecks(former, read(changed)))
            kinds += std::string(toString(difference.kind)) + " ";
        return kinds;
    };
    EXPECT_EQ(
        compare(test::withChange(parts, "ppt/slides/slide1.xml", kRun, "<a:t>a</a:t><a:br/><a:t>b</a:t>")),
        "textChanged ");
    EXPECT_EQ(compare(test::withChange(parts, "ppt/charts/chart1.xml", ">4<", ">5<")), "cellChanged ");
    EXPECT_EQ(compare(test::withChange(parts, "ppt/slides/slide1.xml", " show='0'", "")),
              "visibilityChanged ");
    EXPECT_EQ(compare(test::withChange(parts, "ppt/notesSlides/notesSlide1.xml", kRun, "<a:t>n</a:t>")),
              "notesChanged ");
    Parts picture = parts;
    picture["ppt/media/image1.png"] = test::makePng(5, 3);
    EXPECT_EQ(compare(picture), "pictureChanged ");
    // The order of the list is that of the slides.
    Parts swapped = parts;
    std::swap(swapped["ppt/slides/slide1.xml"], swapped["ppt/slides/slide2.xml"]);
    std::swap(swapped["ppt/slides/_rels/slide1.xml.rels"], swapped["ppt/slides/_rels/slide2.xml.rels"]);
    EXPECT_EQ(compare(swapped), "slideMoved ");
}

TEST(Alignment, PairsWhatStayed) {
    const auto align = [](const std::wstring& former, const std::wstring& present) {
        const auto split = [](const std::wstring& text) {
            std::vector<std::wstring> entries;
            for (const wchar_t c : text)
                entries.emplace_back(1, c);
            return entries;
        };
        std::wstring pairs;
        for (const auto& pair : reading::align(split(former), split(present))) {
            EXPECT_EQ(former[pair.first], present[pair.second]);
            pairs += former[pair.first];
        }
        return pairs;
    };
    EXPECT_EQ(align(L"", L"abc"), L"");
    EXPECT_EQ(align(L"abc", L"abc"), L"abc");
    EXPECT_EQ(align(L"aaa", L"aa"), L"aa");
    EXPECT_EQ(align(L"abcde", L"xbcye"), L"bce");
    EXPECT_EQ(align(L"abcd", L"cdab").size(), 2U);
    EXPECT_EQ(align(L"x--y--z", L"a--y--b"), L"--y--");
}

TEST_F(DeckReader, TakesWhateverComes) {
    const auto tryTo = [&](const Parts& parts) {
        try {
            const DeckContents contents = read(parts);
            EXPECT_TRUE(compareDecks(contents, contents).empty());
        } catch (const hostfx::except::Exception<ppt_error::cannotOpenFile>&) {
        }
    };
    const Parts sound = test::makeSoundDeck();
    for (const test::Mutation& mutation : test::getMutations())
        tryTo(test::mutate(sound, mutation, 1));
    Parts parts = makeDeck();
    parts["ppt/slides/slide2.xml"].resize(200);
    EXPECT_EQ(read(parts).findings.size(), 1U);
    EXPECT_EQ(read(parts).slides.size(), 1U);
    // A slide that is listed again and again counts once, or a small file would be a huge deck.
    parts = makeDeck();
    std::string& list = parts["ppt/presentation.xml"];
    const std::size_t at = list.find("<p:sldId "), end = list.find("/>", at) + 2;
    const std::string entry = list.substr(at, end - at);
    for (int i = 0; i < 100; ++i)
        list.insert(at, entry);
    EXPECT_EQ(read(parts).slides.size(), 2U);

    test::writeFile(path, "no archive");
    EXPECT_THROW(readDeck(path), hostfx::except::Exception<ppt_error::cannotOpenFile>);
    EXPECT_THROW(readDeck(folder / L"none.pptx"), hostfx::except::Exception<ppt_error::cannotOpenFile>);
}

} // namespace
