/// @file
/// The words for how a picture goes into its box.

#ifndef VELLOX_PPT_FORMATS_FITWORDS_H
#define VELLOX_PPT_FORMATS_FITWORDS_H

#include <string>

namespace vellox::ppt {

enum class Fit { Contain, Enlarge, Cover, Stretch };

struct FitWord {
    const wchar_t* word;
    Fit fit;
};

/// Shares of what is left over that lie to the left of a picture, and above it.
struct FitPosition {
    const wchar_t* word;
    double x, y;
};

inline constexpr wchar_t kMiddleOfBox[] = L"center";

/// @{ In upper or lower case.
/// @throws invalidPropertyValue for a word that isn't known
const FitWord& requireFit(const std::wstring& word);
const FitPosition& requireFitPosition(const std::wstring& word);
/// @}

} // namespace vellox::ppt

#endif
