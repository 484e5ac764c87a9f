// What goes wrong leaves files whole and nothing behind.

#include "vellox/foundation/FileUtils.h"
#include "vellox/opc/Limits.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/DeckTest.h"

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

/// Gives the library a temporary folder of its own, so that what it leaves there is seen.
class FailureTest : public DeckTest {
protected:
    FailureTest() { setenv("TMPDIR", temporary.getPath().c_str(), 1); }
    ~FailureTest() override { unsetenv("TMPDIR"); }

    TempFolder temporary;
};

/// Lets no file grow beyond a size: what a full disk looks like from here.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &former_);
        rlimit limit = former_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, formerHandler_);
    }

private:
    rlimit former_{};
    void (*formerHandler_)(int);
};

TEST_F(FailureTest, AFullDiskAtCloseLeavesTheFormerFile) {
    deck.open();
    const std::string former = readFile(output);
    for (int i = 0; i < 50; ++i)
        deck.add(L"Title and Content").replace(L"Title", L"text");
    {
        const FullDisk disk(former.size() + 1000);
        EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, 24), "ppt_error:cannotOpenFile");
    }
    EXPECT_EQ(readFile(output), former);
    EXPECT_EQ(folder.list(), std::vector<std::string>{"deck.pptx"});
    EXPECT_FALSE(deck.close()); // written or not, it is closed
}

TEST_F(FailureTest, AFullDiskAtOpenLeavesNothing) {
    {
        const FullDisk disk(1000);
        const std::string error = errorOf([&] { deck.open(); });
        const std::string start = "ppt_error:cannotOpenTemplate " + toUtf8(deck.getTemplatePath()) +
                                  " can't be copied to the temporary folder: File too large: ";
        EXPECT_EQ(error.substr(0, start.size()), start);
    }
    EXPECT_TRUE(folder.list().empty());
    EXPECT_TRUE(deck.open()); // nothing was lost, so that it may be tried again
    deck = Presentation();
    EXPECT_TRUE(temporary.list().empty());
}

// The template may be the output itself, and the only copy that there is.
TEST_F(FailureTest, AFullDiskAtOpenLeavesTheFormerOutput) {
    writeParts(output, getTemplateParts(), {true, false, false, {}});
    const std::string former = readFile(output);
    deck = Presentation(output, output);
    deck.open();
    EXPECT_EQ(readFile(output), former); // whatever the order of its parts: nothing has changed yet
    deck = Presentation(output, output);
    std::filesystem::permissions(folder.getPath(),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const bool isRoot = access(folder.getPath().c_str(), W_OK) == 0; // nothing is forbidden to the superuser
    const std::string error = errorOf([&] { deck.open(); });
    std::filesystem::permissions(folder.getPath(), std::filesystem::perms::owner_all);
    EXPECT_EQ(error.substr(0, 24), isRoot ? "nothing" : "ppt_error:cannotOpenFile");
    EXPECT_EQ(readFile(output), former);
    FileUtils::createDirectory(folder / L"folder.pptx");
    writeFile(folder / L"folder.pptx/inside", "kept");
    deck = Presentation(folder / L"folder.pptx", output);
    EXPECT_EQ(errorOf([&] { deck.open(); }).substr(0, 24), "ppt_error:cannotOpenFile");
    EXPECT_EQ(readFile(folder / L"folder.pptx/inside"), "kept");
    deck = Presentation();
    EXPECT_EQ(folder.list().size(), 3u);
    EXPECT_TRUE(temporary.list().empty());
}

TEST_F(FailureTest, AFailureWhileWritingCanBeMended) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"once");
    Table table(1);
    table.append(TableRow());
    table.setStyleName(L"No such style");
    slide.add(table);
    const std::string former = readFile(output);
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    const auto token =
        dispatcher.addListener([](const MessageEventData&) { throw std::runtime_error("stop"); });
    EXPECT_THROW(deck.close(), std::runtime_error);
    EXPECT_EQ(readFile(output), former);
    EXPECT_EQ(folder.list(), std::vector<std::string>{"deck.pptx"});
    dispatcher.removeListener(token);
    close();
    EXPECT_EQ(runsOf(slideXml(1)), "once");
    EXPECT_EQ(findAll(slideXml(1), "a:tbl").size(), 1u);
}

TEST_F(FailureTest, ATemplateSlideIsMendedToo) {
    deck.add(L"Title and Content").replace(L"Title", L"old");
    close();
    const std::wstring next = folder / L"next.pptx";
    Presentation second(next, output);
    second.replace(L"Content", L"new");
    Slide slide = *Slide::cast(second.getChildren()[0]);
    Picture picture;
    slide.add(picture);
    picture.setPath(L"x.png");
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    Table table(1);
    table.append(TableRow());
    table.setStyleName(L"No such style");
    slide.add(table);
    const auto token =
        dispatcher.addListener([](const MessageEventData&) { throw std::runtime_error("stop"); });
    EXPECT_THROW(second.close(), std::runtime_error);
    dispatcher.removeListener(token);
    EXPECT_TRUE(second.close());
    EXPECT_EQ(runsOf(readParts(next).at("ppt/slides/slide1.xml")), "old|new");
}

TEST_F(FailureTest, AnOutputThatIsGoneAtCloseIsAnError) {
    deck.add(L"Blank");
    FileUtils::removeFile(output);
    EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, 24), "ppt_error:cannotOpenFile");
    EXPECT_TRUE(folder.list().empty());
}

TEST_F(FailureTest, AReadOnlyTemplateIsNoHindrance) {
    writeParts(folder / L"t.pptx", getTemplateParts());
    std::filesystem::permissions(folder.getPath() / "t.pptx", std::filesystem::perms::owner_read);
    const std::string before = readFile(folder / L"t.pptx");
    deck = Presentation(output, folder / L"t.pptx");
    deck.add(L"Blank");
    close();
    EXPECT_EQ(readFile(folder / L"t.pptx"), before);
}

TEST_F(FailureTest, AnOutputThatExistsIsReplacedAndALinkFollowed) {
    writeFile(folder / L"real.pptx", "something else");
    std::filesystem::create_symlink("real.pptx", folder.getPath() / "link.pptx");
    deck = Presentation(folder / L"real.pptx");
    deck.add(L"Blank");
    deck.close();
    EXPECT_TRUE(findFaults(folder / L"link.pptx").empty());
    // The template may be the output itself.
    Presentation same(folder / L"real.pptx", folder / L"real.pptx");
    same.add(L"Title Only");
    EXPECT_TRUE(same.close());
    EXPECT_EQ(findAll(readParts(folder / L"real.pptx").at("ppt/presentation.xml"), "p:sldId").size(), 2u);
}

TEST_F(FailureTest, OnlyTheFileThatOpenPutThereIsWritten) {
    Presentation other(output);
    deck.open();
    other.add(L"Blank");
    EXPECT_TRUE(other.close()); // one of the same bytes stands there
    const std::string written = readFile(output);
    EXPECT_NE(errorOf([&] { deck.close(); }).find("another file has taken its place"), std::string::npos);
    EXPECT_EQ(readFile(output), written);

    // A relative path means what it meant at open.
    const auto former = std::filesystem::current_path();
    std::filesystem::create_directory(folder.getPath() / "elsewhere");
    writeFile(folder / L"elsewhere/relative.pptx", written);
    std::filesystem::current_path(folder.getPath());
    Presentation relative(L"relative.pptx");
    relative.add(L"Blank");
    std::filesystem::current_path(folder.getPath() / "elsewhere");
    EXPECT_TRUE(relative.close());
    std::filesystem::current_path(former);
    EXPECT_TRUE(findFaults(folder / L"relative.pptx").empty());
    EXPECT_EQ(readFile(folder / L"elsewhere/relative.pptx"), written);
}

TEST_F(FailureTest, NamesModesAndLinksOfTheOutput) {
    const auto modeOf = [](const std::wstring& path) {
        return static_cast<unsigned>(std::filesystem::status(toUtf8(path)).permissions());
    };
    const auto make = [](const std::wstring& path) {
        Presentation made(path);
        made.add(L"Blank");
        return made.close();
    };
    const mode_t mask = umask(027);
    EXPECT_TRUE(make(folder / (std::wstring(250, L'n') + L".pptx"))); // as long as a name can be
    EXPECT_TRUE(make(output));
    umask(mask);
    EXPECT_EQ(modeOf(output), 0640u);
    std::filesystem::permissions(toUtf8(output), std::filesystem::perms(0600));
    EXPECT_TRUE(make(output));
    EXPECT_EQ(modeOf(output), 0600u);
    std::filesystem::permissions(toUtf8(output), std::filesystem::perms(0444));
    EXPECT_EQ(errorOf([&] { make(output); }), "ppt_error:cannotOpenFile " + toUtf8(output));
    std::filesystem::create_symlink("target.pptx", folder.getPath() / "dangling.pptx");
    EXPECT_TRUE(make(folder / L"dangling.pptx"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.getPath() / "dangling.pptx"));
    EXPECT_TRUE(findFaults(folder / L"target.pptx").empty());
}

// It is found out while the deck is open still, and what might never answer isn't asked.
TEST_F(FailureTest, APictureThatCantBeReadIsLeftOut) {
    mkfifo(toUtf8(folder / L"pipe.png").c_str(), 0600);
    for (const std::wstring& path :
         {folder / L"pipe.png", std::wstring(L"/dev/zero"), std::wstring(L"/proc/self/mem")}) {
        Slide slide = deck.add(L"Blank");
        slide.add(Picture(path));
    }
    for (const auto& part : close())
        EXPECT_EQ(part.first.find("ppt/media/"), std::string::npos);
}

// Whatever the text is, a reader can parse what is written.
TEST_F(FailureTest, TextsOfAnyKindGiveAReadableDeck) {
    const std::wstring wild = L"\U0001F600 \u05d0\u05d1 \u0627\u0628 a\u0301 ]]> <&\"' " +
                              std::wstring(1, L'\0') + L"\x1b[1m\ufffe" + std::wstring(1, wchar_t(0xD800)) +
                              L"\tend";
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", wild);
    slide.setName(wild);
    TextBox box(wild);
    Paragraph link;
    link.append(ExternalLink(wild, wild));
    box.add(link);
    slide.add(box);
    close();
    const std::string kept =
        "\xF0\x9F\x98\x80 \xD7\x90\xD7\x91 \xD8\xA7\xD8\xA8 a\xCC\x81 ]]> <&\"' [1m\tend";
    EXPECT_EQ(findAll(slideXml(1), "a:t")[0], "<a:t>" + kept + "</a:t>");
}

TEST_F(FailureTest, BadTemplatesAreRefusedByName) {
    struct Row {
        Parts parts;
        const char* error;
    };
    const char* const presentation = "ppt/presentation.xml";
    const Parts& good = getTemplateParts();
    const auto without = [&](const char* part) {
        Parts parts = good;
        parts.erase(part);
        return parts;
    };
    const Row rows[] = {
        {{{"[Content_Types].xml",
           "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'/>"}},
         "ppt_error:invalidTemplate"},
        {without("ppt/presentation.xml"), "ppt_error:invalidTemplate"},
        {withChange(good, "[Content_Types].xml", "presentation.main+xml", "other+xml"),
         "ppt_error:invalidTemplate"},
        {withChange(good, presentation, "<p:sldMasterIdLst>", "<p:sldMasterIdLst"),
         "ppt_error:partDOMBuildError"},
        {withChange(good, presentation, "?>", "?><!DOCTYPE x>"), "ppt_error:partDOMBuildError"},
        {withChange(good, presentation, "r:id=\"", "r:id=\"none"), "ppt_error:cannotOpenFile"},
        {without("ppt/slideMasters/slideMaster1.xml"), "ppt_error:cannotOpenFile"},
        {without("ppt/slideLayouts/slideLayout3.xml"), "ppt_error:cannotOpenFile"},
    };
    for (const Row& row : rows) {
        useTemplate(row.parts);
        const std::string error = errorOf([&] { deck.open(); });
        EXPECT_EQ(error.substr(0, std::string(row.error).size()), row.error) << error;
        EXPECT_NE(error.find("/"), std::string::npos) << error; // a file or a part is named
        EXPECT_FALSE(FileUtils::fileExists(output));
    }
    deck = Presentation();
    EXPECT_TRUE(temporary.list().empty());
}

// A few bytes that would cost the machine's memory are told from a deck by what they would cost.
TEST_F(FailureTest, TemplatesThatCostTooMuchAreRefused) {
    const std::string master = "ppt/slideMasters/slideMaster1.xml";
    useTemplate(withChange(getTemplateParts(), master, "<p:spTree>",
                           "<p:spTree x='" + std::string(27 << 20, 'x') + "'>"));
    EXPECT_EQ(errorOf([&] { deck.open(); }).find("ppt_error:partDOMBuildError /" + master), 0u);
    deck = Presentation(folder / L"one.pptx");
    deck.add(L"Blank");
    deck.close();
    const Parts one = readParts(folder / L"one.pptx");
    const std::string entry = findOne(one.at("ppt/presentation.xml"), "p:sldId");
    const std::string id =
        entry.substr(entry.find("r:id='") + 6, entry.rfind('\'') - entry.find("r:id='") - 6);
    std::string list;
    for (unsigned i = 0; i <= opc::kMaxReadings; ++i)
        list += "<p:sldId id='300' r:id='" + id + "'/>";
    const Parts often = withChange(one, "ppt/presentation.xml", "</p:sldIdLst>", list + "</p:sldIdLst>");
    useTemplate(often, L"often.pptx");
    EXPECT_NE(errorOf([&] { deck.open(); }).find("referred to"), std::string::npos);
    useTemplate(withChange(often, "ppt/slides/slide1.xml", "<p:spTree>",
                           "<p:spTree x='" + std::string(2 << 20, 'x') + "'>"),
                L"wide.pptx"); // modest by itself
    EXPECT_NE(errorOf([&] { deck.open(); }).find("slide1.xml all that is read"), std::string::npos);
    EXPECT_FALSE(FileUtils::fileExists(output));
}

TEST_F(FailureTest, ARejectedTemplateCanBeReplacedAndABrokenOneCant) {
    useTemplate(withChange(getTemplateParts(), "[Content_Types].xml", "presentation.main+xml", "other+xml"));
    EXPECT_NE(errorOf([&] { deck.open(); }), "nothing");
    writeParts(folder / L"template.pptx", getTemplateParts());
    EXPECT_TRUE(deck.open());

    useTemplate(withChange(getTemplateParts(), "ppt/presentation.xml", "</p:presentation>", ""));
    EXPECT_NE(errorOf([&] { deck.open(); }), "nothing");
    EXPECT_FALSE(deck.open()); // stuck on the way, as it is documented
    EXPECT_TRUE(deck.getMasterNames().empty());
    EXPECT_EQ(errorOf([&] { deck.add(L"Blank"); }), "ppt_error:invalidLayoutName Blank");
    EXPECT_FALSE(deck.close());
}

} // namespace
