#include "vellox/ppt/formats/FormatProperties.h"

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"

#include "tests/support/Expect.h"

using namespace vellox::ppt;
using vellox::test::errorOf;

namespace {

// The mixins that give a class its properties must cost nothing.
static_assert(sizeof(Paragraph) == sizeof(PPTObject), "a facade has one data member");
static_assert(sizeof(ColSpec) == sizeof(PPTObject), "a facade has one data member");

TEST(Formats, HoldOneOfEachKind) {
    Formats formats;
    const auto first = boost::make_shared<Bold>(true), second = boost::make_shared<Bold>(false);
    formats.appendFormat(first);
    formats.appendFormat(boost::make_shared<FontColor>(L"red"));
    formats.appendFormat({});
    const Formats copy = formats;
    formats.appendFormat(second);
    EXPECT_EQ(*formats.getFormat(FormatType::Bold), *second);
    EXPECT_EQ(*copy.getFormat(FormatType::Bold), *first);
    EXPECT_EQ(formats.getMap().begin()->first, FormatType::Bold);
    formats.unsetFormat(FormatType::Bold);
    formats.unsetFormat(FormatType::Bold);
    EXPECT_FALSE(formats.getFormat(FormatType::Bold));
    EXPECT_EQ(copy.getMap().size(), 2u);
}

struct Spelling {
    const wchar_t* input;
    const wchar_t* readBack; // null for a refusal
};

template <class F, class Get> void expectSpellings(std::initializer_list<Spelling> rows, Get get) {
    for (const Spelling& row : rows) {
        const std::string refused =
            "ppt_error:invalidPropertyValue" + vellox::toUtf8(std::wstring(L" ") + row.input);
        if (!row.readBack)
            EXPECT_EQ(errorOf([&] { F{std::wstring(row.input)}; }), refused);
        else
            EXPECT_EQ(get(F(row.input)), row.readBack) << vellox::toUtf8(row.input);
    }
}

TEST(Formats, CheckTheirSpellings) {
    expectSpellings<HAlign>(
        {{L"Left", L"left"}, {L"JUSTIFIEDLOW", L"justifiedLow"}, {L"ctr", nullptr}, {L"", nullptr}},
        [](const HAlign& f) { return f.getValue(); });
    expectSpellings<VAlign>({{L"MiddleCentered", L"middleCentered"}, {L"center", nullptr}},
                            [](const VAlign& f) { return f.getValue(); });
    expectSpellings<Strike>({{L"DOUBLE", L"double"}, {L"sngStrike", nullptr}},
                            [](const Strike& f) { return f.getStyle(); });
    // The last three look like slips and are none.
    expectSpellings<Underline>({{L"SINGLE", L"single"},
                                {L"dottedheavy", L"dottedHeavy"},
                                {L"dashLong", L"dashLong"},
                                {L"dashLongHeavy", nullptr},
                                {L"wavyDouble", L"wavyDbl"},
                                {L"wavyDbl", nullptr}},
                               [](const Underline& f) { return f.getStyle(); });
    expectSpellings<Color>({{L" Red\t", L"red"},
                            {L"#FF00ff ", L"#ff00ff"},
                            {L"GREY", L"grey"},
                            {L"#GG0000", nullptr},
                            {L"FF0000", nullptr},
                            {L"#FFF", nullptr},
                            {L"#1234567", nullptr},
                            {L"", nullptr}},
                           [](const Color& f) { return f.getValue(); });
    expectSpellings<FontSize>({{L" 12 PT", L"12pt"}, {L"large", nullptr}, {L"12 ell", nullptr}},
                              [](const FontSize& f) { return f.getValue(); });
}

TEST(Formats, HaveDefaultsAndKeepTheirValueWhenOneIsRefused) {
    EXPECT_TRUE(Bold().getValue());
    EXPECT_EQ(BackgroundColor().getValue(), L"white");
    EXPECT_EQ(FontSize().getValue(), L"12pt");
    EXPECT_EQ(ColWidth().getValue(), L"0.25in");
    EXPECT_EQ(BaseDimension().getValue(), L"0px");
    EXPECT_EQ(FontFamily(L"Arial").getFont(), L"Times New Roman"); // whatever it is asked for
    EXPECT_EQ(FontFamily(L"Arial", L"").getFont(), L"Arial");
    Underline underline(L"double");
    EXPECT_NE(errorOf([&] { underline.setStyle(L"x"); }), "nothing");
    EXPECT_EQ(underline.getStyle(), L"double");
    FontSize size(L"20pt");
    EXPECT_NE(errorOf([&] { size.setValue(L"x"); }), "nothing");
    EXPECT_EQ(errorOf([&] { size.setValue(L"-"); }), "dom_error:invalidDimensionSign");
    EXPECT_EQ(size.getValue(), L"20pt");
    const auto copy = size.clone();
    size.setValue(L"10pt");
    EXPECT_EQ(copy->getValue(), L"20pt");
}

TEST(FormatProperties, AreSharedWithACopyUntilSet) {
    Paragraph paragraph(L"text");
    paragraph.setBold(true);
    paragraph.setUnderlineStyle(L"single");
    paragraph.setFont(L"Arial");
    paragraph.setComplexScriptFont(L"David");
    const auto node = paragraph.clone();
    Paragraph& copy = static_cast<Paragraph&>(*node);

    paragraph.getBold()->setValue(false); // through the format: shows in both
    EXPECT_FALSE(copy.getBold()->getValue());
    copy.setBold(true);
    EXPECT_FALSE(paragraph.getBold()->getValue());
    copy.setUnderlineStyle(L"double");
    EXPECT_EQ(paragraph.getUnderline()->getStyle(), L"single");
    copy.setFont(L"Courier");
    EXPECT_EQ(paragraph.getFontFamily()->getFont(), L"Arial");
    EXPECT_EQ(copy.getFontFamily()->getComplexScriptFont(), L"David");

    const auto second = paragraph.clone();
    paragraph.unsetFont(); // unlike setting, this acts on the shared format
    EXPECT_EQ(Paragraph::cast(second)->getFontFamily()->getFont(), L"");
    paragraph.unsetComplexScriptFont();
    EXPECT_FALSE(paragraph.getFontFamily());
    paragraph.unsetFont();
    EXPECT_TRUE(Paragraph::cast(second)->getFontFamily());
}

TEST(FormatProperties, KeepTheFormatWhenAValueIsRefused) {
    ColSpec column(L"2cm");
    EXPECT_EQ(errorOf([&] { column.setWidth(L"wide"); }), "ppt_error:invalidPropertyValue wide");
    EXPECT_EQ(errorOf([&] { column.setStrikeStyle(L"thick"); }), "ppt_error:invalidPropertyValue thick");
    EXPECT_EQ(column.getWidth()->getValue(), L"2cm");
    EXPECT_FALSE(column.getStrike());
    column.unsetStrike();
    column.unsetWidth();
    EXPECT_FALSE(column.getWidth());
    EXPECT_EQ(errorOf([] { ColSpec(L"wide"); }), "ppt_error:invalidPropertyValue wide");
}

} // namespace
