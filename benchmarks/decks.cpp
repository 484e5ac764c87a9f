#include "benchmarks/decks.h"

#include <vellox/vellox.h>

#include <zip.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace vellox::bench {

using namespace ppt;

namespace {

// The text of a slide, different on each.
std::wstring say(const wchar_t* text, unsigned number) {
    return text + std::to_wstring(number);
}

std::wstring getDefaultTemplate() {
    return FileUtils::appendPath(FileUtils::getHostRoot(),
                                 L"toolbox/shared/vellox/ppt/resources/templates/pptx/default.pptx");
}

Presentation begin(const std::wstring& output, const std::wstring& profile) {
    Presentation deck(output);
    deck.setProfile(profile);
    return deck;
}

Slide addTextSlide(Presentation& deck, unsigned number) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", say(L"Results of run ", number));
    for (unsigned bullet = 0; bullet < 5; ++bullet)
        slide.add(L"Content", say(L"The value of this quantity was measured as ", number * bullet));
    return slide;
}

void fillSmallDeck(Presentation deck, const std::wstring& image) {
    for (unsigned i = 0; i < 4; ++i)
        addTextSlide(deck, i);
    addTextSlide(deck, 4).add(Picture(image));
    deck.close();
}

TableEntry makeCell(unsigned number, bool isHeader) {
    Text run(say(L"cell ", number));
    run.setFontSize(L"10pt");
    if (isHeader)
        run.setBold(true);
    Paragraph paragraph;
    paragraph.append(run);
    return TableEntry(paragraph);
}

} // namespace

void makeTextDeck(const std::wstring& output, unsigned slides, const std::wstring& profile) {
    Presentation deck = begin(output, profile);
    for (unsigned i = 0; i < slides; ++i)
        addTextSlide(deck, i);
    deck.close();
}

void makeStyledDeck(const std::wstring& output, unsigned slides, unsigned runsPerSlide,
                    const std::wstring& profile) {
    Presentation deck = begin(output, profile);
    for (unsigned i = 0; i < slides; ++i) {
        Slide slide = deck.add(L"Title Only");
        TextBox box(L"Runs");
        box.setBold(true);
        box.setFontColor(L"navy");
        box.setFontSize(L"14pt");
        Paragraph paragraph = box.add(L"");
        paragraph.setItalic(true);
        paragraph.setUnderlineStyle(L"single");
        for (unsigned run = 0; run < runsPerSlide; ++run)
            paragraph.append(say(L"run ", run));
        slide.add(box);
    }
    deck.close();
}

void makeTableDeck(const std::wstring& output, unsigned slides, const std::wstring& profile) {
    Presentation deck = begin(output, profile);
    for (unsigned i = 0; i < slides; ++i) {
        Slide slide = deck.add(L"Title Only");
        Table table(8);
        table.setWidth(L"25cm");
        for (unsigned r = 0; r < 20; ++r) {
            TableRow row;
            for (unsigned c = 0; c < 8; ++c)
                row.append(makeCell(r * c, r == 0));
            table.append(row);
        }
        slide.add(table);
    }
    deck.close();
}

void makeChartDeck(const std::wstring& output, const std::wstring& templatePath,
                   const std::wstring& profile) {
    constexpr unsigned kSeries = 3, kMonths = 12;
    Presentation deck(output, templatePath);
    deck.setProfile(profile);
    deck.open();
    std::vector<std::wstring> months;
    for (unsigned i = 1; i <= kMonths; ++i)
        months.push_back(L"Month " + std::to_wstring(i));
    for (const auto& node : deck.getChildren()) {
        Chart::Series series;
        for (unsigned i = 0; i < kSeries; ++i)
            series.emplace_back(L"Series " + std::to_wstring(i + 1), std::vector<double>(kMonths, i + 0.5));
        Slide::cast(node)->chart(L"Chart").setData(months, series);
    }
    deck.close();
}

void makePictureDeck(const std::wstring& output, unsigned slides, const std::vector<std::wstring>& images,
                     const std::wstring& profile) {
    Presentation deck = begin(output, profile);
    for (unsigned i = 0; i < slides; ++i)
        deck.add(L"Title Only").add(Picture(images[i % images.size()]));
    deck.close();
}

namespace {

std::wstring sayTokens(unsigned first, unsigned end) {
    std::wstring text = L"Of";
    for (unsigned token = first; token < end; ++token)
        text += say(L" {value", token) + L":.2f}";
    return text;
}

} // namespace

void writeTokenTemplate(const std::wstring& path, unsigned slides, unsigned tokensPerSlide) {
    Presentation deck(path);
    for (unsigned i = 0; i < slides; ++i) {
        Slide slide = deck.add(L"Two Content");
        slide.replace(L"Title", sayTokens(0, 1));
        slide.add(L"Left Content", sayTokens(1, tokensPerSlide / 2));
        slide.add(L"Right Content", L"A text without any");
        TableRow row;
        for (unsigned token = tokensPerSlide / 2; token < tokensPerSlide; ++token)
            row.append(TableEntry(sayTokens(token, token + 1)));
        Table table;
        table.append(row);
        slide.add(table);
    }
    deck.close();
}

void fillTokenDeck(const std::wstring& output, const std::wstring& templatePath, unsigned tokensPerSlide) {
    Presentation deck(output, templatePath);
    std::vector<Contents::Row> values;
    for (unsigned token = 0; token < tokensPerSlide; ++token)
        values.emplace_back(say(L"value", token), token * 1.5);
    deck.fillTokens(values, true);
    deck.close();
}

void copySlides(const std::wstring& output, const std::wstring& templatePath, unsigned copies) {
    Presentation deck(output, templatePath);
    deck.open();
    const Slide sample = *Slide::cast(deck.getChildren().front());
    for (unsigned i = 0; i < copies; ++i)
        deck.copy(sample).replace(L"Title", say(L"Copy ", i));
    deck.remove(sample);
    deck.close();
}

void openDeck(const std::wstring& output, const std::wstring& templatePath) {
    Presentation(output, templatePath).open();
}

void writeHeavyMaster(const std::wstring& path, unsigned shapes) {
    const std::string target = toUtf8(path);
    std::filesystem::copy_file(toUtf8(getDefaultTemplate()), target,
                               std::filesystem::copy_options::overwrite_existing);
    zip_t* archive = zip_open(target.c_str(), 0, nullptr);
    const zip_int64_t master = zip_name_locate(archive, "ppt/slideMasters/slideMaster1.xml", 0);
    const auto index = static_cast<zip_uint64_t>(master);
    zip_stat_t facts;
    zip_stat_index(archive, index, 0, &facts);
    std::string xml(facts.size, '\0');
    zip_file_t* file = zip_fopen_index(archive, index, 0);
    zip_fread(file, xml.data(), xml.size());
    zip_fclose(file);
    std::string drawing;
    for (unsigned i = 0; i < shapes; ++i)
        drawing += "<p:sp><p:nvSpPr><p:cNvPr id=\"" + std::to_string(100 + i) +
                   "\" name=\"v\"/><p:cNvSpPr/><p:nvPr userDrawn=\"1\"/></p:nvSpPr><p:spPr><a:xfrm>"
                   "<a:off x=\"1\" y=\"2\"/><a:ext cx=\"3\" cy=\"4\"/></a:xfrm></p:spPr></p:sp>";
    xml.insert(xml.find("</p:spTree>"), drawing);
    zip_file_replace(archive, index, zip_source_buffer(archive, xml.data(), xml.size(), 0), 0);
    zip_close(archive);
}

void makeSmallDeck(const std::wstring& output, const std::wstring& image, const std::wstring& profile) {
    fillSmallDeck(begin(output, profile), image);
}

void makeSmallDecks(const std::wstring& output, const std::wstring& image, unsigned decks,
                    const std::wstring& profile) {
    const Template source(getDefaultTemplate(), profile);
    for (unsigned i = 0; i < decks; ++i)
        fillSmallDeck(Presentation(output, source), image);
}

void writePng(const std::wstring& path, unsigned bytes, unsigned seed) {
    // Signature and header of a picture of 640 by 480, then noise: what is in it plays no role here.
    static const unsigned char kHead[] = {0x89, 'P',  'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0,    0, 0,
                                          13,   'I',  'H', 'D', 'R',  0,    0,    2,    0x80, 0, 0,
                                          1,    0xE0, 8,   2,   0,    0,    0,    0,    0,    0, 0};
    std::vector<unsigned char> content(kHead, kHead + sizeof kHead);
    std::mt19937 noise(seed);
    while (content.size() < bytes)
        content.push_back(static_cast<unsigned char>(noise()));
    std::ofstream(toUtf8(path), std::ios::binary)
        .write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
}

} // namespace vellox::bench
