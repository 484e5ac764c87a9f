/// @file
/// About how wide the texts in the columns of a table are.

#ifndef VELLOX_PPT_WRITERS_COLUMNMETER_H
#define VELLOX_PPT_WRITERS_COLUMNMETER_H

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace vellox::ppt {

/// Told of texts as they are written, run by run and line by line. No font is asked: letters are as wide as in usual
/// fonts, those of East Asia as the font is high.
class ColumnMeter {
public:
    /// The size of text in tables for which nothing is said.
    static constexpr double kUsualPoints = 18;

    struct Column {
        double longestLine = 0, longestWord = 0; ///< in EMU
    };

    explicit ColumnMeter(std::size_t columns) : columns_(columns) {}

    /// A text behind what the line has so far. A column that isn't there is passed over.
    void add(std::size_t column, const std::wstring& text, double points);
    void endLine() { line_ = word_ = 0; }
    const std::vector<Column>& get() const { return columns_; }

private:
    std::vector<Column> columns_;
    double line_ = 0, word_ = 0; // so far
};

} // namespace vellox::ppt

#endif
