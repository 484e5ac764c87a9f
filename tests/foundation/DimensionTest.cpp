#include "vellox/foundation/Dimension.h"

#include "tests/support/Expect.h"

using vellox::Dimension;
using vellox::test::errorOf;

namespace {

struct Parsed {
    const wchar_t* text;
    const wchar_t* normalized;
    double number;
    bool isValid;
};

TEST(Dimension, SplitsTextIntoNumberAndUnit) {
    const Parsed rows[] = {
        {L"", L"0px", 0, false},
        {L"5", L"5px", 5, true}, // pixels, not points
        {L"  2   IN  ", L"2in", 2, true},
        {L"007.50cm", L"007.50cm", 7.5, true}, // the digits stay
        {L"in", L"0in", 0, false},             // no number: not valid, and yet taken
        {L"-5in", L"-5in", -5, true},
        {L"+5in", L"0px", 0, false}, // nothing matches at the start
        {L"12 in and more", L"12in", 12, true},
        {L"1.2.3in", L"1.2.3in", 1.2, true},
        {L".", L".px", 0, true},
        {L"3*", L"3*", 3, true},
        {L"10 %", L"10%", 10, true},
        {L"7 TWIPS", L"7twips", 7, true},
        {L"1\u00e9", L"1px", 1, true},
    };
    for (const Parsed& row : rows) {
        const Dimension dimension(row.text);
        EXPECT_EQ(dimension.getRawValue(), row.normalized) << vellox::toUtf8(row.text);
        EXPECT_EQ(dimension.getNumericValue(), row.number) << vellox::toUtf8(row.text);
        EXPECT_EQ(Dimension::isValid(row.text), row.isValid) << vellox::toUtf8(row.text);
    }
}

TEST(Dimension, RefusesLoneSignsAndUnknownUnits) {
    EXPECT_TRUE(Dimension::isValid(L"-")); // and can't be parsed all the same
    EXPECT_EQ(errorOf([] { Dimension(L"-"); }), "dom_error:invalidDimensionSign");
    EXPECT_EQ(errorOf([] { Dimension(L"--5in"); }), "dom_error:invalidDimensionSign");
    EXPECT_EQ(errorOf([] { Dimension(L"1e3in"); }), "dom_error:invalidDimensionUnits e");
    EXPECT_EQ(errorOf([] { Dimension(L"3 Furlong"); }), "dom_error:invalidDimensionUnits Furlong");

    Dimension dimension(L"2cm");
    EXPECT_EQ(errorOf([&] { dimension.setRawValue(L"4 ell"); }), "dom_error:invalidDimensionUnits ell");
    EXPECT_EQ(dimension.getRawValue(), L"4 ell");
    EXPECT_EQ(dimension.getNumericValue(), 2);
    EXPECT_EQ(dimension.getUnits(), Dimension::invalid);
}

TEST(Dimension, ConvertsByItsOwnRatios) {
    struct Row {
        const wchar_t* text;
        int emu;
        double points;
        const wchar_t* pixels;
        const wchar_t* twips;
    };
    const Row rows[] = {
        {L"1px", 9525, 9525 * (1.0 / 12700), L"1", L"9"},
        {L"1in", 914400, 72, L"150", L"1440"},
        {L"1mm", 35999, 0.03937 * 914400 * (1.0 / 12700), L"5.9055", L"56"},
        {L"1cm", 359999, 0.3937 * 914400 * (1.0 / 12700), L"59.055", L"566"},
        {L"12pt", 152521, 12, L"25.019999999999996", L"240"}, // points never go through EMU
        {L"1pi", 76169, 0.0833 * 914400 * (1.0 / 12700), L"12.495000000000001", L"119"},
        {L"1twips", 635, 635 * (1.0 / 12700), L"0.10416666666666667", L"1"},
        {L"1000emus", 1000, 1000 * (1.0 / 12700), L"0.16404199475065617", L"1000"}, // no factor for twips
        {L"10%", 10, 10 * (1.0 / 12700), L"10", L"10"},
        {L"-5in", -4572000, -360, L"-750", L"-7200"},
        {L"99999in", 2147483647, 99999 * 914400.0 * (1.0 / 12700), L"14999850", L"143998560"},
    };
    for (const Row& row : rows) {
        const Dimension dimension(row.text);
        EXPECT_EQ(dimension.getEMUNumber(), row.emu) << vellox::toUtf8(row.text);
        EXPECT_DOUBLE_EQ(dimension.getPointNumber(), row.points) << vellox::toUtf8(row.text);
        EXPECT_NEAR(std::stod(dimension.getPixelValue()), std::stod(row.pixels), 1e-9)
            << vellox::toUtf8(row.text);
        EXPECT_EQ(dimension.getTwipsValue(), row.twips) << vellox::toUtf8(row.text);
    }
    EXPECT_EQ(Dimension(L"12pt").getDXAValue(), L"240.19199999999998");
    EXPECT_EQ(Dimension(L"12pt").getHalfPointValue(), L"24");
    EXPECT_EQ(Dimension(L"12pt").getEighthsPointValue(), L"96");
    EXPECT_EQ(Dimension(L"10%").getPCTValue(), L"500");
    EXPECT_EQ(Dimension(L"10%").getPercentValue(), L"10");
    EXPECT_EQ(Dimension::dim2str(Dimension::invalid), L"");
}

TEST(Dimension, ComparesInPointsAcrossUnits) {
    EXPECT_TRUE(Dimension(L"1in") == Dimension(L"72pt"));
    EXPECT_TRUE(Dimension(L"1cm") < Dimension(L"1in"));
    EXPECT_TRUE(Dimension(L"2pt") > Dimension(L"1pt"));
    EXPECT_TRUE(Dimension(L"1in") != Dimension(L"2.54cm")); // exactly, and by the rounded ratios
    Dimension copy;
    EXPECT_EQ(copy.getRawValue(), L"1in");
    copy = Dimension(L"5 MM");
    EXPECT_TRUE(copy == Dimension(L"5mm"));
}

} // namespace
