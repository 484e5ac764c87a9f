#include "vellox/ppt/writers/ColumnMeter.h"

namespace vellox::ppt {

namespace {

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
    const double half = points * kEmuPerPoint / 2;
    double word = word_, longest = columns_[column].longestWord;
    std::size_t wide = 0;
    for (const wchar_t c : text) {
        if (c == L' ' || c == L'\t') {
            longest = std::max(longest, word);
            word = 0;
        } else if (isWide(c)) { // lines may be broken at any of them
            ++wide;
            longest = std::max(longest, word);
            word = 2 * half;
        } else {
            word += half;
        }
    }
    word_ = word;
    line_ += half * static_cast<double>(text.size() + wide);
    columns_[column].longestWord = std::max(longest, word);
    columns_[column].longestLine = std::max(columns_[column].longestLine, line_);
}

} // namespace vellox::ppt
