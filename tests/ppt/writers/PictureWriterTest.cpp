// Pictures: where they come from, how they lie in their boxes, what is said of them.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

std::string number(unsigned value, unsigned size) {
    std::string bytes;
    for (unsigned i = size; i-- > 0;)
        bytes.push_back(static_cast<char>(value >> 8 * i & 255));
    return bytes;
}

/// A PNG of a resolution, in pixels per metre.
std::string makeDensePng(unsigned width, unsigned height, unsigned density) {
    std::string png = makePng(width, height);
    const std::string chunk =
        number(9, 4) + "pHYs" + number(density, 4) + number(density, 4) + '\1' + number(0, 4);
    return png.insert(33, chunk); // behind IHDR
}

/// A JPEG as far as anybody reads it.
std::string makeJpeg(unsigned width, unsigned height, unsigned orientation) {
    const std::string entry =
        number(0x112, 2) + number(3, 2) + number(1, 4) + number(orientation, 2) + number(0, 2);
    const std::string exif = std::string("Exif\0\0", 6) + std::string("MM\0*", 4) + number(8, 4) +
                             number(1, 2) + entry + number(0, 4);
    const std::string frame = std::string("\x8", 1) + number(height, 2) + number(width, 2) + '\3' +
                              std::string("\1\x22\0\2\x11\1\3\x11\1", 9);
    return "\xff\xd8\xff\xe1" + number(static_cast<unsigned>(exif.size()) + 2, 2) + exif + "\xff\xc0" +
           number(static_cast<unsigned>(frame.size()) + 2, 2) + frame + "\xff\xd9";
}

std::vector<unsigned char> toBytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::size_t countMedia(const Parts& parts) {
    std::size_t count = 0;
    for (const auto& part : parts)
        count += part.first.compare(0, 10, "ppt/media/") == 0;
    return count;
}

class PictureWriterTest : public DeckTest {
protected:
    PictureWriterTest() {
        TemplateBuilder builder;
        builder.addMaster("Theme");
        builder.addLayout(
            "Picture", shape(2, "Photo", "<p:ph type='pic' idx='1'/>", place(1000, 2000, 4000000, 1000000)));
        useTemplate(builder.build());
    }
    /// A picture in the box of 1000, 2000, 4000000, 1000000.
    std::string placed(Picture picture) {
        Slide slide = deck.add(L"Picture");
        slide.replace(L"Photo", object(picture));
        close();
        return shapeXml(1, "Photo");
    }
    static std::string xfrm(const std::string& pic) { return findOne(pic, "a:xfrm"); }
};

TEST_F(PictureWriterTest, EachFitHasItsBox) {
    const struct {
        const wchar_t *fit, *position;
        const char *xfrm, *crop;
    } rows[] = {
        {L"contain", L"left", "<a:off x='1000' y='478187'/><a:ext cx='95250' cy='47625'/>", ""},
        {L"ENLARGE", L"right", "<a:off x='2001000' y='2000'/><a:ext cx='2000000' cy='1000000'/>", ""},
        {L"cover", L"center", "<a:off x='1000' y='2000'/><a:ext cx='4000000' cy='1000000'/>",
         "<a:srcRect b='25000' t='25000'/>"},
        {L"cover", L"topRight", "<a:off x='1000' y='2000'/><a:ext cx='4000000' cy='1000000'/>",
         "<a:srcRect b='50000'/>"},
        {L"stretch", L"", "<a:off x='1000' y='2000'/><a:ext cx='4000000' cy='1000000'/>", ""},
    };
    for (const auto& row : rows) {
        deck = Presentation(output, folder / L"template.pptx");
        Picture picture(toBytes(makePng(10, 5)));
        picture.setFit(row.fit);
        if (*row.position)
            picture.setFitPosition(row.position);
        const std::string pic = placed(picture);
        EXPECT_EQ(xfrm(pic), std::string("<a:xfrm>") + row.xfrm + "</a:xfrm>");
        const Texts crops = findAll(pic, "a:srcRect");
        EXPECT_EQ(crops.empty() ? "" : crops[0], row.crop);
    }
    Picture picture;
    EXPECT_EQ(errorOf([&] { picture.setFit(L"fill"); }), "ppt_error:invalidPropertyValue fill");
    EXPECT_EQ(errorOf([&] { picture.setFitPosition(L"middle"); }), "ppt_error:invalidPropertyValue middle");
}

// What was set as width and height is the box of a free picture.
TEST_F(PictureWriterTest, AFreePictureFitsIntoItsSize) {
    Picture picture(toBytes(makePng(10, 5)));
    picture.setName(L"Free");
    picture.setWidth(L"1in");
    picture.setHeight(L"1in");
    picture.setFit(L"enlarge");
    deck.add(L"Picture").add(picture);
    close();
    EXPECT_EQ(xfrm(shapeXml(1, "Free")),
              "<a:xfrm><a:off x='0' y='228600'/><a:ext cx='914400' cy='457200'/></a:xfrm>");
}

TEST_F(PictureWriterTest, ResolutionAndOrientationCountInOffice) {
    for (const bool isOffice : {false, true}) {
        deck = Presentation(output, folder / L"template.pptx");
        deck.setProfile(isOffice ? L"office" : L"classic");
        writeFile(folder / L"dense.png", makeDensePng(200, 100, 7874)); // 200 per inch
        writeFile(folder / L"turned.jpg", makeJpeg(200, 100, 6));
        Slide slide = deck.add(L"Picture");
        for (const wchar_t* name : {L"dense.png", L"turned.jpg"}) {
            Picture picture(folder / name);
            picture.setName(name);
            slide.add(picture);
        }
        Picture covering(folder / L"turned.jpg");
        covering.setFit(L"cover");
        covering.setFitPosition(L"top");
        slide.replace(L"Photo", object(covering));
        close();
        EXPECT_EQ(valuesOf(shapeXml(1, "dense.png"), "a:ext", "cx")[0], isOffice ? "914400" : "1905000");
        // A quarter turn about the middle: 100 by 200 pixels are seen.
        EXPECT_EQ(xfrm(shapeXml(1, "turned.jpg")),
                  isOffice ? "<a:xfrm rot='5400000'><a:off x='-476250' y='476250'/><a:ext cx='1905000' "
                             "cy='952500'/></a:xfrm>"
                           : "<a:xfrm><a:off x='0' y='0'/><a:ext cx='1905000' cy='952500'/></a:xfrm>");
        // What is seen at the bottom lies at the right of the file.
        EXPECT_EQ(findOne(shapeXml(1, "Photo"), "a:srcRect"),
                  isOffice ? "<a:srcRect r='87500'/>" : "<a:srcRect b='50000'/>");
    }
}

TEST_F(PictureWriterTest, EqualImagesAreStoredOnce) {
    writeFile(folder / L"a.png", makePng(10, 5));
    writeFile(folder / L"b.png", makePng(10, 5));
    writeFile(folder / L"c.png", makePng(10, 6));
    for (const bool isOffice : {false, true}) {
        deck = Presentation(output, folder / L"template.pptx");
        deck.setProfile(isOffice ? L"office" : L"classic");
        const Picture inMemory(toBytes(makePng(10, 5)));
        for (int i = 0; i < 2; ++i) {
            Slide slide = deck.add(L"Picture");
            slide.replace(L"Photo", object(inMemory));
            for (const wchar_t* name : {L"a.png", L"b.png", L"c.png"})
                slide.add(Picture(folder / name));
        }
        EXPECT_EQ(countMedia(close()), isOffice ? 2u : 7u);
    }
}

TEST_F(PictureWriterTest, BytesAreOfAKindThatIsKnown) {
    const std::string emf =
        std::string("\1\0\0\0", 4) + std::string(36, '\0') + " EMF" + std::string(40, '\0');
    for (const std::string& bytes :
         {makePng(1, 1), makeJpeg(1, 1, 1), emf, std::string("<?xml version='1.0'?><svg/>")})
        EXPECT_EQ(errorOf([&] { Picture picture(toBytes(bytes)); }), "nothing");
    for (const std::string& bytes : {std::string(), std::string("<html/>"), std::string("\x89PN")})
        EXPECT_EQ(errorOf([&] { Picture picture(toBytes(bytes)); }),
                  "ppt_error:unknownImageBytes " + std::to_string(bytes.size()));
    const std::string jpeg = makeJpeg(200, 100, 6);
    for (std::size_t length = 4; length < jpeg.size(); ++length) // whatever is cut off
        EXPECT_EQ(errorOf([&] { Picture picture(toBytes(jpeg.substr(0, length))); }), "nothing");
    EXPECT_EQ(Picture(toBytes(makePng(30, 20))).getWidth().get().getRawValue(), L"30px");
}

TEST_F(PictureWriterTest, AlternativeTextsAndLinks) {
    Slide slide = deck.add(L"Picture");
    Picture picture(toBytes(makePng(10, 5)));
    picture.setAltText(L"A \"pump\"");
    picture.setLink(L"https://example.org/?a=1&b=2");
    slide.replace(L"Photo", object(picture));
    TextBox box;
    box.setName(L"Box");
    box.setAltText(L"A remark");
    slide.add(box);
    Table table(1);
    table.append(TableRow());
    table.setName(L"Table");
    table.setAltText(L"");
    slide.add(table);
    const Parts& parts = close();
    EXPECT_EQ(valuesOf(shapeXml(1, "Photo"), "p:cNvPr", "descr"), Texts{"A \"pump\""});
    EXPECT_EQ(valuesOf(shapeXml(1, "Photo"), "a:hlinkClick", "r:id").size(), 1u);
    EXPECT_NE(parts.at("ppt/slides/_rels/slide1.xml.rels").find("https://example.org/?a=1&amp;b=2"),
              std::string::npos);
    EXPECT_EQ(valuesOf(shapeXml(1, "Box"), "p:cNvPr", "descr"), Texts{"A remark"});
    EXPECT_EQ(valuesOf(shapeXml(1, "Table"), "p:cNvPr", "descr"), Texts{""});
}

// What the template's shapes have of their own goes on, but for what is asked for.
TEST_F(PictureWriterTest, PicturesOfATemplateGetTextsToo) {
    TemplateBuilder builder;
    builder.addMaster("Theme");
    Page& layout = builder.addLayout("Picture", shape(2, "Text", "<p:ph type='body' idx='1'/>"));
    Page& page = builder.addSlide("", layout,
                                  pictureShape(3, "Photo", "rId9", place(0, 0, 10, 10)) +
                                      shape(4, "Text", "<p:ph type='body' idx='1'/>"));
    page.relations = {{"rId9", "image", "../media/a.png"}};
    builder.addPart("ppt/media/a.png", "image/png", makePng(1, 1));
    useTemplate(builder.build());
    deck.open();
    const auto find = [&](const wchar_t* name) { return Shape::cast(deck.find(name).at(0)); };
    find(L"Photo")->setAltText(L"Pump");
    find(L"Text")->setAltText(L"Words");
    close();
    EXPECT_EQ(valuesOf(shapeXml(1, "Photo"), "p:cNvPr", "descr"), Texts{"Pump"});
    EXPECT_EQ(valuesOf(shapeXml(1, "Photo"), "a:blip", "r:embed"), Texts{"rId9"});
    EXPECT_EQ(valuesOf(shapeXml(1, "Text"), "p:cNvPr", "descr"), Texts{"Words"});
}

} // namespace
