// What the office rules answer, where it isn't what the classic ones do.

#include "vellox/ppt/rules/OfficeRules.h"

#include "vellox/ppt/rules/TableStyles.h"

#include <gtest/gtest.h>

using namespace vellox::ppt;

namespace {

const OfficeRules rules;

ShapeFacts makePlaceholder(const wchar_t* type, const wchar_t* index = L"") {
    ShapeFacts facts;
    facts.element = ShapeElement::Shape;
    facts.isPlaceholder = true;
    facts.placeholderType = type;
    facts.placeholderIndex = index;
    return facts;
}

ShapeFacts makeField(const wchar_t* type, bool movesOn, const wchar_t* text = L"") {
    ShapeFacts facts = makePlaceholder(type);
    facts.isField = true;
    facts.movesOn = movesOn;
    facts.text = text;
    return facts;
}

ShapeFacts makeElement(ShapeElement element) {
    ShapeFacts facts;
    facts.element = element;
    return facts;
}

TEST(OfficeRules, EveryPlaceholderCanBeFilled) {
    for (const wchar_t* type : {L"", L"obj", L"chart", L"dgm", L"media", L"Unheard"}) {
        EXPECT_EQ(rules.classify(makePlaceholder(type)), NodeType::ContentPlaceholder);
        EXPECT_EQ(rules.fateOf(makePlaceholder(type)), Fate::Empty);
    }
    EXPECT_EQ(rules.classify(makePlaceholder(L"pic")), NodeType::PicturePlaceholder);
    EXPECT_EQ(rules.classify(makeField(L"ftr", false)), NodeType::None);
    EXPECT_EQ(rules.fateOf(makeElement(ShapeElement::Structure)), Fate::Keep);
    for (const ShapeElement element : {ShapeElement::Other, ShapeElement::GraphicFrame, ShapeElement::Shape})
        EXPECT_EQ(rules.fateOf(makeElement(element)), Fate::Drop);
}

TEST(OfficeRules, FieldsComeWhereTheSlidesHaveThem) {
    const ShapeFacts number = makeField(L"sldNum", true), date = makeField(L"dt", true);
    const ShapeFacts fixed = makeField(L"dt", false, L"1 May 1999"),
                     footer = makeField(L"ftr", false, L"Firm");
    EXPECT_EQ(rules.fateOf(number), Fate::Ask);
    DeckFacts deck;
    EXPECT_TRUE(rules.showsField(number, deck));
    for (const ShapeFacts* field : {&date, &fixed, &footer})
        EXPECT_FALSE(rules.showsField(*field, deck));
    deck.hasSlides = true;
    EXPECT_FALSE(rules.showsField(number, deck));
    deck.fields = {{L"dt", L"1 May 1999"}, {L"ftr", L"Somebody"}};
    EXPECT_TRUE(rules.showsField(date, deck));
    EXPECT_FALSE(rules.showsField(fixed, deck));
    EXPECT_FALSE(rules.showsField(footer, deck));
    deck.fields.insert({L"ftr", L"Firm"});
    EXPECT_TRUE(rules.showsField(footer, deck));
}

TEST(OfficeRules, ThePlaceIsThatOfTheNearest) {
    const PlaceText whole{L"1", L"2", L"3", L"4", true};
    const PlaceText half{L"1", L"2", L"", L"", false};
    for (const PlaceUse use : {PlaceUse::Successor, PlaceUse::Text}) {
        EXPECT_EQ(rules.choosePlace({NodeType::TextBox, &whole, &whole, &whole}, use), PlaceSource::Own);
        EXPECT_EQ(rules.choosePlace({NodeType::TextBox, &half, &whole, &whole}, use), PlaceSource::Layout);
        EXPECT_EQ(rules.choosePlace({NodeType::TextBox, nullptr, &half, &whole}, use), PlaceSource::Master);
        EXPECT_EQ(rules.choosePlace({NodeType::TextBox, nullptr, nullptr, &half}, use), PlaceSource::None);
    }
    EXPECT_EQ(rules.keepPlaces({makePlaceholder(L"body", L"1"), makePlaceholder(L"pic", L"1"),
                                makePlaceholder(L"body", L"1"), makePlaceholder(L"title"),
                                makePlaceholder(L"title", L"0"), makeElement(ShapeElement::Shape)}),
              (std::vector<bool>{true, false, true, true, true, false}));
}

TEST(OfficeRules, NamesAreUnique) {
    using Names = Rules::Names;
    EXPECT_EQ(rules.nameMasters({L"Office", L"Own", L"Office", L"", L""}),
              (Names{L"Office", L"Own", L"Office (2)", L"", L""}));
    EXPECT_EQ(rules.nameLayouts({L"A", L"A", L"A (2)", L"A"}), (Names{L"A", L"A (3)", L"A (2)", L"A (4)"}));
    const PlaceText left{L"0", L"5000000", L"1", L"1", true}, right{L"900", L"4990000", L"1", L"1", true};
    const PlaceText top{L"900", L"0", L"1", L"1", true};
    EXPECT_EQ(rules.nameShapes({{L"Text"}, {L"Text", &right}, {L"Text", &left}, {L"Text", &top}}),
              (Names{L"Text (4)", L"Text (3)", L"Text (2)", L"Text"}));
}

TEST(OfficeRules, ATableHasTheNearestStyle) {
    const std::wstring own = L"{1}", other = L"{2}", none, unknown = L"Nobody's", builtIn = L"Light Style 1",
                       dark = L"{e8034e78-7f5d-4c2e-b375-fc64b27bc917}";
    const std::wstring light = L"{9D7B26C5-4107-4FEC-AEDC-1716B250A1EF}", usual = kUsualTableStyleId;
    struct Row {
        TableStyleFacts facts;
        std::wstring id;
        bool isFound;
    };
    const Row rows[] = {
        {{}, usual, true},
        {{nullptr, nullptr, nullptr, &own, true}, own, true},
        {{nullptr, nullptr, nullptr, &own, false}, usual, true}, // which nobody could draw
        {{nullptr, nullptr, nullptr, &dark, false}, dark, true},
        {{nullptr, nullptr, &other, &own, true}, other, true},
        {{nullptr, nullptr, &none, &own, true}, none, true}, // it stood there without
        {{&builtIn, nullptr, &other, &own, true}, light, true},
        {{&builtIn, &own, nullptr, nullptr, false}, own, true}, // the template's meaning of the name
        {{&unknown, nullptr, &other, &own, true}, other, false},
    };
    for (const Row& row : rows) {
        const TableStyle style = rules.chooseTableStyle(row.facts);
        EXPECT_EQ(style.id, row.id);
        EXPECT_EQ(style.isFound, row.isFound);
    }
}

TEST(OfficeRules, ColumnsShareTheWidthOfTheTable) {
    const auto share = [](std::vector<ColumnFacts> columns, double total) {
        return rules.shareWidth({std::move(columns), 0, total});
    };
    const ColumnFacts empty, narrow{{}, 0, 300000, 300000}, wide{{}, 0, 9000000, 400000};
    using Widths = std::vector<int>;
    EXPECT_EQ(share({}, 1000), Widths());
    EXPECT_EQ(share({empty, empty, empty}, 1000), (Widths{333, 334, 333})); // to the last unit
    EXPECT_EQ(share({ColumnFacts{700}, empty, empty}, 1000), (Widths{700, 150, 150}));
    EXPECT_EQ(share({ColumnFacts{2000}, empty}, 1000), (Widths{2000, 208080})); // nothing is left
    EXPECT_EQ(share({empty}, 0), Widths{208080});
    EXPECT_EQ(share({{{}, 100}, {{}, 300}}, 1000), (Widths{250, 750}));
    const Widths widths = share({narrow, wide, narrow}, 3000000);
    EXPECT_EQ(widths[0] + widths[1] + widths[2], 3000000);
    EXPECT_EQ(widths[0], widths[2]);
    EXPECT_GE(widths[0], 482880); // its longest word finds room
    EXPECT_GT(widths[1], 2 * widths[0]);
    EXPECT_GE(share({empty, wide}, 3000000)[0], 500000); // a third of what an equal share is
}

TextLines textOf(const std::variant<std::monostate, double, long long, bool>& given,
                 const std::wstring& text = L"") {
    return rules.textOf({text, given});
}

TEST(OfficeRules, ValuesAsTexts) {
    const std::pair<double, const wchar_t*> rows[] = {
        {0.1, L"0.1"},
        {0.1 + 0.2, L"0.30000000000000004"},
        {2.5, L"2.5"},
        {100000, L"100000"},
        {-1e15, L"-1000000000000000"},
        {1e21, L"1e+21"},
        {1e-7, L"1e-07"},
        {0, L"0"},
    };
    for (const auto& [number, text] : rows)
        EXPECT_EQ(textOf(number), TextLines{text});
    EXPECT_EQ(textOf(9007199254740993LL), TextLines{L"9007199254740993"});
    EXPECT_EQ(textOf(true), TextLines{L"true"});
    EXPECT_EQ(textOf({}, L"a\tb\r\n\nc\rd\n"), (TextLines{L"a\tb", L"", L"c", L"d", L""}));
    EXPECT_EQ(textOf({}), TextLines{L""});
}

TEST(OfficeRules, OneSetLengthKeepsProportions) {
    PictureFacts picture{200, 100, 914400, 952500, false, true};
    EXPECT_EQ(rules.sizeFree(picture).cy, 457200);
    picture = {200, 100, 1905000, 914400, true, false};
    EXPECT_EQ(rules.sizeFree(picture).cx, 1828800);
    picture = {200, 100, 10, 20};
    EXPECT_EQ(rules.sizeFree(picture).cy, 20);
    picture = {200, 100, 1905000, 952500, true, true};
    const Box place{0, 0, 952500, 952500};
    const auto box = rules.fit(picture, &place);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->cx, 952500);
    EXPECT_EQ(box->cy, 476250);
    EXPECT_EQ(box->y, 238125);
}

} // namespace
