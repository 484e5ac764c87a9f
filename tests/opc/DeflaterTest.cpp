#include "vellox/opc/Deflater.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Package.h"
#include "vellox/opc/ZipPhysicalPackage.h"

#include "tests/support/Files.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <random>

using namespace opc;
namespace test = vellox::test;

namespace {

std::string makeXml() {
    std::string xml = "<a>";
    for (int i = 0; i < 20000; ++i)
        xml += "<b c='" + std::to_string(i * 7919 % 10007) + "'/>";
    return xml + "</a>";
}

// Nothing makes it smaller, so that it comes out longer than it went in.
std::string makeNoise() {
    std::mt19937 draw(1);
    std::string noise(100000, '\0');
    for (char& c : noise)
        c = static_cast<char>(draw());
    return noise;
}

TEST(Deflater, WritesWhatCanBeReadAtEveryLevel) {
    const test::TempFolder folder;
    const test::Parts parts{{"a.xml", makeXml()}, {"b.xml", ""}, {"c.xml", "<c/>"}, {"d.bin", makeNoise()}};
    std::vector<std::size_t> sizes;
    for (const Compression compression : {Compression::Fast, Compression::Normal, Compression::Small}) {
        const auto file = LocalFileSystemOps().createOutputStream(folder / L"a.zip", kWriteBinary);
        const auto archive =
            boost::make_shared<ZipPhysicalPackage>(boost::make_shared<StdOStreamAdaptor>(file), false);
        archive->setCompression(compression);
        Package package(archive, true);
        package.open(OpenMode::Write);
        for (const auto& part : parts) {
            Part made = package.createPart(PartName(L"/" + vellox::fromUtf8(part.first)),
                                           ContentType(L"application/x+xml"), {});
            made.getOutputStream().write(reinterpret_cast<const unsigned char*>(part.second.data()),
                                         part.second.size());
        }
        package.close(false);
        test::Parts read = test::readParts(folder / L"a.zip"); // with the checksums
        read.erase("[Content_Types].xml");
        EXPECT_EQ(read, parts);
        sizes.push_back(test::readFile(folder / L"a.zip").size());
    }
    EXPECT_GT(sizes[0], sizes[1]);
    EXPECT_GT(sizes[1], sizes[2]);
    EXPECT_LT(sizes[0], 300000u);
}

std::string read(Part part) {
    std::string content;
    unsigned char block[1000];
    InputStream& stream = part.getInputStream();
    while (const std::size_t count = stream.read(block, sizeof block))
        content.append(reinterpret_cast<const char*>(block), count);
    return content;
}

TEST(Deflater, KeepsNewContentReadableAndReplaceable) {
    const test::TempFolder folder;
    const auto file = LocalFileSystemOps().createOutputStream(folder / L"a.zip", kWriteBinary);
    Package package(
        boost::make_shared<ZipPhysicalPackage>(boost::make_shared<StdOStreamAdaptor>(file), false), true);
    package.open(OpenMode::Write);
    Part part = package.createPart(PartName(L"/a.xml"), ContentType(L"application/x+xml"), {});
    const auto write = [&](const std::string& text, bool mustClose) {
        OutputStream& stream = part.getOutputStream();
        stream.write(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        if (mustClose)
            stream.close();
        EXPECT_EQ(read(part), text);
    };
    write("<a>first</a>", true);
    write(makeXml(), true);
    write("<a>first</a>", true); // once more: it is remembered
    write("<a>last</a>", false);
    package.close(false);
    EXPECT_EQ(test::readParts(folder / L"a.zip").at("a.xml"), "<a>last</a>");
}

} // namespace
