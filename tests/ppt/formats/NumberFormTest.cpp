#include "vellox/ppt/formats/NumberForm.h"

#include "vellox/host/services/Utf8.h"

#include <gtest/gtest.h>

using namespace vellox;
using namespace vellox::ppt;

namespace {

std::wstring show(double number, const wchar_t* form, const NumberMarks& marks = {}) {
    const auto parsed = NumberForm::parse(form);
    return parsed ? parsed->show(number, marks).value_or(L"-") : L"no form";
}

std::wstring show(const wchar_t* text, const wchar_t* form) {
    const auto parsed = NumberForm::parse(form);
    return parsed ? parsed->show(std::wstring(text)).value_or(L"-") : L"no form";
}

TEST(NumberFormTest, NumbersComeInTheirForms) {
    const struct {
        double number;
        const wchar_t* form;
        const wchar_t* text; // "-": not for this number
    } rows[] = {
        {3.14159, L".1f", L"3.1"},
        {1234567.5, L",.2f", L"1,234,567.50"},
        {-0.25, L".0%", L"-25%"},
        {12, L"d", L"12"},
        {1e6, L"+,d", L"+1,000,000"},
        {0.00012, L".1e", L"1.2e-04"},
        {12.5, L"d", L"-"},
        {999, L",", L"999"},
        {1e6, L",", L"1,000,000"},
        {1e-4, L"+", L"+0.0001"},
        {1e16, L"+", L"+1e+16"},
        {1e300, L".1g", L"1e+300"},
        {1, L".2x", L"no form"},
        {1, L".999f", L"no form"},
        {1, L".2d", L"no form"},
        {1, L"", L"no form"},
        {1, L"%d.%m", L"-"},
        {2.5, L"{:.2f} m", L"2.50 m"},
        {2.5, L"{}", L"2.5"},
        {7, L"{{{:d}}}", L"{7}"},
        {1, L"{:.1f} {:.1f}", L"no form"},
        {1, L"{.1f}", L"no form"},
        {1, L"{:.1f", L"no form"},
        {1, L"1}", L"no form"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(show(row.number, row.form), row.text) << toUtf8(row.form);
    EXPECT_EQ(show(-1234567.5, L",.2f", {L",", L"."}), L"-1.234.567,50");
    EXPECT_EQ(show(1234.5, L",.1f", {L",", L""}), L"1234,5");
    EXPECT_EQ(show(L"1234.5", L",.0f"), L"1,234");
    EXPECT_EQ(show(L"12 m", L".1f"), L"-");
    EXPECT_EQ(show(L"9007199254740993", L",d"), L"9,007,199,254,740,993"); // no double is that number
    EXPECT_EQ(show(L"-9007199254740993", L".1f"), L"-9007199254740993.0");
    EXPECT_EQ(show(1e308, L".0%"), L"-");
    for (const wchar_t* text : {L"2026-11-21", L"2026-11-21T09:30:00", L"2026-11-21 09:30:00.5"})
        EXPECT_EQ(show(text, L"%d.%m.%Y"), L"21.11.2026") << toUtf8(text);
    for (const wchar_t* text :
         {L"10-11-12", L" 2026-11-21", L"2026-11-21 at noon", L"2026-11-21 09:30:00+01:00"})
        EXPECT_EQ(show(text, L"%d.%m.%Y"), L"-") << toUtf8(text);
}

TEST(NumberFormTest, DatesComeInTheirForms) {
    EXPECT_EQ(show(L"2026-11-21", L"%d.%m.%Y"), L"21.11.2026");
    EXPECT_EQ(show(L"2026-11-21 09:30:00", L"%a %H:%M %%"), L"Sat 09:30 %");
    EXPECT_EQ(show(L"2026-11-21", L"week of {:%d %b}"), L"week of 21 Nov");
    for (const wchar_t* date : {L"", L"week 47", L"2026-13-01", L"2026-02-31", L"2026-11-21xyz"})
        EXPECT_EQ(show(date, L"%d"), L"-") << toUtf8(date);
    for (const wchar_t* form : {L"%Q", L"d %", L"day"})
        EXPECT_EQ(show(L"2026-11-21", form), L"no form") << toUtf8(form);
}

} // namespace
