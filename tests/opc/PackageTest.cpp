#include "vellox/opc/Package.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/FileSystemPhysicalPackage.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/Uri.h"
#include "vellox/opc/XercesString.h"
#include "vellox/opc/ZipPhysicalPackage.h"

#include "tests/support/Files.h"
#include "tests/support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <zip.h>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <tuple>
#include <xercesc/util/XMLUri.hpp>

using namespace vellox;
using namespace opc;
using test::Parts;
using test::TempFolder;

namespace {

const char kTypes[] = "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'>"
                      "<Default Extension='rels' "
                      "ContentType='application/vnd.openxmlformats-package.relationships+xml'/>"
                      "<Default Extension='xml' ContentType='application/xml'/>"
                      "<Override PartName='/Docs/Main.xml' ContentType='application/main+xml'/></Types>";
const char kMainRels[] =
    "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>"
    "<Relationship Id='rId1' Type='t' Target='side.xml'/>"
    "<Relationship Id='rId3' Type='t' Target='/docs/%C3%A4.xml#top'/>"
    "<Relationship Id='x' Type='link' Target='http://a/b' TargetMode='External'/>"
    "</Relationships>";

Parts makeParts() {
    return {{"[Content_Types].xml", kTypes},
            {"docs/main.xml", "<main/>"},
            {"docs/_rels/main.xml.rels", kMainRels},
            {"docs/side.xml", "<side>" + std::string(5000, 'x') + "</side>"},
            {"docs/\xC3\xA4.xml", "<umlaut/>"}};
}

boost::shared_ptr<Package> openZip(const std::wstring& path, OpenMode mode) {
    auto package =
        boost::make_shared<Package>(boost::make_shared<ZipPhysicalPackage>(path, true, std::wstring()), true);
    package->open(mode);
    return package;
}

std::string readAll(Part part) {
    std::string bytes;
    InputStream& stream = part.getInputStream();
    unsigned char block[100];
    while (const std::size_t count = stream.read(block, sizeof block))
        bytes.append(reinterpret_cast<const char*>(block), count);
    return bytes;
}

void write(Part part, const std::string& bytes) {
    OutputStream& stream = part.getOutputStream();
    stream.write(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    stream.close();
}

std::string failureOf(const std::wstring& path) {
    try {
        openZip(path, OpenMode::Read);
    } catch (const opc::Exception& failure) {
        return failure.what();
    }
    return "none";
}

TEST(PartName, ComparesAsPackagesDo) {
    EXPECT_EQ(PartName(L"/Docs/Main.XML"), PartName(L"/docs/main.xml"));
    EXPECT_EQ(PartName(L"/\u00e4"), PartName(L"/%C3%a4"));
    EXPECT_NE(PartName(L"/\u00c4"), PartName(L"/\u00e4")); // only ASCII letters have no case
    EXPECT_EQ(PartName(L"/a/b.").toString(), L"/a/b");
    EXPECT_EQ(PartName(L"/a/my file.png").toEntryName(), "a/my%20file.png");
    EXPECT_EQ(PartName(L"/a/b#1?.xml").toURI().toString(), L"/a/b%231%3F.xml");
    EXPECT_EQ(PartName(L"/a/b.xml").getRelationshipPartName().toString(), L"/a/_rels/b.xml.rels");
    for (const wchar_t* name : {L"", L"a", L"/", L"/a/", L"/a//b", L"/a/../b", L"/./a", L"/a/%2e%2e%2Fb",
                                L"/a\\b", L"/a%5cb", L"/a\x1", L"/..."})
        EXPECT_THROW(PartName{name}, opc::Exception) << toUtf8(name);
}

TEST(Targets, ResolveAndGoBack) {
    struct Row {
        const wchar_t *folder, *target, *name, *relative;
    };
    const Row rows[] = {
        {L"/ppt/slides/", L"../media/a.png", L"/ppt/media/a.png", L"../media/a.png"},
        {L"/ppt/", L"slides/s.xml", L"/ppt/slides/s.xml", L"slides/s.xml"},
        {L"/", L"ppt/p.xml", L"/ppt/p.xml", L"ppt/p.xml"},
        {L"/ppt/", L"/docProps/c.xml", L"/docProps/c.xml", L"../docProps/c.xml"},
        {L"/ppt/", L"./a.xml?q#f", L"/ppt/a.xml", L"a.xml"},
        {L"/ppt/", L"../../../a.xml", L"/a.xml", L"../a.xml"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(resolveTarget(row.folder, row.target), row.name);
        EXPECT_EQ(makeRelativeTarget(row.folder, row.name), row.relative);
    }
}

// What is no reference makes readers refuse the whole package; what is one stays.
TEST(Targets, AreReferences) {
    const std::pair<std::wstring, std::wstring> rows[] = {
        {L"http://a/b c?d=\"\u00e4\"%20", L"http://a/b%20c?d=%22\u00e4%22%20"},
        {L"  http://a/\r\n", L"http://a/"},
        {L"file:///C:/a[1].txt", L"file:///C:/a%5B1%5D.txt"},
        {L"http://a/?q[]=1#x[y]", L"http://a/?q%5B%5D=1#x%5By%5D"},
        {L"http://a/100%?x=%zz&y=%2", L"http://a/100%25?x=%25zz&y=%252"},
        {L"http://a/#b#c", L"http://a/#b%23c"},
        {L"http://[::1]:80/", L"http://[::1]:80/"},
        {L"http://[nowhere]/", L"http://%5Bnowhere%5D/"},
        {L"http://me@host@a:port/", L"http://me%40host@a%3Aport/"},
        {L"1.2.3.4:80/x:y", L"1.2.3.4%3A80/x:y"},
        {L"C:\\data\\x.csv", L"C:\\data\\x.csv"},
        {L"mailto:a@b.c?subject=x%20y", L"mailto:a@b.c?subject=x%20y"},
        {L"", L""},
    };
    const XercesProcess xerces;
    for (const auto& row : rows) {
        EXPECT_EQ(makeExternalTarget(row.first), row.second);
        EXPECT_EQ(makeExternalTarget(row.second), row.second);
        const bool isPlain =
            row.second.find_first_of(L"\\\u00e4") == std::wstring::npos && !row.second.empty();
        EXPECT_TRUE(!isPlain || xercesc::XMLUri::isValidURI(true, XercesString(row.second)))
            << vellox::toUtf8(row.second);
    }
}

TEST(Package, ReadsWhatIsOutThere) {
    const TempFolder folder;
    Parts prefixed = makeParts();
    prefixed["[Content_Types].xml"] =
        "\xEF\xBB\xBF<c:Types xmlns:c='http://schemas.openxmlformats.org/package/2006/"
        "content-types'><c:Default Extension='XML' ContentType='application/xml'/>"
        "<c:Override PartName='/docs/main.xml' ContentType='application/main+xml'/>"
        "</c:Types>";
    test::ZipStyle odd;
    odd.contentTypesLast = odd.withFolders = odd.stored = true;
    test::writeParts(folder / L"plain.zip", makeParts());
    test::writeParts(folder / L"odd.zip", makeParts(), odd);
    test::writeParts(folder / L"prefixed.zip", prefixed);
    for (const wchar_t* name : {L"plain.zip", L"odd.zip", L"prefixed.zip"}) {
        const auto package = openZip(folder / name, OpenMode::Read);
        const Part main = package->getPart(PartName(L"/DOCS/main.xml"));
        EXPECT_EQ(main.getContentType().toString(), L"application/main+xml");
        EXPECT_EQ(package->getPart(PartName(L"/docs/side.xml")).getContentType().toString(),
                  L"application/xml");
        ASSERT_EQ(main.getRelationships().size(), 3u);
        EXPECT_EQ(main.getRelationshipByID(L"rId1").getTargetURI().toString(), L"/docs/side.xml");
        const Relationship umlaut = main.getRelationshipByID(L"rId3");
        EXPECT_EQ(readAll(package->getPart(PartName(umlaut.getTargetURI().toString()))), "<umlaut/>");
        EXPECT_EQ(main.getRelationshipByID(L"x").getTargetURI().toString(), L"http://a/b");
        EXPECT_THROW(main.getRelationshipByID(L"rId2"), opc::Exception);
        EXPECT_THROW(package->getPart(PartName(L"/docs/none.xml")), opc::Exception);
    }
}

TEST(Package, SavesChangesAndCarriesTheRestOver) {
    const TempFolder folder;
    test::ZipStyle odd;
    odd.contentTypesLast = odd.withFolders = true;
    test::writeParts(folder / L"a.zip", makeParts(), odd);
    test::writeFile(folder / L"image.png", std::string(3000, 'p'));
    {
        const auto package = openZip(folder / L"a.zip", OpenMode::ReadWrite);
        Part main = package->getPart(PartName(L"/docs/main.xml"));
        write(main, "<new/>");
        EXPECT_EQ(readAll(main), "<new/>");
        Part made = package->createPart(PartName(L"/docs/new.xml"), ContentType(L"application/new+xml"), {});
        write(made, "<made/>");
        EXPECT_EQ(main.createInternalRelationship(L"t", URI(L"/docs/new.xml"), {}).getID(), L"rId2");
        EXPECT_EQ(main.createExternalRelationship(L"link", L"http://a/<b>", {}).getID(), L"rId4");
        Part image = package->createPart(PartName(L"/media/i.png"), ContentType(L"image/png"), {0, 0});
        image.setContentFile(folder / L"image.png");
        Part unknown = package->createPart(PartName(L"/media/i.xyz"), ContentType(L""), {});
        package->createPart(PartName(L"/media/other.PNG"), ContentType(L""),
                            {}); // what the list says of its extension
        write(unknown, "?");
        EXPECT_EQ(main.createExternalRelationship(L"link", L"b", {}).getID(), L"rId5");
        main.deleteRelationship(L"rId5");
        EXPECT_THROW(main.getRelationshipByID(L"rId5"), opc::Exception);
        EXPECT_EQ(main.getRelationshipByID(L"rId4").getTargetURI().toString(), L"http://a/%3Cb%3E");
        EXPECT_THROW(package->createPart(PartName(L"/DOCS/new.xml"), ContentType(L""), {}), opc::Exception);
        package->close(false);
        package->close(false); // harmless
    }
    Parts saved = test::readParts(folder / L"a.zip");
    EXPECT_EQ(saved.count("ppt/"), 0u); // no entries for folders
    EXPECT_EQ(saved["docs/main.xml"], "<new/>");
    EXPECT_EQ(saved["docs/side.xml"], makeParts()["docs/side.xml"]);
    EXPECT_EQ(saved["media/i.png"], std::string(3000, 'p'));
    EXPECT_EQ(test::valuesOf(saved["docs/_rels/main.xml.rels"], "Relationship", "Target"),
              (std::vector<std::string>{"side.xml", "/docs/%C3%A4.xml#top", "http://a/b", "new.xml",
                                        "http://a/%3Cb%3E"}));
    EXPECT_EQ(test::canonical(saved["[Content_Types].xml"]),
              "<Types><Default ContentType='application/vnd.openxmlformats-package.relationships+xml' "
              "Extension='rels'/><Default ContentType='application/xml' Extension='xml'/>"
              "<Default ContentType='image/png' Extension='png'/>"
              "<Default ContentType='application/octet-stream' Extension='xyz'/>"
              "<Override ContentType='application/main+xml' PartName='/Docs/Main.xml'/>"
              "<Override ContentType='application/new+xml' PartName='/docs/new.xml'/></Types>");
    EXPECT_EQ(test::readFile(folder / L"a.zip").substr(30, 19), "[Content_Types].xml"); // the first entry
    EXPECT_EQ(folder.list().size(), 2u); // and no temporary file
}

// What an archive says of an entry: its bytes as they are, and the facts of its header in the directory.
struct RawEntry {
    std::string bytes;
    unsigned method = 0, flags = 0, time = 0, date = 0;
    bool operator==(const RawEntry& other) const {
        return std::tie(bytes, method, flags, time, date) ==
               std::tie(other.bytes, other.method, other.flags, other.time, other.date);
    }
};

RawEntry readRaw(const std::wstring& path, const std::string& name) {
    const std::string whole = test::readFile(path);
    const std::size_t header = whole.rfind(name) - 46;
    const auto number = [&](std::size_t place, unsigned size) {
        unsigned value = 0;
        for (unsigned i = 0; i < size; ++i)
            value |= static_cast<unsigned>(static_cast<unsigned char>(whole[place + i])) << (8 * i);
        return value;
    };
    const std::size_t local = number(header + 42, 4);
    for (const unsigned fact : {0u, 2u, 4u, 6u}) // the header before the bytes says the same
        EXPECT_EQ(number(header + 8 + fact, 2), number(local + 6 + fact, 2)) << name << " " << fact;
    const std::size_t start = local + 30 + number(local + 26, 2) + number(local + 28, 2);
    return {whole.substr(start, number(header + 20, 4)), number(header + 10, 2), number(header + 8, 2),
            number(header + 12, 2), number(header + 14, 2)};
}

// Whatever stands there: times that no calendar has, or that daylight saving leaves out, and the marks of another
// compressor. Deflated anew, a film would only take longer.
TEST(Package, CarriesUntouchedEntriesOverAsTheyAre) {
    struct Row {
        const char* name;
        unsigned time, date, flags;
    };
    const Row rows[] = {
        {"docs/side.xml", 0, 0, 0}, // no date at all
        {"docs/\xC3\xA4.xml", 0x13C0, 0x5A7D,
         0x806},                              // half past two on 2025-03-29, deflated with little effort
        {"docs/main.xml", 0x13C0, 0x5A7E, 2}, // and on the next day, when that hour was left out
        {"docs/_rels/main.xml.rels", 0xFFFF, 0xFFFF, 0},
    };
    const char* const formerZone = getenv("TZ");
    const std::string zone = formerZone ? formerZone : "";
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    for (const bool isStored : {false, true}) {
        const TempFolder folder;
        test::ZipStyle style;
        style.stored = isStored;
        test::writeParts(folder / L"a.zip", makeParts(), style);
        std::string whole = test::readFile(folder / L"a.zip");
        for (const Row& row : rows)
            for (const std::size_t place : {whole.find(row.name) - 30 + 6, whole.rfind(row.name) - 46 + 8}) {
                const unsigned facts[] = {row.flags, isStored ? 0u : 8u, row.time, row.date};
                for (std::size_t i = 0; i < 8; ++i)
                    whole[place + i] = static_cast<char>(facts[i / 2] >> (i % 2 * 8) & 255);
            }
        test::writeFile(folder / L"a.zip", whole);
        openZip(folder / L"a.zip", OpenMode::ReadWrite)->close(false);
        EXPECT_EQ(test::readFile(folder / L"a.zip"), whole); // nothing changed, nothing written
        std::vector<RawEntry> before, after;
        for (const Row& row : rows)
            before.push_back(readRaw(folder / L"a.zip", row.name));
        const auto package = openZip(folder / L"a.zip", OpenMode::ReadWrite);
        write(package->createPart(PartName(L"/new.xml"), ContentType(L"application/new+xml"), {}), "<new/>");
        package->close(false);
        for (const Row& row : rows)
            after.push_back(readRaw(folder / L"a.zip", row.name));
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_TRUE(before[i] == after[i])
                << rows[i].name << " " << after[i].time << " " << after[i].date;
        EXPECT_EQ(readRaw(folder / L"a.zip", "new.xml").method, 8u);
        EXPECT_EQ(readRaw(folder / L"a.zip", "new.xml").date, 0x21u);
        EXPECT_EQ(test::readParts(folder / L"a.zip")["docs/side.xml"], makeParts()["docs/side.xml"]);
    }
    if (formerZone)
        setenv("TZ", zone.c_str(), 1);
    else
        unsetenv("TZ");
    tzset();
}

TEST(Package, RefusesWhatCantBeTrusted) {
    const TempFolder folder;
    const auto refuse = [&](const Parts& parts, const char* reason, const test::ZipStyle& style = {}) {
        test::writeParts(folder / L"bad.zip", parts, style);
        EXPECT_NE(failureOf(folder / L"bad.zip").find(reason), std::string::npos)
            << failureOf(folder / L"bad.zip") << " for " << reason;
    };
    Parts parts = makeParts();
    parts.erase("[Content_Types].xml");
    refuse(parts, "no package");
    refuse({{"[Content_Types].xml", "<Types/>"}}, "isn't a list of content types");
    refuse({{"[Content_Types].xml", "<Types xmlns="}}, "(line 1");
    refuse({{"[Content_Types].xml", std::string("<!DOCTYPE Types>") + kTypes}}, "document type");
    parts = makeParts();
    parts["../evil.xml"] = "<evil/>";
    refuse(parts, "no part name");
    test::ZipStyle twice;
    twice.twice = {"docs/main.xml"};
    refuse(makeParts(), "two parts named", twice);

    const std::string whole = [&] {
        test::writeParts(folder / L"good.zip", makeParts());
        return test::readFile(folder / L"good.zip");
    }();
    for (const std::size_t size : {std::size_t(0), std::size_t(3), whole.size() / 2, whole.size() - 1}) {
        test::writeFile(folder / L"cut.zip", whole.substr(0, size));
        EXPECT_NE(failureOf(folder / L"cut.zip"), "none") << size;
    }
    test::writeFile(folder / L"cut.zip", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 and so on");
    EXPECT_NE(failureOf(folder / L"cut.zip").find("encrypted"), std::string::npos);
    EXPECT_NE(failureOf(folder / L"missing.zip"), "none");
}

// Writes a number of four bytes into the entry of a name in an archive's directory, at an offset.
void patchDirectory(const std::wstring& path, const std::string& name, std::size_t offset,
                    std::uint32_t number) {
    std::string bytes = test::readFile(path);
    const std::size_t entry = bytes.rfind(name) - 46;
    ASSERT_EQ(bytes.substr(entry, 4), "PK\1\2");
    for (std::size_t i = 0; i < 4; ++i)
        bytes[entry + offset + i] = static_cast<char>(number >> (8 * i) & 255);
    test::writeFile(path, bytes);
}

TEST(Package, RefusesEncryptedAndInflatingEntries) {
    const TempFolder folder;
    Parts parts = makeParts();
    parts["docs/bomb.xml"] = "<a>" + std::string(20 << 20, ' ') + "</a>";
    test::writeParts(folder / L"bomb.zip", parts);
    const auto readBomb = [&] {
        return readAll(openZip(folder / L"bomb.zip", OpenMode::Read)->getPart(PartName(L"/docs/bomb.xml")));
    };
    EXPECT_EQ(readBomb(), parts["docs/bomb.xml"]); // repetitive, and harmless
    patchDirectory(folder / L"bomb.zip", "docs/bomb.xml", 24, kMaxXmlBytes + 1);
    EXPECT_THROW(readBomb(), opc::Exception);
    const auto package = openZip(folder / L"bomb.zip", OpenMode::Read);
    EXPECT_EQ(readAll(package->getPart(PartName(L"/docs/main.xml"))), "<main/>");

    zip_t* archive = zip_open(toUtf8(folder / L"bomb.zip").c_str(), 0, nullptr);
    zip_file_set_encryption(archive, 0, ZIP_EM_AES_256, "secret");
    ASSERT_EQ(zip_close(archive), 0);
    EXPECT_NE(failureOf(folder / L"bomb.zip").find("is encrypted"), std::string::npos);
}

// In a copy of the package each would have bytes of its own.
TEST(Package, RefusesEntriesThatLieOverOneAnother) {
    const TempFolder folder;
    test::ZipStyle stored;
    stored.stored = true;
    test::writeParts(folder / L"a.zip", makeParts(), stored);
    patchDirectory(folder / L"a.zip", "docs/main.xml", 20, 5000); // reaches into the next
    EXPECT_NE(failureOf(folder / L"a.zip").find("overlap"), std::string::npos)
        << failureOf(folder / L"a.zip");
}

TEST(Package, BoundsNamespacesAndTypes) {
    const TempFolder folder;
    std::string declarations, types, repeated;
    for (unsigned i = 0; i < kMaxNamespaces; ++i)
        declarations += " xmlns:n" + std::to_string(i) + "='urn:n'";
    for (unsigned i = 0; i < 2 * kMaxNamespaces; ++i)
        repeated += "<Default xmlns:n='urn:n' Extension='e" + std::to_string(i) + "' ContentType='a/b'/>";
    for (unsigned i = 0; i < kMaxEntries; ++i)
        types += "<Default/>";
    test::writeParts(folder / L"a.zip",
                     test::withChange(makeParts(), "[Content_Types].xml", "<Types", "<Types" + declarations));
    EXPECT_NE(failureOf(folder / L"a.zip").find("namespaces"), std::string::npos);
    test::writeParts(folder / L"a.zip",
                     test::withChange(makeParts(), "[Content_Types].xml", "</Types>", repeated + "</Types>"));
    EXPECT_EQ(failureOf(folder / L"a.zip"), "none");
    test::writeParts(folder / L"a.zip",
                     test::withChange(makeParts(), "[Content_Types].xml", "</Types>", types + "</Types>"));
    EXPECT_NE(failureOf(folder / L"a.zip").find("types"), std::string::npos);
}

// One byte after the other is damaged: each archive opens or is refused, and a part is read right or not at
// all.
TEST(Package, SurvivesDamageAnywhere) {
    const TempFolder folder;
    test::writeParts(folder / L"good.zip", makeParts());
    const std::string whole = test::readFile(folder / L"good.zip");
    for (std::size_t at = 0; at < whole.size(); at += 7) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        test::writeFile(folder / L"bad.zip", damaged);
        try {
            const auto package = openZip(folder / L"bad.zip", OpenMode::Read);
            EXPECT_EQ(readAll(package->getPart(PartName(L"/docs/main.xml"))), "<main/>") << at;
        } catch (const opc::Exception&) {
        }
    }
}

TEST(Package, ReadsAndWritesStreams) {
    const TempFolder folder;
    {
        const auto file = LocalFileSystemOps().createOutputStream(folder / L"a.zip", kWriteBinary);
        Package package(
            boost::make_shared<ZipPhysicalPackage>(boost::make_shared<StdOStreamAdaptor>(file), false), true);
        package.open(OpenMode::Write);
        write(package.createPart(PartName(L"/a.xml"), ContentType(L"application/a+xml"), {}), "<a/>");
        package.createInternalRelationship(L"t", URI(L"/a.xml"), {});
        package.close(false);
    }
    const auto file = LocalFileSystemOps().createInputStream(folder / L"a.zip", kReadBinary);
    Package package(boost::make_shared<ZipPhysicalPackage>(boost::make_shared<StdIStreamAdaptor>(file)),
                    true);
    package.open(OpenMode::Read);
    const std::wstring name = package.getRelationships().front().getTargetURI().toString();
    EXPECT_EQ(readAll(package.getPart(PartName(name))), "<a/>");
}

TEST(Package, LivesInAFolderAndStaysThere) {
    const TempFolder folder;
    for (const auto& part : makeParts()) {
        std::filesystem::create_directories((folder.getPath() / "p" / part.first).parent_path());
        test::writeFile(folder / (L"p/" + fromUtf8(part.first)), part.second);
    }
    test::writeFile(folder / L"outside.xml", "<outside/>");
    std::filesystem::create_symlink(folder.getPath() / "outside.xml", folder.getPath() / "p/link.xml");
    std::filesystem::create_directory_symlink(folder.getPath(), folder.getPath() / "p/up");
    Package package(boost::make_shared<FileSystemPhysicalPackage>(folder / L"p"), true);
    package.open(OpenMode::ReadWrite);
    EXPECT_FALSE(package.hasPart(PartName(L"/link.xml")));
    EXPECT_FALSE(package.hasPart(PartName(L"/up/outside.xml")));
    write(package.getPart(PartName(L"/docs/main.xml")), "<new/>");
    write(package.createPart(PartName(L"/deep/er/new.xml"), ContentType(L"application/n+xml"), {}),
          "<made/>");
    package.close(false);
    EXPECT_EQ(test::readFile(folder / L"p/docs/main.xml"), "<new/>");
    EXPECT_EQ(test::readFile(folder / L"p/deep/er/new.xml"), "<made/>");

    Package climbing(boost::make_shared<FileSystemPhysicalPackage>(folder / L"p"), true);
    climbing.open(OpenMode::ReadWrite);
    write(climbing.createPart(PartName(L"/up/outside.xml"), ContentType(L"application/n+xml"), {}),
          "<evil/>");
    EXPECT_THROW(climbing.close(false), opc::Exception);
    EXPECT_EQ(test::readFile(folder / L"outside.xml"), "<outside/>");
}

} // namespace
