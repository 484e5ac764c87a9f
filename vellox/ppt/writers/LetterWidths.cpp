#include "vellox/ppt/writers/LetterWidths.h"

#include <array>
#include <string_view>

namespace vellox::ppt {

namespace {

// In hundredths of the size.
constexpr unsigned char kUsualWidth = 56, kFullWidth = 100;

// About what usual fonts without serifs have.
constexpr std::array<unsigned char, 128> makeWidths() {
    struct Group {
        std::string_view letters;
        unsigned char width;
    };
    constexpr Group kGroups[] = {
        {" !'.,:;|ijl", 28}, {"()[]-/\\`ftrI\"*", 36},
        {"ckJsvxyz^", 50},   {"ABCDEFGHKLNOPQRSTUVXYZ&wZ+<=>~", 70},
        {"mMW%@", 90},
    };
    std::array<unsigned char, 128> widths{};
    for (unsigned char& width : widths)
        width = kUsualWidth;
    for (const Group& group : kGroups)
        for (const char c : group.letters)
            widths[static_cast<unsigned char>(c)] = group.width;
    return widths;
}

constexpr std::array<unsigned char, 128> kWidths = makeWidths();

} // namespace

// Those from Hangul Jamo on in the first plane that are, and the planes of ideographs.
bool isWideLetter(wchar_t c) {
    if (c < 0x1100)
        return false;
    return c <= 0x115F || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1FAFF) || (c >= 0x20000 && c <= 0x3FFFD);
}

double getLetterWidth(wchar_t c) {
    const auto place = static_cast<char32_t>(c);
    const int width = place < kWidths.size() ? kWidths[place] : isWideLetter(c) ? kFullWidth : kUsualWidth;
    return width / 100.0;
}

} // namespace vellox::ppt
