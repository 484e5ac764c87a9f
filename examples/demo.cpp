// What the library does, on six slides of the default template: text with levels, a free text box, formats, a
// picture and a styled table.
//
//     demo [output.pptx]

#include <vellox/vellox.h>

#include <iostream>

using namespace vellox::ppt;

namespace {

void addTitleSlide(Presentation& deck) {
    Slide slide = deck.add(L"Title Slide");
    slide.replace(L"Title", L"Pump test bench, week 47");
    slide.replace(L"Subtitle", L"Flow, head and temperature of three impellers");
}

void addBullets(Presentation& deck) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"What we did");
    slide.add(L"Content", L"Three impellers, twelve runs each");
    slide.add(L"Content", Paragraph(L"Speed from 900 to 2900 rpm", 2));
    slide.add(L"Content", Paragraph(L"Water at 20 and 60 \u00b0C", 2));
    slide.add(L"Content", Paragraph(L"each run ten minutes", 3));
    slide.add(L"Content", L"All runs within the limits of vibration");
    Paragraph link(L"The raw data are at ");
    link.append(ExternalLink(L"https://example.org/bench/47", L"example.org/bench/47"));
    slide.add(L"Content", link);
}

void addTextBox(Presentation& deck) {
    Slide slide = deck.add(L"Title Only");
    slide.replace(L"Title", L"A remark in a place of its own");
    TextBox box(L"Remark");
    box.setX(L"3cm");
    box.setY(L"6cm");
    box.setWidth(L"14cm");
    box.setHeight(L"3cm");
    box.add(L"The sensor at the outlet was replaced on Tuesday.");
    box.setItalic(true);
    slide.add(box);
}

void addFormats(Presentation& deck) {
    Slide slide = deck.add(L"Title Only");
    slide.replace(L"Title", L"Formats act on all that is below them");
    TextBox box(L"Formats");
    box.setX(L"1.8cm");
    box.setY(L"4cm");
    box.setWidth(L"29cm");
    box.setHeight(L"12cm");
    box.setBackgroundColor(L"whitesmoke");
    box.setVAlign(L"middle");
    box.setFontSize(L"20pt"); // of the box: all its text that has no size of its own

    Paragraph runs(L"Normal, ");
    runs.append(L"bold, ").setBold(true);
    runs.append(L"italic, ").setItalic(true);
    runs.append(L"underlined, ").setUnderlineStyle(L"wavyHeavy");
    runs.append(L"struck, ").setStrikeStyle(L"single");
    runs.append(L"tomato, ").setFontColor(L"tomato");
    runs.append(L"#1a6e82, ").setFontColor(L"#1a6e82");
    runs.append(L"larger").setFontSize(L"28pt");
    box.add(runs);

    Paragraph formula(L"H");
    formula.append(L"2").setSubscript(true);
    formula.append(L"O at 20 \u00b0C flows at 3\u00b710");
    formula.append(L"-2").setSuperscript(true);
    formula.append(L" m");
    formula.append(L"3").setSuperscript(true);
    formula.append(L"/s");
    box.add(formula);

    Paragraph centred(L"A centred paragraph in a font of its own");
    centred.setHAlign(L"center");
    centred.setFont(L"DejaVu Serif");
    box.add(centred);

    Paragraph right(L"All bold but for ");
    right.setHAlign(L"right");
    right.setBold(true);
    right.append(L"one word").setBold(false); // the nearest format counts
    box.add(right);
    slide.add(box);
}

void addPicture(Presentation& deck) {
    Slide slide = deck.add(L"Picture with Caption");
    slide.replace(L"Title", L"Head over flow");
    slide.replace(L"Picture",
                  boost::make_shared<vellox::ObjectContent>(Picture(EXAMPLE_DATA L"pump-curve.png")));
    slide.replace(L"Caption", L"Measured points and fitted curves at 2900 rpm. Impeller A has the most head, "
                              L"impeller C the flattest curve.");
}

TableRow makeRow(std::initializer_list<const wchar_t*> texts) {
    TableRow row;
    for (const wchar_t* text : texts)
        row.append(TableEntry(text));
    return row;
}

void addTable(Presentation& deck) {
    Table table;
    TableRow head = makeRow({L"Impeller", L"Speed in rpm", L"Flow in m\u00b3/h", L"Head in m", L"Remark"});
    head.setBackgroundColor(L"#17384a");
    head.setFontColor(L"white");
    table.append(head);
    table.append(makeRow({L"A", L"900", L"14.5", L"4.0", L""}));
    table.append(makeRow({L"A", L"2900", L"47.0", L"41.8", L"highest head"}));
    table.append(makeRow({L"B", L"2900", L"49.5", L"37.6", L""}));
    table.append(makeRow({L"C", L"2900", L"52.0", L"33.1", L"repeated on Friday"}));
    table.entry(2, 3)->setBackgroundColor(L"#ffe2d2");

    Table::ColSpecs columns;
    for (const wchar_t* width : {L"4cm", L"5cm", L"5cm", L"5cm", L"9cm"})
        columns.push_back(boost::make_shared<ColSpec>(width));
    columns[0]->setBold(true);
    for (int number = 1; number <= 3; ++number)
        columns[number]->setHAlign(L"right");
    table.setColSpecs(columns);

    Slide slide = deck.add(L"Title and Table");
    slide.replace(L"Title", L"Points of best efficiency");
    // What stands on the slide then is a table of its own, made from this one.
    Table onSlide = TablePlaceholder::cast(slide.find(L"Table").front())->replace(table);
    onSlide.setStyleName(L"Plain Grid");
}

} // namespace

int main(int argc, char** argv) {
    try {
        Presentation deck(vellox::fromUtf8(argc > 1 ? argv[1] : "demo.pptx"));
        addTitleSlide(deck);
        addBullets(deck);
        addTextBox(deck);
        addFormats(deck);
        addPicture(deck);
        addTable(deck);
        deck.close();
        std::cout << vellox::toUtf8(deck.getOutputPath()) << "\n";
        return 0;
    } catch (const hostfx::except::IException& error) {
        std::cerr << "demo: " << error.what() << "\n";
        return 1;
    }
}
