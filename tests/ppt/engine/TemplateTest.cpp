// Templates that are read once, and the words for compression.

#include "vellox/ppt/engine/Template.h"

#include "vellox/foundation/FileUtils.h"
#include "vellox/ppt/tree/Picture.h"

#include "tests/support/DeckTest.h"

#include <cstdlib>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

class TemplateTest : public DeckTest {
protected:
    /// Changes a deck on a template with a slide of two shapes, and gives the bytes of the file.
    std::string fill(Presentation made) {
        made.replace(L"Title", L"changed");
        Slide::cast(made.getChildren().at(0))->setName(L"First");
        made.add(L"Title and Content", 0u).add(L"Content", L"text");
        made.add(L"Title Only").replace(L"Title", L"more");
        EXPECT_TRUE(made.close());
        return readFile(output);
    }
};

TEST_F(TemplateTest, GivesTheDecksOfItsPath) {
    deck.add(L"Title and Content").replace(L"Title", L"of the template");
    close();
    std::filesystem::rename(output, (folder / L"t.potx"));
    const std::string expected = fill(Presentation(output, folder / L"t.potx"));
    const Template source(folder / L"t.potx");
    EXPECT_EQ(source.getPath(), folder / L"t.potx");
    const std::string read = readFile(source.getPath());
    for (int i = 0; i < 3; ++i) {
        Presentation made(output, source);
        made.open();
        EXPECT_EQ(readFile(output), read);
        EXPECT_EQ(made.getTemplatePath(), source.getPath());
        EXPECT_EQ(fill(made), expected);
    }
    Presentation first(output, source), second(folder / L"other.pptx", source); // at a time
    first.add(L"Title Only").replace(L"Title", L"one");
    second.add(L"Title Only").replace(L"Title", L"two");
    EXPECT_TRUE(first.close() && second.close());
    EXPECT_EQ(runsOf(readParts(output).at("ppt/slides/slide2.xml")), "one");
    EXPECT_EQ(runsOf(readParts(folder / L"other.pptx").at("ppt/slides/slide2.xml")), "two");
    EXPECT_EQ(readFile(source.getPath()), read);
}

TEST_F(TemplateTest, NeedsItsFileNoMore) {
    writeParts(folder / L"t.pptx", getTemplateParts());
    const Template source(folder / L"t"); // the extension comes by itself
    const std::string read = readFile(folder / L"t.pptx");
    writeFile(folder / L"t.pptx", "something else");
    deck = Presentation(folder / L"t.pptx", source); // over the very file
    deck.add(L"Blank");
    EXPECT_TRUE(deck.close());
    EXPECT_TRUE(findFaults(folder / L"t.pptx").empty());

    deck = Presentation(output, source);
    deck.add(L"Blank");
    writeFile(output, read); // another file with the same bytes
    EXPECT_TRUE(deck.close());

    deck = Presentation(output, source);
    deck.open();
    writeFile(output, read + "x");
    EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, 24), "ppt_error:cannotOpenFile");
    EXPECT_EQ(readFile(output), read + "x");

    deck = Presentation(output, source);
    deck.setTemplatePath(folder / L"t.pptx"); // which has a slide by now
    deck.open();
    EXPECT_EQ(deck.getNChildren(), 1u);
}

TEST_F(TemplateTest, ServesBothProfiles) {
    writeParts(folder / L"t.pptx", getTemplateParts());
    const Template classic(folder / L"t"), office = Template::forOffice(folder / L"t");
    std::filesystem::remove(folder.getPath() / "t.pptx");
    for (const Template& source : {classic, office, classic}) {
        const auto countPlaceholders = [&](const wchar_t* profile) {
            Presentation made(output, source);
            made.setProfile(profile);
            made.add(L"Title and Content").replace(L"Title", L"Words");
            EXPECT_TRUE(made.close());
            return findAll(readParts(output).at("ppt/slides/slide1.xml"), "p:ph").size();
        };
        EXPECT_EQ(countPlaceholders(L"classic"), 5u);
        EXPECT_EQ(countPlaceholders(L"office"), 3u); // without date and footer
    }
    EXPECT_EQ(errorOf([&] { Template(folder / L"t", L"none"); }), "ppt_error:invalidPropertyValue none");
}

TEST_F(TemplateTest, NeedsNoTemporaryFolder) {
    setenv("TMPDIR", (folder.getPath() / "none").c_str(), 1);
    EXPECT_TRUE(Presentation(output, Template()).open());
    unsetenv("TMPDIR");
}

TEST_F(TemplateTest, RefusesWhatPresentationsRefuse) {
    const auto errorOfBoth = [&](const std::wstring& path) {
        const std::string error = errorOf([&] { static_cast<void>(Template(path)); });
        EXPECT_EQ(error, errorOf([&] { Presentation(output, path).open(); }));
        return error.substr(0, error.find(' '));
    };
    const std::wstring file = folder / L"t.pptx";
    EXPECT_EQ(errorOfBoth(file), "ppt_error:cannotOpenTemplate");
    EXPECT_EQ(errorOfBoth(folder / L"none/t.pptx"), "ppt_error:pathNotFound");
    std::filesystem::create_directory(folder.getPath() / "t.x");
    EXPECT_EQ(errorOfBoth(folder / L"t.x"), "ppt_error:cannotOpenTemplate");
    writeFile(file, "no archive");
    EXPECT_EQ(errorOfBoth(file), "ppt_error:cannotOpenFile");
    writeParts(file,
               withChange(getTemplateParts(), "[Content_Types].xml", "presentation.main", "other.main"));
    EXPECT_EQ(errorOfBoth(file), "ppt_error:invalidTemplate");
    writeParts(file,
               withChange(getTemplateParts(), "ppt/slideLayouts/slideLayout1.xml", "</p:sldLayout>", ""));
    EXPECT_EQ(errorOfBoth(file), "ppt_error:partDOMBuildError");
}

TEST_F(TemplateTest, CompressesAsItIsTold) {
    const auto sizeOf = [&](const wchar_t* word) {
        Presentation made(output);
        EXPECT_EQ(made.getCompression(), L"normal");
        made.setCompression(word);
        for (int i = 0; i < 20; ++i)
            made.add(L"Title and Content").add(L"Content", L"a text on slide " + std::to_wstring(i));
        EXPECT_TRUE(made.close());
        EXPECT_TRUE(findFaults(output).empty());
        return std::filesystem::file_size(output);
    };
    EXPECT_GT(sizeOf(L"fast"), sizeOf(L"normal"));
    EXPECT_LT(sizeOf(L"Small"), sizeOf(L"normal"));
    deck.setCompression(L"SMALL");
    EXPECT_EQ(errorOf([&] { deck.setCompression(L"tiny"); }), "ppt_error:invalidPropertyValue tiny");
    EXPECT_EQ(deck.getCompression(), L"small");
    EXPECT_EQ(static_cast<Presentation&>(*deck.clone()).getCompression(), L"small");
}

} // namespace
