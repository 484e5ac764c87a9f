/// @file
/// Colours.

#ifndef VELLOX_PPT_FORMATS_COLOR_H
#define VELLOX_PPT_FORMATS_COLOR_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/Format.h"

namespace vellox::ppt {

class BackgroundColorImpl;
class ColorImpl;
class FontColorImpl;

/// A colour: "#" and six hexadecimal digits, or one of 147 names, such as "cornflowerblue"; in any case, with
/// or without blanks around it. "black" by default. A bare Color acts on nothing.
class VELLOX_API Color : public Format {
public:
    Color();
    /// @throws invalidPropertyValue
    explicit Color(const std::wstring& value);
    /// In lower case, without blanks around it.
    const std::wstring& getValue() const;
    /// @throws invalidPropertyValue; the value stays as it is then
    void setValue(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit Color(ColorImpl* impl);
};

/// The colour of text, "black" by default.
class VELLOX_API FontColor : public Color {
public:
    FontColor();
    /// @throws invalidPropertyValue
    explicit FontColor(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit FontColor(FontColorImpl* impl);
};

/// The fill of a text box or a table cell, "white" by default.
class VELLOX_API BackgroundColor : public Color {
public:
    BackgroundColor();
    /// @throws invalidPropertyValue
    explicit BackgroundColor(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit BackgroundColor(BackgroundColorImpl* impl);
};

} // namespace vellox::ppt

#endif
