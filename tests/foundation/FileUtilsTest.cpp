#include "vellox/foundation/FileUtils.h"

#include "vellox/foundation/Exception.h"
#include "vellox/foundation/InfoUtils.h"

#include "tests/support/Expect.h"
#include "tests/support/Files.h"

#include <zip.h>

using namespace vellox;
using test::errorOf;
using test::TempFolder;

namespace {

TEST(FileUtils, TakesPathsApart) {
    struct Row {
        const wchar_t *path, *name, *stem, *extension, *folder;
    };
    const Row rows[] = {
        {L"/a/b.tar.gz", L"b.tar.gz", L"b.tar", L"gz", L"/a"},
        {L"b", L"b", L"b", L"", L""},
        {L"/a/.hidden", L".hidden", L".hidden", L"", L"/a"},
        {L"", L"", L"", L"", L""},
        {L"\u00e9t\u00e9/\U0001F600.PNG", L"\U0001F600.PNG", L"\U0001F600", L"PNG", L"\u00e9t\u00e9"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FileUtils::extractFilename(row.path), row.name);
        EXPECT_EQ(FileUtils::getFileNameStem(row.path), row.stem);
        EXPECT_EQ(FileUtils::getFileNameExtension(row.path), row.extension);
        EXPECT_EQ(FileUtils::extractPath(row.path, false), row.folder);
    }
    EXPECT_EQ(errorOf([] { FileUtils::getFileNameExtension(L"folder/"); }),
              "dom_error:failedToDetermineFilename");
    EXPECT_EQ(FileUtils::appendPath(L"a", L"b"), L"a/b");
    EXPECT_EQ(FileUtils::appendPath(L"a/", L""), L"a/");
    EXPECT_EQ(FileUtils::normalizePath(L"\\\\server\\share"), L"\\\\server\\share");
    EXPECT_EQ(FileUtils::getContentType(L"PICTURE.JPG"), L"image/jpeg");
    EXPECT_EQ(FileUtils::getContentType(L"page.htm"), L"");
}

TEST(FileUtils, ResolvesPathsAsFarAsTheyExist) {
    const TempFolder folder;
    FileUtils::createDirectory(folder / L"real");
    std::filesystem::create_directory_symlink(folder.getPath() / "real", folder.getPath() / "link");
    const std::wstring real = FileUtils::resolvePath(folder / L"real");
    EXPECT_EQ(FileUtils::resolvePath(folder / L"link/."), real);
    EXPECT_EQ(FileUtils::extractPath(folder / L"link/new/../newer/deck.pptx", true), real + L"/newer");
    try {
        FileUtils::resolvePath(folder / L"missing");
        ADD_FAILURE();
    } catch (const FileSystem& failure) { // PathNotFound is one
        EXPECT_EQ(failure.getPathName(), folder / L"missing");
        EXPECT_EQ(failure.code().value(), 2);
    }
}

TEST(FileUtils, RefusesNamesThatSomeSystemCantKeep) {
    for (const wchar_t* name : {L"falcon.pptx", L"Auxiliary.pptx", L"mycom2file.pptx", L"NULLIFY.pptx"})
        EXPECT_EQ(errorOf([&] { FileUtils::validateFileName(name); }),
                  "dom_error:reservedWindowsFileName " + toUtf8(FileUtils::getFileNameStem(name)));
    for (const wchar_t* name : {L"annul.pptx", L"com0.pptx", L"/con/aux/deck.pptx", L"deck.con", L""})
        EXPECT_EQ(errorOf([&] { FileUtils::validateFileName(name); }), "nothing") << toUtf8(name);
    for (const wchar_t* name : {L"a:b.pptx", L"a?.pptx", L"\"a\".pptx", L"a|b"})
        EXPECT_EQ(errorOf([&] { FileUtils::validateFileName(name); }),
                  "dom_error:reservedWindowsFileNameChar " + toUtf8(FileUtils::getFileNameStem(name)));
}

TEST(FileUtils, CopiesAndRemoves) {
    const TempFolder folder;
    test::writeFile(folder / L"a", "new");
    test::writeFile(folder / L"b", "old");
    std::filesystem::permissions(folder.getPath() / "a", std::filesystem::perms::owner_read);
    EXPECT_TRUE(FileUtils::isReadOnlyFile(folder / L"a"));
    FileUtils::copyFile(folder / L"a", folder / L"b", true);
    EXPECT_EQ(test::readFile(folder / L"b"), "new");
    EXPECT_FALSE(FileUtils::isReadOnlyFile(folder / L"b"));
    EXPECT_FALSE(FileUtils::isReadOnlyFile(folder / L"missing"));

    EXPECT_EQ(errorOf([&] { FileUtils::copyFile(folder / L"missing", folder / L"b", false); }),
              "dom_error:failedToCopyFile");
    EXPECT_FALSE(FileUtils::fileExists(folder / L"b")); // removed before the copy was tried

    EXPECT_TRUE(FileUtils::removeFile(folder / L"missing"));
    EXPECT_TRUE(FileUtils::createDirectory(folder / L"c"));
    EXPECT_TRUE(FileUtils::createDirectory(folder / L"c"));
    FileUtils::copyFileToFolder(folder / L"a", folder / L"c", false);
    EXPECT_TRUE(FileUtils::fileExists(folder / L"c/a"));
    EXPECT_TRUE(FileUtils::removeFile(folder / L"c")); // a folder goes too
    EXPECT_EQ(errorOf([&] { FileUtils::createDirectory(folder / L"x/y"); }),
              "dom_error:failedToCreateDirectory");
}

TEST(FileUtils, UnpacksArchivesAndStaysInTheFolder) {
    const TempFolder folder;
    test::writeParts(folder / L"good.zip", {{"a.txt", "text"}, {"b/c.txt", "more"}});
    EXPECT_TRUE(FileUtils::unzip(folder / L"good.zip", folder / L"out"));
    EXPECT_EQ(test::readFile(folder / L"out/b/c.txt"), "more");
    for (const char* name : {"../evil.txt", "b/../../evil.txt", "/tmp/vellox-evil.txt"}) {
        test::writeParts(folder / L"bad.zip", {{name, "text"}});
        EXPECT_FALSE(FileUtils::unzip(folder / L"bad.zip", folder / L"out")) << name;
    }
    EXPECT_FALSE(FileUtils::fileExists(folder / L"evil.txt"));
    EXPECT_FALSE(FileUtils::unzip(folder / L"missing.zip", folder / L"out"));
}

std::string littleEndian(std::initializer_list<int> words) {
    std::string bytes;
    for (const int word : words)
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<char>((word >> shift) & 255));
    return bytes;
}

// A header that claims two thousand million columns.
std::string withHuge(std::string png) {
    return png.replace(16, 4, "\x7f\xff\xff\xff");
}

// Headers as the formats have them, with a size of 7 by 5, and files that lie.
TEST(InfoUtils, ReadsSizesFromHeaders) {
    const TempFolder folder;
    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\7\0\0\0\5\x8\2\0\0\0\0\0\0\0\0\0\0\0IDAT", 41);
    const std::string gif("GIF89a\7\0\5\0\0\0\0", 13);
    const std::string jpeg("\xff\xd8\xff\xc0\0\x11\x8\0\5\0\7\3\1\x22\0\2\x11\1\3\x11\1", 21);
    const std::string psd("8BPS\0\1\0\0\0\0\0\0\0\3\0\0\0\5\0\0\0\7\0\x8\0\3", 26);
    const auto bmp = [](int height) {
        return "BM" + littleEndian({62, 0, 54, 40, 7, height}) + std::string("\1\0\x18\0", 4) +
               littleEndian({0, 0, 0, 0, 0, 0});
    };
    const std::string tiff = std::string("II*\0\x8\0\0\0\3\0", 10) +
                             littleEndian({0x30100, 1, 7, 0x30101, 1, 5, 0x40111, 1, 8, 0});
    struct Row {
        const wchar_t* name;
        std::string bytes;
        double width, height;
    };
    const Row rows[] = {
        {L"a.png", png, 7, 5},
        {L"a.gif", gif, 7, 5},
        {L"a.jpg", jpeg, 7, 5},
        {L"a.psd", psd, 7, 5},
        {L"a.bmp", bmp(5), 7, 5},
        {L"topdown.bmp", bmp(-5), 7, 5},
        {L"a.tif", tiff, 7, 5},
        {L"lies.jpg", png, 7, 5}, // what it holds counts
        {L"noextension", png, 7, 5},
        {L"empty.png", "", 300, 300},
        {L"flat.bmp", bmp(0), 300, 300},
        {L"huge.png", withHuge(png), 300, 300},
        {L"cut.tif", tiff.substr(0, 12), 300, 300},
        {L"text.png", "not an image", 300, 300},
        {L"real.svg", "<svg width='10' height='20'/>", 300, 300},
        {L"PIC.EMF", littleEndian({1, 108, 0, 0, 0, 0, 0, 0, 10000, 5000}), 96 * 10000 / 2540.0,
         96 * 5000 / 2540.0},
        {L"short.emf", littleEndian({1, 108, 0, 0}), 300, 300},
    };
    for (const Row& row : rows) {
        test::writeFile(folder / row.name, row.bytes);
        const ImageInfo info = InfoUtils::getImageInfo(folder / row.name);
        EXPECT_DOUBLE_EQ(info.getWidth(), row.width) << toUtf8(row.name);
        EXPECT_DOUBLE_EQ(info.getHeight(), row.height) << toUtf8(row.name);
    }
    EXPECT_EQ(InfoUtils::getImageInfo(folder / L"missing.png").getWidth(), 300);
    EXPECT_EQ(InfoUtils::getImageInfo(folder / L".").getWidth(), 300);
    EXPECT_EQ(InfoUtils::getImageInfo(L"/dev/zero").getWidth(), 300);
}

} // namespace
