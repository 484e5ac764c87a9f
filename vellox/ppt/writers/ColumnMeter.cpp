#include "vellox/ppt/writers/ColumnMeter.h"

#include "vellox/ppt/writers/LetterWidths.h"

namespace vellox::ppt {

void ColumnMeter::add(std::size_t column, const std::wstring& text, double points) {
    constexpr double kEmuPerPoint = 12700;
    if (column >= columns_.size())
        return;
    Column& measured = columns_[column];
    const double size = points * kEmuPerPoint;
    double longest = measured.longestWord;
    for (const wchar_t c : text) {
        const double width = size * getLetterWidth(c);
        line_ += width;
        if (isWideLetter(c) || c == L' ' || c == L'\t') { // a line may be broken there
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
