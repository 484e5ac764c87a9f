#include "tests/programs/classic/Content.h"

#include "tests/support/DeckTest.h"

namespace vellox::test {

using namespace ppt;

Images::Images(const std::wstring& folder) {
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='20'/>";
    std::string emf(40, '\0');
    emf[32] = '\x10'; // a frame of 16 by 8 steps of 256 hundredths of a millimetre
    emf[33] = '\x10';
    emf[37] = '\x8';
    const std::pair<const wchar_t*, std::string> files[] = {
        {L"small.png", makePng(100, 50)},
        {L"high.PNG", makePng(40, 4000)},
        {L"wide.png", makePng(4000, 2000)},
        {L"drawing.svg", svg},
        {L"metafile.emf", emf},
        {L"old.wmf", "bytes"},
        {L"noextension", makePng(10, 10)},
        {L"a b.unknown", "bytes"},
        {L"empty.jpg", ""},
    };
    for (const auto& file : files) {
        paths.push_back(FileUtils::appendPath(folder, file.first));
        writeFile(paths.back(), file.second);
    }
    paths.push_back(FileUtils::appendPath(folder, L"missing.png"));
    paths.emplace_back();
}

const std::wstring& Images::next() {
    return paths[next_++ % paths.size()];
}

Paragraph makeRuns() {
    Paragraph paragraph(L"Plain, ");
    paragraph.append(L"bold, ").setBold(true);
    paragraph.append(L"red ").setFontColor(L"red");
    paragraph.append(Text(2.5));
    ExternalLink link = paragraph.append(ExternalLink(L"https://example.org/a b?q=[1]#x", L"there"));
    link.setUnderlineStyle(L"double");
    paragraph.append(L"  \t\u00e4\u4e16\U0001F600\u05d0 <&>\"'\n second line \x01");
    paragraph.setHAlign(L"justified");
    return paragraph;
}

HvContentPtr makeList() {
    return list({text(L"one"), number(0.1), boost::make_shared<IntegerContent>(7),
                 boost::make_shared<BooleanContent>(true), object(Paragraph(L"object", 3)),
                 list({text(L"two"), list({text(L"three"), number(-1e300)}), text(L"")}), HvContentPtr(),
                 object(TextBox(L"no paragraph")), list({})});
}

Table makeTable(unsigned rows, unsigned columns) {
    Table table;
    for (unsigned r = 1; r <= rows; ++r) {
        TableRow row;
        for (unsigned c = 1; c <= columns; ++c)
            row.append(TableEntry(std::to_wstring(r) + L"," + std::to_wstring(c)));
        table.append(row);
    }
    return table;
}

void setSlideFormats(Slide& slide) {
    Formats formats;
    formats.appendFormat(boost::make_shared<FontFamily>(L"Serif"));
    formats.appendFormat(boost::make_shared<HAlign>(L"right"));
    formats.appendFormat(boost::make_shared<BackgroundColor>(L"#fefefe"));
    slide.setStyle(formats);
}

namespace {

void setPlace(Shape& shape, unsigned bits) {
    if (bits & 1)
        shape.setX(L"1in");
    if (bits & 2)
        shape.setY(L"-0.5cm");
    if (bits & 4)
        shape.setWidth(L"100");
    if (bits & 8)
        shape.setHeight(L"20pt");
}

} // namespace

void addFreeShapes(Slide& slide, unsigned number, Images& images) {
    TextBox box(number % 2 == 0 ? L"Free" : L"");
    box.add(L"free text");
    setPlace(box, number);
    slide.add(box);
    Picture picture(images.next());
    setPlace(picture, number + 5);
    slide.add(picture);
    Table table = makeTable(number % 3, 2);
    table.setName(L"Free table");
    setPlace(table, number + 10);
    slide.add(table);
}

} // namespace vellox::test
