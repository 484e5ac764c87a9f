#include "vellox/check/PackageCheck.h"

#include "vellox/check/FindingCodes.h"
#include "vellox/host/services/Utf8.h"

#include "tests/support/Files.h"
#include "tests/support/Mutations.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using test::Parts;

namespace {

std::string describe(const std::vector<Finding>& findings) {
    std::ostringstream text;
    for (const Finding& finding : findings)
        text << toString(finding.severity) << " " << finding.code << " " << toUtf8(finding.part) << " "
             << finding.slide << " " << toUtf8(finding.shape) << ": " << toUtf8(finding.text) << "\n";
    return text.str();
}

bool has(const std::vector<Finding>& findings, const std::string& code) {
    return std::any_of(findings.begin(), findings.end(),
                       [&](const Finding& finding) { return finding.code == code; });
}

class PackageCheck : public testing::Test {
protected:
    std::vector<Finding> check(const Parts& parts, const test::ZipStyle& style = {}) {
        test::writeParts(path, parts, style);
        return checkPackage(path);
    }

    const test::TempFolder folder;
    const std::wstring path = folder / L"deck.pptx";
    const Parts sound = test::makeSoundDeck();
};

TEST_F(PackageCheck, LetsASoundDeckPass) {
    EXPECT_EQ(describe(check(sound)), "");
    // Archives as other programs write them, and other prefixes, are as good.
    test::ZipStyle style;
    style.contentTypesLast = true;
    style.stored = true;
    Parts parts = sound;
    std::string& slide = parts["ppt/slides/slide2.xml"];
    for (std::size_t at = 0; (at = slide.find("a:", at)) != std::string::npos; at += 3)
        if (at > 0 && (slide[at - 1] == '<' || slide[at - 1] == '/'))
            slide.replace(at, 2, "zz:");
    slide.replace(slide.find("xmlns:a="), 8, "xmlns:zz=");
    EXPECT_EQ(describe(check(parts, style)), "");
}

// Two hundred spoiled packages, each of which has to show the finding that its kind leads to.
TEST_F(PackageCheck, FindsEachKindOfDamage) {
    constexpr unsigned kPackages = 200;
    const auto& mutations = test::getMutations();
    for (unsigned i = 0; i < kPackages; ++i) {
        const test::Mutation& mutation = mutations[i % mutations.size()];
        const auto findings = check(test::mutate(sound, mutation, i));
        EXPECT_TRUE(has(findings, mutation.code))
            << mutation.code << " for " << mutation.place << ", seed " << i << "\n"
            << describe(findings);
    }
}

TEST_F(PackageCheck, SaysWhere) {
    const auto findings = check(test::withChange(sound, "ppt/slides/slide1.xml", "sz=\"1800\"", "sz=\"10\""));
    ASSERT_EQ(findings.size(), 1u) << describe(findings);
    EXPECT_EQ(findings[0].severity, Severity::Error);
    EXPECT_EQ(findings[0].part, L"/ppt/slides/slide1.xml");
    EXPECT_EQ(findings[0].slide, 1u);
    EXPECT_EQ(findings[0].shape, L"Words");
    EXPECT_EQ(findings[0].text, L"sz=\"10\" of a:rPr isn't a whole number from 100 to 400000");
    // One swap is one finding, and so is one gap.
    const auto swapped = check(test::withChange(
        sound, "ppt/slides/slide1.xml", "<a:off x=\"-100\" y=\"200\"/><a:ext cx=\"300\" cy=\"400\"/>",
        "<a:ext cx=\"300\" cy=\"400\"/><a:off x=\"-100\" y=\"200\"/>"));
    EXPECT_EQ(describe(swapped), "error elementOrder /ppt/slides/slide1.xml 1 Words: a:off comes too late in "
                                 "a:xfrm, or once too often\n");
    const auto gap = check(test::withChange(sound, "ppt/slides/slide2.xml", "<p:cNvGraphicFramePr/>", ""));
    EXPECT_EQ(describe(gap), "error missingElement /ppt/slides/slide2.xml 2 Table: p:nvGraphicFramePr lacks "
                             "p:cNvGraphicFramePr\n");
}

TEST_F(PackageCheck, LooksIntoTheArchive) {
    test::ZipStyle style;
    style.twice = {"ppt/slides/slide1.xml"};
    style.withFolders = true;
    const auto findings = check(sound, style);
    EXPECT_TRUE(has(findings, "duplicateEntry")) << describe(findings);
    EXPECT_TRUE(has(findings, "folderEntry")) << describe(findings);
    Parts parts = sound;
    parts["ppt\\strange.xml"] = "<a/>";
    parts["ppt/_rels/none.xml.rels"] = parts["ppt/slides/_rels/slide2.xml.rels"];
    const auto strange = check(parts);
    EXPECT_TRUE(has(strange, "entryName")) << describe(strange);
    EXPECT_TRUE(has(strange, "strayRelationships")) << describe(strange);
    parts["../evil.xml"] = "<a/>";
    EXPECT_TRUE(has(check(parts), "cannotOpen"));
    EXPECT_EQ(describe(checkPackage(folder / L"none.pptx")).substr(0, 16), "error cannotOpen");
    test::writeFile(path, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 and so on");
    EXPECT_NE(describe(checkPackage(path)).find("encrypted"), std::string::npos);
}

// One part after another that is modest by itself would take all memory together; and nobody may ever write to a pipe.
TEST_F(PackageCheck, EndsWhateverItIsGiven) {
    Parts parts = sound;
    const std::string bulk = "<a x='" + std::string(4 << 20, 'x') + "'/>";
    for (int i = 0; i < 8; ++i)
        parts["ppt/slides/bulk" + std::to_string(i) + ".xml"] = bulk;
    EXPECT_NE(describe(check(parts)).find("far too much"), std::string::npos);
    const std::wstring pipe = folder / L"pipe.pptx";
    ASSERT_EQ(::mkfifo(toUtf8(pipe).c_str(), 0600), 0);
    EXPECT_EQ(describe(checkPackage(pipe)),
              "error cannotOpen  0 : the package can't be opened: it is no regular file\n");
}

// A folder is a package too, and the strict form is told once.
TEST_F(PackageCheck, TakesFoldersAndTheStrictForm) {
    for (const auto& part : sound) {
        std::filesystem::create_directories((folder.getPath() / "deck" / part.first).parent_path());
        test::writeFile(folder / (L"deck/" + fromUtf8(part.first)), part.second);
    }
    EXPECT_EQ(describe(checkPackage(folder / L"deck")), "");
    const auto strict =
        check(test::withChange(test::withChange(sound, "ppt/slides/slide1.xml",
                                                "http://schemas.openxmlformats.org/presentationml/2006/main",
                                                "http://purl.oclc.org/ooxml/presentationml/main"),
                               "ppt/slides/slide1.xml", "sz=\"1800\"", "sz=\"18pt\""));
    EXPECT_EQ(describe(strict).substr(0, 20), "warning strictForm  ");
    EXPECT_EQ(strict.size(), 1u);
}

// Every byte in turn is damaged: whatever comes of it, it is findings.
TEST_F(PackageCheck, SurvivesDamageAnywhere) {
    test::writeParts(path, sound);
    const std::string whole = test::readFile(path);
    for (std::size_t at = 0; at < whole.size(); at += whole.size() / 24) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        test::writeFile(path, damaged);
        checkPackage(path);
        test::writeFile(path, whole.substr(0, at));
        EXPECT_FALSE(checkPackage(path).empty());
    }
    Parts parts = sound;
    std::string deep = "<p:sld xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\">";
    for (int i = 0; i < 1000; ++i)
        deep += "<p:sp>";
    parts["ppt/slides/slide1.xml"] = deep;
    EXPECT_TRUE(has(check(parts), "notWellFormed"));
    std::string wide = sound.at("ppt/slides/slide1.xml");
    for (int i = 0; i < 3000; ++i)
        wide.insert(wide.find("</p:spTree>"), "<p:blob/>");
    parts["ppt/slides/slide1.xml"] = wide;
    const auto many = check(parts);
    EXPECT_EQ(many.size(), 1001u);
    EXPECT_EQ(many.back().code, "moreFindings");
}

// The page for users, the comment in the header and the table name the same codes.
TEST(FindingCodes, AreDocumented) {
    const std::string page = test::readFile(fromUtf8(SOURCE_FOLDER "/docs/check.md"));
    const std::string header = test::readFile(fromUtf8(SOURCE_FOLDER "/vellox/check/PackageCheck.h"));
    std::size_t number = 0;
    for (const check::CodeRow& row : check::kCodes) {
        EXPECT_EQ(static_cast<std::size_t>(row.code), number++) << row.name;
        EXPECT_NE(page.find("| `" + std::string(row.name) + "` | " + toString(row.severity) + " |"),
                  std::string::npos)
            << row.name;
        EXPECT_NE(header.find(row.name), std::string::npos) << row.name;
    }
}

} // namespace
