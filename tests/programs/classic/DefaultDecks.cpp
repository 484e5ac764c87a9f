// Decks over the default template, each about one thing.

#include "tests/programs/classic/Content.h"
#include "tests/programs/classic/Decks.h"

#include "tests/support/DeckTest.h"

namespace vellox::test {

using namespace ppt;

namespace {

// A box in which each of the values has a paragraph of its own.
template <class Set>
void addParagraphs(Slide& slide, const wchar_t* name, std::initializer_list<const wchar_t*> values, Set set) {
    TextBox box(name);
    for (const wchar_t* value : values) {
        Paragraph paragraph = box.add(value);
        set(paragraph, value);
    }
    slide.add(box);
}

void setAll(Paragraph paragraph) {
    paragraph.setBold(true);
    paragraph.setItalic(false);
    paragraph.setFontColor(L"steelblue");
    paragraph.setFont(L"Serif");
    paragraph.setComplexScriptFont(L"Sans");
    paragraph.setFontSize(L"14pt");
    paragraph.setStrikeStyle(L"single");
    paragraph.setSubscript(true);
    paragraph.setSuperscript(true);
    paragraph.setUnderlineStyle(L"wavy");
    paragraph.setHAlign(L"center");
}

void makeFormats(Presentation& deck, Images&) {
    Slide slide = deck.add(L"Blank");
    using P = Paragraph;
    using V = const wchar_t*;
    addParagraphs(slide, L"Underlines",
                  {L"none", L"words", L"single", L"double", L"heavy", L"dotted", L"dottedHeavy", L"dash",
                   L"dashHeavy", L"dashLong", L"dotDash", L"dotDashHeavy", L"dotDotDash", L"dotDotDashHeavy",
                   L"wavy", L"wavyHeavy", L"wavyDouble"},
                  [](P& p, V value) { p.setUnderlineStyle(value); });
    addParagraphs(slide, L"Strikes", {L"none", L"single", L"double"},
                  [](P& p, V value) { p.setStrikeStyle(value); });
    addParagraphs(
        slide, L"Alignments",
        {L"left", L"right", L"center", L"justified", L"justifiedLow", L"distributed", L"thaiDistributed"},
        [](P& p, V value) { p.setHAlign(value); });
    addParagraphs(slide, L"Colors", {L"red", L"REBECCAPURPLE", L"#1a2b3c", L"#ABC"}, [](P& p, V value) {
        try {
            p.setFontColor(value);
        } catch (const hostfx::except::IMsgIDException&) {
            p.append(L": no colour");
        }
    });
    addParagraphs(slide, L"Sizes", {L"12pt", L"1cm", L"0.5in", L"20", L"8.3px", L"100000emus"},
                  [](P& p, V value) { p.setFontSize(value); });
    for (const wchar_t* value :
         {L"top", L"middle", L"bottom", L"topCentered", L"middleCentered", L"bottomCentered"}) {
        TextBox box(value);
        box.setVAlign(value);
        box.setBackgroundColor(L"lightgray");
        slide.add(box);
    }
    // One of each level, own formats ahead of inherited ones.
    Slide levels = deck.add(L"Title and Content");
    setSlideFormats(levels);
    const auto content = BaseTextBox::cast(levels.find(L"Content").front());
    content->setFontSize(L"30pt");
    content->setFontColor(L"green");
    content->setUnderlineStyle(L"single");
    setAll(content->add(L"all"));
    Paragraph mixed = content->add(L"box and slide; ");
    mixed.setFontColor(L"#010203");
    Text run = mixed.append(L"run");
    run.setFont(L"Mono");
    run.setFontColor(L"#040506");
    run.setSubscript(false);
    mixed.append(L"complex").setComplexScriptFont(L"Arabic");
    content->add(L"unset").unsetBold();
}

void makeLists(Presentation& deck, Images&) {
    Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Content", makeList());
    slide.add(L"Content", L"behind the list");
    Slide second = deck.add(L"Title and Content");
    const auto content = BaseTextBox::cast(second.find(L"Content").front());
    content->add(makeList());
    content->add(makeList());
    for (unsigned level : {0u, 1u, 2u, 9u})
        content->add(Paragraph(L"level", level));
    Paragraph deep(L"deep");
    content->add(deep);
    deep.setLevel(3);
    deck.replace(L"Title", makeList());
    deck.add(L"Two Content");
    deck.replace(L"Right", makeRuns());
}

void makeLinks(Presentation& deck, Images&) {
    Slide slide = deck.add(L"Title and Content");
    for (const wchar_t* target : {L"https://example.org/", L"https://example.org/", L"",
                                  L" https://a/b c#d#e ", L"mailto:a@b.example", L"file:///C:/a[1].txt",
                                  L"\\\\server\\share", L"https://\u00e4.example/100%"}) {
        Paragraph paragraph(L"to ");
        ExternalLink link(target, L"there");
        link.setFontColor(L"blue");
        paragraph.append(link);
        slide.add(L"Content", paragraph);
    }
}

void makePictures(Presentation& deck, Images& images) {
    for (const std::wstring& path : images.paths) {
        Slide slide = deck.add(L"Picture with Caption");
        slide.replace(L"Picture", object(Picture(path)));
        slide.replace(L"Caption", L"as it is");
        slide.add(Picture(path));
    }
    for (unsigned bits = 0; bits < 4; ++bits) {
        Slide slide = deck.add(L"Title and Content");
        Picture picture(images.paths.front());
        picture.unsetWidth();
        picture.unsetHeight();
        if (bits & 1)
            picture.setWidth(L"30cm");
        if (bits & 2)
            picture.setHeight(L"1in");
        slide.replace(L"Content", object(picture));
        slide.add(picture);
        const auto placed = boost::dynamic_pointer_cast<Picture>(slide.getChildren().back());
        if (bits == 3)
            placed->replace(Picture(images.paths[2]));
    }
}

Table makeFormattedTable() {
    Table table = makeTable(3, 4);
    table.setFontColor(L"#000001");
    table.setFontSize(L"11pt");
    Table::ColSpecs columns;
    for (const wchar_t* width : {L"1in", L"", L"3cm"})
        columns.push_back(*width ? boost::make_shared<ColSpec>(width) : boost::make_shared<ColSpec>());
    columns[0]->setBold(true);
    columns[1]->setHAlign(L"right");
    columns[1]->setBackgroundColor(L"#00000A");
    columns[2]->setVAlign(L"bottom");
    table.setColSpecs(columns);
    table.row(0)->setBackgroundColor(L"#00000B");
    table.row(0)->setFontColor(L"#000002");
    table.entry(0, 0)->setBackgroundColor(L"#00000C");
    table.entry(1, 1)->setVAlign(L"middleCentered");
    table.entry(1, 1)->append(makeRuns());
    Formats wide;
    wide.appendFormat(boost::make_shared<ColWidth>(L"2in"));
    table.entry(2, 3)->setStyle(wide);
    return table;
}

void makeTables(Presentation& deck, Images&) {
    Slide slide = deck.add(L"Title and Table");
    setSlideFormats(slide);
    Table onSlide = TablePlaceholder::cast(slide.find(L"Table").front())->replace(makeFormattedTable());
    onSlide.setStyleName(L"Plain Grid");
    Table free = makeFormattedTable();
    free.setName(L"Free");
    free.setWidth(L"10cm");
    free.setStyleName(L"no such style");
    slide.add(free);
    Table ragged = makeTable(1, 3);
    TableRow shortRow;
    shortRow.append(TableEntry(L"alone"));
    shortRow.append(TableEntry());
    ragged.append(shortRow);
    ragged.append(TableRow());
    slide.add(ragged);
    slide.add(Table(3));
    Slide second = deck.add(L"Two Content");
    second.replace(L"Left", object(Table(boost::make_shared<MemoryTable>(
                                2, std::initializer_list<HvContentPtr>{
                                       text(L"a"), number(1.5), boost::make_shared<BooleanContent>(true),
                                       HvContentPtr(), object(makeRuns()), list({})}))));
    second.replace(L"Right",
                   object(Table(boost::make_shared<MemoryTable>(0, std::initializer_list<HvContentPtr>{}))));
    onSlide.replace(makeTable(1, 1));
}

void makePlaces(Presentation& deck, Images& images) {
    for (unsigned bits = 0; bits < 16; ++bits) {
        Slide slide = deck.add(bits % 2 == 0 ? L"Blank" : L"Title and Content");
        addFreeShapes(slide, bits, images);
        for (const auto& child : slide.find(L"Content")) {
            const auto box = BaseTextBox::cast(child);
            if (bits & 2)
                box->setX(L"2cm");
            if (bits & 4)
                box->setHeight(L"-1cm");
            if (bits & 8)
                box->setWidth(L"3pt");
        }
    }
}

void makeOrder(Presentation& deck, Images&) {
    Slide third = deck.add(L"Blank");
    deck.add(L"Title Only", 0u).setName(L"first");
    deck.add(L"Title Only", third).setName(L"second");
    deck.add(L"Blank", L"Vellox", 99u).setName(L"last");
    third.setName(L"third <&> \u4e16");
    third.add(TextBox(L"Below"));
    third.add(TextBox(L"Above"));
}

// Shapes that were somewhere else before, and objects that are changed after they were added.
void makeCopies(Presentation& deck, Images& images) {
    Slide first = deck.add(L"Title and Picture");
    Slide second = deck.add(L"Title and Picture");
    first.replace(L"Picture", object(Picture(images.paths.front())));
    second.add(*boost::dynamic_pointer_cast<Picture>(first.getChildren().back()->clone()));
    TextBox box(L"Box");
    const Paragraph kept = box.add(L"kept");
    second.add(box);
    second.add(static_cast<const TextBox&>(*box.clone()));
    box.replace(kept);
    box.add(L"late");
    second.replace(L"Title", kept);
    deck.add(L"Blank", kept);
}

} // namespace

const std::vector<DeckKind> kDefaultDecks{
    {L"formats", makeFormats}, {L"lists", makeLists},   {L"links", makeLinks}, {L"pictures", makePictures},
    {L"tables", makeTables},   {L"places", makePlaces}, {L"order", makeOrder}, {L"copies", makeCopies}};

} // namespace vellox::test
