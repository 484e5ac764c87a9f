/// @file
/// How wide letters are, about: nobody here knows the fonts that a deck will be shown with.

#ifndef VELLOX_PPT_WRITERS_LETTERWIDTHS_H
#define VELLOX_PPT_WRITERS_LETTERWIDTHS_H

namespace vellox::ppt {

/// As a part of the size of the text.
double getLetterWidth(wchar_t c);

/// Whether it is one of the scripts of East Asia, which are as wide as high, and between which a line may be broken.
bool isWideLetter(wchar_t c);

} // namespace vellox::ppt

#endif
