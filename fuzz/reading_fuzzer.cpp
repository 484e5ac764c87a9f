// A deck with one part replaced by the input, or the input itself as a deck: whatever it holds, it is read, with findings
// or without, or an identified error says why not. The first byte chooses the part.

#include "fuzz/xml.h"

#include "tests/support/Files.h"
#include "tests/support/TemplateBuilder.h"

#include <vellox/vellox.h>

using namespace vellox;

namespace {

const char* const kParts[] = {
    "", // the input is the deck
    "ppt/slides/slide1.xml",
    "ppt/charts/chart1.xml",
    "ppt/diagrams/data1.xml",
    "ppt/notesSlides/notesSlide1.xml",
    "ppt/slides/_rels/slide1.xml.rels",
    "ppt/presentation.xml",
    "ppt/_rels/presentation.xml.rels",
    "[Content_Types].xml",
    "ppt/slideLayouts/slideLayout1.xml",
};
constexpr std::size_t kPartCount = sizeof kParts / sizeof *kParts;
constexpr char kTypes[] = "application/vnd.openxmlformats-officedocument.";
constexpr char kFormats[] = "http://schemas.openxmlformats.org/";

// A frame around what stands in another part.
std::string frame(int id, const std::string& name, const std::string& content) {
    return "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='" + std::to_string(id) + "' name='" + name +
           "'/></p:nvGraphicFramePr><a:graphic><a:graphicData>" + content +
           "</a:graphicData></a:graphic></p:graphicFrame>";
}

std::string makeChart() {
    const std::string cache = "<c:pt idx='0'><c:v>1</c:v></c:pt><c:pt idx='2'><c:v>3</c:v></c:pt>";
    return "<c:chartSpace xmlns:c='" + std::string(kFormats) +
           "drawingml/2006/chart'><c:chart><c:ser><c:tx><c:strRef>" + "<c:strCache>" + cache +
           "</c:strCache></c:strRef></c:tx><c:cat><c:strRef><c:strCache>" + cache +
           "</c:strCache></c:strRef></c:cat><c:val><c:numRef><c:numCache>" + cache +
           "</c:numCache></c:numRef></c:val></c:ser></c:chart></c:chartSpace>";
}

test::Parts makeBase() {
    const std::string formats = kFormats;
    test::TemplateBuilder builder;
    builder.addMaster("Theme");
    const test::Page& layout = builder.addLayout("Own", test::shape(7, "Title", "<p:ph type='title'/>"));
    test::Page& slide = builder.addSlide(
        "", layout,
        test::shape(2, "Title", "<p:ph type='title'/>") +
            test::groupShape(3, "Group", test::shape(4, "Deep")) + test::tableShape(5, "Table", 2, 2) +
            test::pictureShape(6, "Picture", "rId7", "<p:spPr/>") +
            frame(8, "Chart", "<c:chart xmlns:c='" + formats + "drawingml/2006/chart' r:id='rId8'/>") +
            frame(9, "Diagram", "<d:relIds xmlns:d='" + formats + "drawingml/2006/diagram' r:dm='rId9'/>"));
    slide.relations = {{"rId7", "image", "../media/image1.png"},
                       {"rId8", "chart", "../charts/chart1.xml"},
                       {"rId9", "diagramData", "../diagrams/data1.xml"},
                       {"rId10", "notesSlide", "../notesSlides/notesSlide1.xml"}};
    builder.addPart("ppt/media/image1.png", "image/png", test::makePng(4, 3));
    builder.addPart("ppt/charts/chart1.xml", std::string(kTypes) + "drawingml.chart+xml", makeChart());
    builder.addPart(
        "ppt/diagrams/data1.xml", std::string(kTypes) + "drawingml.diagramData+xml",
        "<d:dataModel xmlns:d='" + formats + "drawingml/2006/diagram' xmlns:a='" + formats +
            "drawingml/2006/main'><d:ptLst><d:pt><d:t><a:p><a:r><a:t>one</a:t></a:r></a:p></d:t></d:pt>"
            "</d:ptLst></d:dataModel>");
    builder.addPart("ppt/notesSlides/notesSlide1.xml", std::string(kTypes) + "presentationml.notesSlide+xml",
                    "<p:notes xmlns:p='" + formats + "presentationml/2006/main' xmlns:a='" + formats +
                        "drawingml/2006/main'><p:cSld><p:spTree>" +
                        test::shape(2, "Notes", "<p:ph type='body'/>") + "</p:spTree></p:cSld></p:notes>");
    return builder.build();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    static const test::TempFolder folder;
    static const test::Parts base = makeBase();
    static const ppt::DeckContents present = [] {
        test::writeParts(folder / L"base.pptx", base);
        ppt::DeckContents contents = ppt::readDeck(folder / L"base.pptx");
        fuzz::require(contents.slides.size() == 1 && contents.slides[0].shapes.size() == 6,
                      "the base is read");
        return contents;
    }();
    const std::string input = fuzz::toString(data + 1, size - 1);
    const std::string part = kParts[data[0] % kPartCount];
    if (part.empty()) {
        test::writeFile(folder / L"deck.pptx", input);
    } else {
        test::Parts parts = base;
        parts[part] = input;
        test::writeParts(folder / L"deck.pptx", parts);
    }
    try {
        const ppt::DeckContents contents = ppt::readDeck(folder / L"deck.pptx");
        fuzz::require(ppt::compareDecks(contents, contents).empty(), "a deck shows what it shows");
        const bool isOther = !ppt::compareDecks(contents, present).empty();
        fuzz::require(isOther == !ppt::compareDecks(present, contents).empty(), "both are alike, or neither");
    } catch (const hostfx::except::IMsgIDException&) {
    }
    return 0;
}
