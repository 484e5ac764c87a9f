#include "tests/support/DeckTest.h"

#include "vellox/ppt/tree/Text.h"

namespace vellox::test {

DeckTest::DeckTest() = default;

void DeckTest::useTemplate(const Parts& parts, const std::wstring& name) {
    writeParts(folder / name, parts);
    deck = ppt::Presentation(output, folder / name);
}

const Parts& DeckTest::close() {
    EXPECT_TRUE(deck.close());
    for (const std::string& fault : findFaults(output))
        ADD_FAILURE() << fault;
    parts_ = readParts(output);
    return parts_;
}

const std::string& DeckTest::slideXml(unsigned number) {
    return parts_.at("ppt/slides/slide" + std::to_string(number) + ".xml");
}

std::string DeckTest::shapeXml(unsigned number, const std::string& name) {
    for (const char* element : {"p:sp", "p:pic", "p:graphicFrame"})
        for (const std::string& shape : findAll(slideXml(number), element))
            if (shape.find(" name='" + name + "'") != std::string::npos)
                return shape;
    return "no " + name;
}

HvContentPtr text(const wchar_t* value) {
    return boost::make_shared<StringContent>(value);
}

HvContentPtr number(double value) {
    return boost::make_shared<DoubleContent>(value);
}

std::string runsOf(const std::string& slideXml) {
    std::string runs;
    for (const std::string& shape : findAll(slideXml, "p:sp")) {
        const std::vector<std::string> types = valuesOf(shape, "p:ph", "type");
        if (!types.empty() && (types[0] == "dt" || types[0] == "ftr" || types[0] == "sldNum"))
            continue;
        for (const std::string& run : textsOf(shape, "a:t"))
            runs += (runs.empty() ? "" : "|") + run;
    }
    return runs;
}

std::wstring outline(const ppt::PPTNode& box) {
    std::wstring lines;
    for (const auto& child : box.getChildren()) {
        const auto paragraph = ppt::Paragraph::cast(child);
        lines += child == box.getChildren().front() ? L"" : L"|";
        if (!paragraph) {
            lines += outline(*child);
            continue;
        }
        if (paragraph->getLevel().isSet())
            lines += std::to_wstring(paragraph->getLevel().get()) + L":";
        for (const auto& run : paragraph->getChildren())
            lines += ppt::Text::cast(run)->getTextContent();
    }
    return lines;
}

} // namespace vellox::test
