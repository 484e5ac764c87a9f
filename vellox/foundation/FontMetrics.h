/// @file
/// How wide letters are, in the fonts that are installed.

#ifndef VELLOX_FOUNDATION_FONTMETRICS_H
#define VELLOX_FOUNDATION_FONTMETRICS_H

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <unordered_map>

namespace vellox {

/// One font. All lengths are shares of its size.
class FontMetrics {
public:
    static constexpr double kUsualAdvance = 0.5, kWideAdvance = 1, kUsualLineHeight = 1.2;

    virtual ~FontMetrics();

    /// How far a letter takes the pen. Where the font hasn't got it, as far as in usual fonts: half as wide as it is
    /// high, those of East Asia in full.
    double getAdvance(wchar_t letter);
    double getLineHeight() const { return lineHeight_; }
    /// Whether it is the font that was asked for, or one of the same measures.
    bool isOwn() const { return isOwn_; }

protected:
    virtual double readAdvance(wchar_t letter);

    double lineHeight_ = kUsualLineHeight;
    bool isOwn_ = false;

private:
    std::unordered_map<wchar_t, double> advances_;
};

/// The fonts of this machine, as fontconfig finds and FreeType reads them. Without these every font is an average one.
/// What the rest of the process does with fontconfig stays as it is.
class FontBook {
public:
    FontBook();
    FontBook(const FontBook&) = delete;
    FontBook& operator=(const FontBook&) = delete;
    ~FontBook();

    /// The font of a family, or what stands in for it. Good as long as the book.
    FontMetrics& find(const std::wstring& family, bool isBold, bool isItalic);

private:
    struct Libraries;

    std::unique_ptr<Libraries> libraries_;
    std::map<std::tuple<std::wstring, bool, bool>, std::unique_ptr<FontMetrics>> fonts_;
};

} // namespace vellox

#endif
