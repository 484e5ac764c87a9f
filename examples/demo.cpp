// A deck from the default template: a title slide, bullets with levels, a free text box.
//
//     demo [output.pptx]

#include <vellox/vellox.h>

#include <iostream>

using namespace vellox::ppt;

namespace {

void addTitleSlide(Presentation& deck) {
    Slide slide = deck.add(L"Title Slide");
    slide.replace(L"Title", L"Pump test bench, week 47");
    slide.replace(L"Subtitle", L"Flow, pressure and temperature of the new impeller");
}

void addBullets(Presentation& deck) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"What we did");
    slide.add(L"Content", L"Three impellers, twelve runs each");
    slide.add(L"Content", Paragraph(L"Speed from 900 to 2900 rpm", 2));
    slide.add(L"Content", Paragraph(L"Water at 20 and 60 \u00b0C", 2));
    slide.add(L"Content", Paragraph(L"each run ten minutes", 3));
    slide.add(L"Content", L"All runs within the limits of vibration");
}

void addTextBox(Presentation& deck) {
    Slide slide = deck.add(L"Title Only");
    slide.replace(L"Title", L"A remark in a place of its own");
    TextBox box(L"Remark");
    box.setX(L"3cm");
    box.setY(L"6cm");
    box.setWidth(L"12cm");
    box.setHeight(L"3cm");
    box.add(L"The sensor at the outlet was replaced on Tuesday.");
    box.setItalic(true);
    slide.add(box);
}

} // namespace

int main(int argc, char** argv) {
    try {
        Presentation deck(vellox::fromUtf8(argc > 1 ? argv[1] : "demo.pptx"));
        addTitleSlide(deck);
        addBullets(deck);
        addTextBox(deck);
        deck.close();
        std::cout << vellox::toUtf8(deck.getOutputPath()) << "\n";
        return 0;
    } catch (const hostfx::except::IException& error) {
        std::cerr << "demo: " << error.what() << "\n";
        return 1;
    }
}
