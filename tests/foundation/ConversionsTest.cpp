#include "vellox/foundation/Conversions.h"

#include "vellox/foundation/ByteArray.h"
#include "vellox/host/services/Utf8.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace vellox;

namespace {

TEST(Conversions, ReadTheNumberThatATextBeginsWith) {
    struct Row {
        const wchar_t* text;
        int whole;
        double number;
    };
    const Row rows[] = {
        {L"", 0, 0},
        {L"7x", 7, 7},
        {L"x7", 0, 0},
        {L"12abc", 12, 12},
        {L" 5 ", 5, 5},
        {L"+5", 5, 5},
        {L"-5.75", -5, -5.75},
        {L"1.2.3", 1, 1.2},
        {L"1e3", 1, 1000},
        {L"1e", 1, 1}, // a stream would say 0
        {L"1e+", 1, 1},
        {L".5", 0, 0.5},
        {L"--5", 0, 0},
        {L"0x1A", 0, 0},
        {L"1,234", 1, 1},
        {L"\u0663", 0, 0}, // a digit, but not one of these
        {L"99999999999", 2147483647, 99999999999.0},
        {L"-99999999999", -2147483647 - 1, -99999999999.0},
        {L"infx", 0, 0},
        {L"1e-999", 1, 0},
        {L"0.0000e-999", 0, 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(str2int(row.text), row.whole) << toUtf8(row.text);
        EXPECT_EQ(str2double(row.text), row.number) << toUtf8(row.text);
    }
    EXPECT_EQ(str2double(L"1e999"), std::numeric_limits<double>::max());
    EXPECT_EQ(str2double(L"-INFINITY"), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(str2double(L"NAN")));
    EXPECT_EQ(str2double(L"Nan"), 0);
    EXPECT_EQ(str2double(L" nan"), 0);
    EXPECT_TRUE(std::signbit(str2double(L"-nan")));
    EXPECT_FALSE(std::signbit(str2double(L"-.")));
    EXPECT_EQ(str2double(L"0." + std::wstring(500, L'0') + L"1e100"), 0);
    EXPECT_EQ(str2double(L"1" + std::wstring(500, L'0') + L"e-10"), std::numeric_limits<double>::max());
    EXPECT_EQ(str2double(L"-1e" + std::wstring(500, L'9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(str2double(L"1e-" + std::wstring(500, L'9')), 0);
    EXPECT_EQ(str2uint(L"-1"), 4294967295u);
    EXPECT_EQ(str2long(L"2147483648x"), 2147483648L);
}

TEST(Conversions, WriteSeventeenDigits) {
    EXPECT_EQ(num2str(1.0), L"1");
    EXPECT_EQ(num2str(2.5), L"2.5");
    EXPECT_EQ(num2str(0.1), L"0.10000000000000001");
    EXPECT_EQ(num2str(-1e300), L"-1.0000000000000001e+300");
    EXPECT_EQ(num2str(std::nan("")), L"nan");
    EXPECT_EQ(num2str(-std::numeric_limits<double>::infinity()), L"-inf");
    EXPECT_EQ(num2str(-7), L"-7");
    EXPECT_EQ(num2str(4294967295u), L"4294967295");
    EXPECT_EQ(bool2str(true), L"TRUE");
}

// A host may have set any locale; "2,5" in a document would be refused by every reader.
TEST(Conversions, IgnoreTheLocale) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale former = std::locale::global(std::locale(std::locale::classic(), new Comma));
    EXPECT_EQ(num2str(2.5), L"2.5");
    EXPECT_EQ(num2str(1234567), L"1234567");
    EXPECT_EQ(str2double(L"2.5"), 2.5);
    EXPECT_EQ(str2int(L"1.234"), 1);
    EXPECT_EQ(str2uint(L"1.234"), 1u);
    std::locale::global(former);
}

TEST(Conversions, MapCaseAndReplace) {
    EXPECT_EQ(toLowerString(L"MixedCASE"), L"mixedcase");
    EXPECT_EQ(toUpperString(L"MixedCASE"), L"MIXEDCASE");
    std::wstring text = L"banana";
    replaceAll(text, L"a", L"aa");
    EXPECT_EQ(text, L"baanaanaa");
    replaceAll(text, L"aa", L"aa");
    EXPECT_EQ(text, L"baanaanaa");
    replaceAll(text, L"", L"x");
    EXPECT_EQ(text, L"baanaanaa");
}

TEST(Conversions, MakeNewUuids) {
    std::set<std::wstring> made;
    for (int i = 0; i < 100; ++i) {
        const std::wstring id = uuid_gen();
        ASSERT_EQ(id.size(), 36u);
        EXPECT_EQ(id[14], L'4');
        EXPECT_NE(std::wstring(L"89ab").find(id[19]), std::wstring::npos);
        EXPECT_TRUE(made.insert(id).second);
    }
}

TEST(Utf8, PassesEveryCharacterAndDropsWhatIsNone) {
    const std::wstring text = L"a\u00e4\u20ac\U0001F600\u05d0";
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    EXPECT_EQ(toUtf8(L"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(std::wstring{L'a', wchar_t(0xD800), wchar_t(0x110000), L'b'}), "ab");
    EXPECT_EQ(fromUtf8("a\xFF\xC3"), L"a");
    EXPECT_EQ(fromUtf8("a\xC3"
                       "b\xE2\x82"
                       "c\xF0\x9F\xC3\xA4\xC0\xAF\xED\xA0\x80"
                       "d"),
              L"abc\u00e4d");
}

TEST(ByteArray, CopiesAreIndependentAndReadFromTheStart) {
    ByteArray bytes(std::string("abcdef"));
    unsigned char target[4];
    EXPECT_EQ(bytes.read(target, 4), 4u);
    ByteArray copy(bytes);
    EXPECT_TRUE(copy == bytes);
    *copy.begin() = 'x';
    EXPECT_FALSE(copy == bytes);
    EXPECT_EQ(copy.read(target, 4), 4u);
    EXPECT_EQ(bytes.read(target, 4), 2u);
    EXPECT_TRUE(bytes.isDone());
    EXPECT_EQ(bytes.read(target, 4), 0u);
    EXPECT_FALSE(ByteArray() == ByteArray(std::string()));
    EXPECT_TRUE(ByteArray() == ByteArray());
}

// A forked process has the same memory.
TEST(Uuids, AForkedProcessDrawsOthers) {
    std::set<std::wstring> drawn{uuid_gen()};
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        const std::string id = toUtf8(uuid_gen());
        _exit(write(ends[1], id.data(), id.size()) == 36 ? 0 : 1);
    }
    std::string id(36, '\0');
    EXPECT_EQ(read(ends[0], id.data(), id.size()), 36);
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    close(ends[0]);
    close(ends[1]);
    EXPECT_TRUE(drawn.insert(uuid_gen()).second);
    EXPECT_TRUE(drawn.insert(fromUtf8(id)).second);
}

} // namespace
