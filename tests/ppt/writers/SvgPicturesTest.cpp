// SVGs with their drawings.

#include "tests/support/DeckTest.h"
#include "vellox/foundation/SvgDrawing.h"
#include "vellox/foundation/SvgText.h"
#include "vellox/ppt/tree/Picture.h"

#include <cmath>
#include <fstream>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

const std::string kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'>"
                         "<rect width='200' height='100' fill='#1a6e82'/></svg>";

TEST(SvgText, DocumentTypesGoAndTheirEntitiesAreIn) {
    const std::string defined =
        "<?xml version='1.0'?><!-- <!DOCTYPE x> --><!DOCTYPE svg PUBLIC \"a>b\" 'c' [\n"
        "<!ENTITY tone \"#f00\"><!-- ]> --><!ENTITY % p 'x'><!ENTITY far SYSTEM 'file:///etc/passwd'>\n"
        "<!ENTITY both '&tone;;&tone;'>]>";
    EXPECT_EQ(takeOffDoctype(defined + "<svg a='&both;' b='&amp;&far;&#65;'/>"),
              "<?xml version='1.0'?><!-- <!DOCTYPE x> --><svg a='#f00;#f00' b='&amp;&far;&#65;'/>");
    EXPECT_EQ(takeOffDoctype(kSvg), kSvg);
    EXPECT_EQ(takeOffDoctype("<svg><!DOCTYPE late></svg>"), "<svg><!DOCTYPE late></svg>");
    std::string bomb = "<!DOCTYPE svg [<!ENTITY a0 'aaaaaaaaaaaaaaaa'>";
    for (int i = 1; i < 30; ++i) {
        const std::string former = "&a" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY a" + std::to_string(i) + " '" + former + former + former + former + "'>";
    }
    EXPECT_THROW(takeOffDoctype(bomb + "]><svg>&a29;</svg>"), SvgFault);
    EXPECT_THROW(takeOffDoctype("<!DOCTYPE svg [<!ENTITY a 'b>"), SvgFault);
    EXPECT_THROW(takeOffDoctype(std::string("<\0s\0v\0g\0", 8)), SvgFault);
}

TEST(SvgText, SizesAreThoseOfTheImageItself) {
    struct Row {
        const char* tag;
        double width, height; // 0 for none
    };
    const Row rows[] = {
        {"<svg width='200' height='100px'>", 200, 100},
        {"<?xml version='1.0'?><!-- <svg width='1'> --><svg height = \"1in\" width='25.4mm'>", 96, 96},
        {"<svg width='100%' height='100%' viewBox='0 0 40 30'>", 40, 30},
        {"<svg width='80' viewBox='-5,-5 40,30'>", 80, 60},
        {"<svg height='3em' viewBox='0 0 4e1 30'>", 40, 30},
        {"<svg data-width='7' width='0' height='-5'>", 0, 0},
        {"<svg width='1e9' height='1'>", 0, 0},
        {"<svg width=", 0, 0},
        {"", 0, 0},
    };
    for (const Row& row : rows) {
        const auto size = readSvgSize(row.tag);
        ASSERT_EQ(size.has_value(), row.width > 0) << row.tag;
        if (size) {
            EXPECT_EQ(std::make_pair(std::round(size->width), std::round(size->height)),
                      std::make_pair(row.width, row.height))
                << row.tag;
        }
    }
}

class SvgPicturesTest : public DeckTest {
protected:
    void SetUp() override {
        if (!canDrawSvg())
            GTEST_SKIP() << "librsvg isn't installed";
        deck.setProfile(L"office");
    }
    std::wstring write(const wchar_t* name, const std::string& svg) {
        std::ofstream(toUtf8(folder / name)) << svg;
        return folder / name;
    }
};

TEST_F(SvgPicturesTest, BothPicturesAreStoredOnce) {
    const std::wstring path = write(L"plant.svg", "<!DOCTYPE svg>" + kSvg);
    Slide slide = deck.add(L"Title and Picture");
    Picture fitted(path);
    fitted.setFit(L"enlarge");
    slide.replace(L"Picture", fitted);
    Picture free(path);
    free.setName(L"Free");
    slide.add(free);
    Slide second = deck.add(L"Blank");
    second.add(Picture(path));
    for (int i = 0; i < 2; ++i) // the same again, from elsewhere
        second.add(Picture(std::vector<unsigned char>(kSvg.begin(), kSvg.end())));
    const Parts& parts = close();
    unsigned pngs = 0, svgs = 0;
    for (const auto& [name, bytes] : parts) {
        pngs += name.find(".png") != std::string::npos && bytes.substr(1, 3) == "PNG";
        svgs += name.find(".svg") != std::string::npos && bytes == kSvg;
    }
    EXPECT_EQ(svgs, 1u);
    EXPECT_EQ(pngs, 2u) << "of the box in the layout, and of the own size";
    const std::string shape = shapeXml(1, "Free");
    EXPECT_EQ(valuesOf(shape, "a:ext", "cx").back(), "1905000") << "its own size";
    EXPECT_EQ(valuesOf(shape, "a:ext", "cy").back(), "952500");
    const std::string drawn = valuesOf(shape, "a:blip", "r:embed").at(0);
    const std::string svg = valuesOf(shape, "asvg:svgBlip", "r:embed").at(0);
    EXPECT_NE(drawn, svg);
    const std::string& rels = parts.at("ppt/slides/_rels/slide1.xml.rels");
    for (const std::string& row : findAll(rels, "Relationship")) {
        const bool isSvg = row.find(".svg'") != std::string::npos;
        if (row.find("'" + svg + "'") != std::string::npos ||
            row.find("'" + drawn + "'") != std::string::npos) {
            EXPECT_EQ(isSvg, row.find("'" + svg + "'") != std::string::npos) << row;
        }
    }
}

TEST_F(SvgPicturesTest, WhatCantBeDrawnIsToldBeforeAnythingIsWritten) {
    std::ofstream(toUtf8(output)) << "last week's";
    const std::pair<const char*, const char*> rows[] = {
        {"<svg xmlns='http://www.w3.org/2000/svg'><rect", "cut"},
        {"<html/>", "no SVG"},
        {"<!DOCTYPE svg [", "a document type without an end"}};
    for (const auto& [svg, what] : rows) {
        Presentation failing = Presentation::forOffice(output);
        failing.open();
        Slide slide = failing.add(L"Blank");
        Picture picture(write(L"bad.svg", svg));
        picture.setName(L"Plant");
        slide.add(picture);
        const std::string error = errorOf([&] { failing.close(); });
        EXPECT_EQ(error.find("ppt_error:invalidSvg 1 Plant "), 0u) << what << ": " << error;
    }
    std::string left;
    std::getline(std::ifstream(toUtf8(output)), left);
    EXPECT_EQ(left, "last week's");
}

// Other files, entities of entities, endless references: nothing of it is reached, and nothing takes long.
TEST_F(SvgPicturesTest, DrawingReachesNothingOutside) {
    const std::wstring secret = write(L"secret.svg", kSvg);
    const std::string head =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        "width='20' height='10'>";
    const std::string empty = drawSvg(head + "</svg>", 20, 10);
    for (const std::string& reference :
         {toUtf8(secret), "file://" + toUtf8(secret), std::string("secret.svg")})
        EXPECT_EQ(
            drawSvg(head + "<image width='20' height='10' xlink:href='" + reference + "'/></svg>", 20, 10),
            empty)
            << reference;
    EXPECT_NE(drawSvg(kSvg, 20, 10), empty);
    std::string nested = head + "<defs><g id='a0'><rect width='1' height='1'/></g>";
    for (int i = 1; i < 40; ++i) {
        const std::string use = "<use xlink:href='#a" + std::to_string(i - 1) + "'/>";
        nested += "<g id='a" + std::to_string(i) + "'>" + use + use + "</g>";
    }
    const std::string endless = head +
                                "<filter id='f'><feTurbulence baseFrequency='0.5' numOctaves='2000000000'/>"
                                "</filter><rect width='20' height='10' filter='url(#f)'/></svg>";
    const DrawingLimits limits{1, 256 << 20};
    EXPECT_THROW(drawSvg(nested + "</defs><use xlink:href='#a39'/></svg>", 20, 10, limits), SvgFault);
    EXPECT_THROW(drawSvg(endless, 20, 10, limits), SvgFault);
    EXPECT_EQ(drawSvg(head + "</svg>", 4000000000u, 0).substr(1, 3), "PNG") << "sides are limited";
}

} // namespace
