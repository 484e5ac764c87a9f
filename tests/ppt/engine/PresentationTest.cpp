#include "vellox/ppt/engine/Presentation.h"

#include "vellox/foundation/FileUtils.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/object/PPTClientImpl.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"

#include <filesystem>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

class PresentationTest : public DeckTest {};

TEST_F(PresentationTest, GoesThroughItsLifeOnce) {
    EXPECT_FALSE(deck.close()); // never opened
    EXPECT_FALSE(FileUtils::fileExists(output));
    EXPECT_TRUE(deck.open());
    EXPECT_FALSE(deck.open());
    EXPECT_EQ(readFile(output), readFile(deck.getTemplatePath())); // a copy until it is closed
    const Slide slide = deck.add(L"Blank");
    EXPECT_TRUE(deck.close());
    EXPECT_FALSE(deck.close());
    EXPECT_FALSE(deck.open());
    const std::string written = readFile(output);
    deck.add(L"Title Slide"); // stands in the tree, and nowhere else
    EXPECT_EQ(deck.getNChildren(), 2u);
    EXPECT_EQ(readFile(output), written);
}

TEST_F(PresentationTest, CompletesPaths) {
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(folder.getPath());
    Presentation unnamed;
    EXPECT_EQ(unnamed.getOutputPath(), L"");
    unnamed.open();
    EXPECT_EQ(unnamed.getOutputPath(), L"untitled.pptx");
    EXPECT_TRUE(FileUtils::fileExists(folder / L"untitled.pptx"));
    std::filesystem::current_path(former);

    Presentation odd(folder / L"report.docx");
    odd.open();
    EXPECT_TRUE(FileUtils::fileExists(folder / L"report.docx"));
    Presentation plain(folder / L"\u00fcber \U0001F600 und Leerzeichen");
    plain.add(L"Blank");
    EXPECT_TRUE(plain.close());
    EXPECT_TRUE(findFaults(folder / L"\u00fcber \U0001F600 und Leerzeichen.pptx").empty());
}

TEST_F(PresentationTest, RefusesBadPaths) {
    EXPECT_EQ(errorOf([&] { Presentation(folder / L"none/deck.pptx"); }),
              "ppt_error:pathNotFound " + toUtf8(folder / L"none"));
    EXPECT_EQ(errorOf([&] { deck.setOutputPath(folder / L"none/deck.pptx"); }),
              "ppt_error:pathNotFound " + toUtf8(folder / L"none"));
    EXPECT_EQ(errorOf([&] { deck.setOutputPath(std::wstring(L"a\0b", 3)); }),
              std::string("dom_error:invalidFilePath a\0b", 29));
    EXPECT_EQ(errorOf([&] { Presentation(folder / L"falcon.pptx").open(); }),
              "dom_error:reservedWindowsFileName falcon");
    const std::wstring missing = folder / L"missing.pptx";
    EXPECT_EQ(errorOf([&] { Presentation(output, missing).open(); }),
              "ppt_error:cannotOpenTemplate No such file or directory: " + toUtf8(missing));
    writeFile(folder / L"file", "");
    EXPECT_EQ(errorOf([&] { Presentation(folder / L"file/deck.pptx").open(); }),
              "ppt_error:cannotOpenFile " + toUtf8(folder / L"file/deck.pptx"));
}

TEST_F(PresentationTest, KeepsItsPathsOnceOpen) {
    deck.open();
    WarningLog warnings;
    const std::wstring templatePath = deck.getTemplatePath();
    deck.setOutputPath(folder / L"other.pptx");
    deck.setTemplatePath(folder / L"none/other.pptx");
    EXPECT_EQ(deck.getOutputPath(), output);
    EXPECT_EQ(deck.getTemplatePath(), templatePath);
    EXPECT_EQ(warnings.ids, (std::vector<std::string>{"cannotChangeOutputPath", "cannotChangeTemplatePath"}));
}

/// Progress is reported to a layer above, if there is one.
class WatchedPresentation : public Presentation {
public:
    explicit WatchedPresentation(const std::wstring& path) : Presentation(path) {
        setPPTClientImpl(boost::make_shared<PPTClientImpl>());
    }
};

TEST_F(PresentationTest, ReportsProgressToItsClient) {
    const MessageLog log;
    WarningLog warnings;
    deck.open();
    EXPECT_TRUE(log.texts.empty());
    WatchedPresentation watched(folder / L"watched.pptx");
    watched.open();
    ASSERT_EQ(log.texts.size(), 1u);
    EXPECT_EQ(log.texts[0], L"Reading the template " + watched.getTemplatePath() + L".");
    watched.setOutputPath(L"x");
    EXPECT_EQ(log.texts.size(), 2u);
    EXPECT_EQ(warnings.ids.size(), 1u);

    watched = WatchedPresentation(folder / L"more.pptx");
    watched.setTemplatePath(output); // a template with a slide
    deck.add(L"Blank");
    deck.close();
    watched.open();
    EXPECT_EQ(log.texts.back().substr(0, 16), L"Added ppt.Slide:");
}

TEST_F(PresentationTest, PutsSlidesInOrder) {
    const Slide b = deck.add(L"Blank");
    deck.add(L"Title Slide", 0u);
    deck.add(L"Title Only", b);
    deck.add(L"Section Header", L"Vellox", 99u);
    deck.add(L"Comparison", L"Vellox", b);
    std::wstring layouts;
    for (const auto& slide : deck.getChildren())
        layouts += Slide::cast(slide)->getLayoutName() + L"|";
    EXPECT_EQ(layouts, L"Title Slide|Title Only|Comparison|Blank|Section Header|");
    EXPECT_EQ(b.getSlideMasterName(), L"Vellox");
    const Parts& parts = close();
    EXPECT_EQ(findOne(parts.at("ppt/presentation.xml"), "p:sldIdLst"),
              "<p:sldIdLst><p:sldId id='256' r:id='rId6'/><p:sldId id='257' r:id='rId7'/><p:sldId id='258' "
              "r:id='rId8'/><p:sldId id='259' r:id='rId9'/><p:sldId id='260' r:id='rId10'/></p:sldIdLst>");
}

TEST_F(PresentationTest, NamesWhatTheTemplateHas) {
    EXPECT_EQ(deck.getMasterNames(), std::vector<std::wstring>{L"Vellox"});
    EXPECT_EQ(deck.getLayoutNames(L"Vellox").size(), 11u);
    EXPECT_TRUE(deck.getLayoutNames(L"vellox").empty());
    EXPECT_EQ(deck.getTableStyleNames()[0].first, L"Accent Header");
    EXPECT_EQ(errorOf([&] { deck.add(L"title slide"); }), "ppt_error:invalidLayoutName title slide");
    EXPECT_EQ(errorOf([&] { deck.add(L"Title Slide", L"Nobody"); }),
              "ppt_error:invalidLayoutOrSlideMasterName Title Slide Nobody");
}

TEST_F(PresentationTest, ReadsTheSlidesOfATemplateAndWritesThemBack) {
    deck.add(L"Title and Content").setName(L"First");
    deck.find(L"First");
    TextBox box(L"Box");
    box.add(L"kept");
    static_cast<Slide&>(*deck.getChildren()[0]).add(box);
    deck.replace(L"Title", L"Old title");
    close();

    Presentation next(folder / L"next.pptx", output);
    Slide first = *Slide::cast(next.find(L"First").at(0));
    EXPECT_EQ(first.getLayoutName(), L"Title and Content");
    EXPECT_EQ(first.getNChildren(), 3u);
    next.replace(L"Title", L"New title");
    first.add(L"Box", L"added");
    first.setName(L"Renamed");
    next.add(L"Blank", 0u);
    EXPECT_TRUE(next.close());
    EXPECT_TRUE(findFaults(folder / L"next.pptx").empty());
    const Parts parts = readParts(folder / L"next.pptx");
    const std::string& slide = parts.at("ppt/slides/slide1.xml");
    EXPECT_EQ(runsOf(slide), "New title|kept|added");
    EXPECT_NE(slide.find("name=\"Renamed\""), std::string::npos);
    EXPECT_EQ(parts.count("ppt/slides/slide2.xml"), 1u);
    EXPECT_EQ(findAll(parts.at("ppt/presentation.xml"), "p:sldId").size(), 2u);
}

TEST_F(PresentationTest, CopiesNothingOfTheTemplateIntoACopy) {
    deck.add(L"Blank");
    const auto copy = deck.clone();
    auto& second = static_cast<Presentation&>(*copy);
    EXPECT_EQ(second.getNChildren(), 1u);
    EXPECT_EQ(second.getOutputPath(), output);
    EXPECT_TRUE(second.getMasterNames().empty());
    EXPECT_EQ(errorOf([&] { second.add(L"Blank"); }), "ppt_error:invalidLayoutName Blank");
    EXPECT_TRUE(second.close()); // writes nothing
    close();
}

TEST_F(PresentationTest, LetsTheMainTypeFollowTheExtension) {
    const char* const types = "[Content_Types].xml";
    const auto mainTypeOf = [&](const std::wstring& file, const Parts& templateParts) {
        writeParts(folder / L"t.potx", templateParts);
        Presentation made(folder / file, folder / L"t.potx");
        made.add(L"Blank");
        EXPECT_TRUE(made.close());
        const std::string list = readParts(folder / file).at(types);
        const std::size_t at = list.find("main+xml");
        return list.substr(list.rfind('.', list.rfind('.', at) - 1) + 1,
                           at - list.rfind('.', list.rfind('.', at) - 1) - 2);
    };
    const Parts asTemplate =
        withChange(getTemplateParts(), types, "presentation.main+xml", "template.main+xml");
    EXPECT_EQ(mainTypeOf(L"a.pptx", asTemplate), "presentation");
    EXPECT_EQ(mainTypeOf(L"a.POTX", asTemplate), "template");
    EXPECT_EQ(mainTypeOf(L"a.ppsx", asTemplate), "slideshow");
    EXPECT_EQ(mainTypeOf(L"a.dat", asTemplate), "template");
}

TEST_F(PresentationTest, GivesTheSameBytesForTheSameCalls) {
    const auto make = [&] {
        Presentation again(output);
        again.add(L"Title and Content").replace(L"Title", L"text");
        again.close();
        return readFile(output);
    };
    EXPECT_EQ(make(), make());
}

} // namespace
