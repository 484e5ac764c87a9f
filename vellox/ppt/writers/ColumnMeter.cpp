#include "vellox/ppt/writers/ColumnMeter.h"

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

// Letters of the scripts of East Asia, which are as wide as high: those from Hangul Jamo on in the first plane that
// are, and the planes of ideographs.
bool isWide(wchar_t c) {
    if (c < 0x1100)
        return false;
    return c <= 0x115F || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1FAFF) || (c >= 0x20000 && c <= 0x3FFFD);
}

} // namespace

void ColumnMeter::add(std::size_t column, const std::wstring& text, double points) {
    constexpr double kEmuPerPoint = 12700;
    if (column >= columns_.size())
        return;
    Column& measured = columns_[column];
    const double unit = points * kEmuPerPoint / kFullWidth;
    double longest = measured.longestWord;
    for (const wchar_t c : text) {
        const bool isPlain = c >= 0 && static_cast<std::size_t>(c) < kWidths.size();
        const bool isFull = !isPlain && isWide(c);
        const double width = unit * (isPlain  ? kWidths[static_cast<std::size_t>(c)]
                                     : isFull ? kFullWidth
                                              : kUsualWidth);
        line_ += width;
        if (isFull || c == L' ' || c == L'\t') { // a line may be broken there
            longest = std::max(longest, word_);
            word_ = 0;
        }
        if (c != L' ' && c != L'\t')
            word_ += width;
    }
    measured.longestWord = std::max(longest, word_);
    measured.longestLine = std::max(measured.longestLine, line_);
}

} // namespace vellox::ppt
