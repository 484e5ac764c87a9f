/// @file
/// Every length of the library: a text such as "2.5 cm" split into a number and a unit, and its conversions.
///
///     Dimension width(L"2.5 cm");
///     width.getEMUNumber();  // 899998, in English Metric Units
///     width.getRawValue();   // L"2.5cm"
///
/// The conversions rest on rounded inch ratios (a point is 0.0139 inch, a centimetre 0.3937 inch), and
/// results depend on them to the last digit: 1pt is 12710.16 EMU and not 12700.

#ifndef VELLOX_FOUNDATION_DIMENSION_H
#define VELLOX_FOUNDATION_DIMENSION_H

#include <string>

#include "vellox/Api.h"

namespace vellox {

/// A length, or a share of one. A value.
///
/// Text is read as blanks, a number (digits and points, perhaps with a minus sign), blanks, a unit in any
/// case, blanks; what follows is ignored. A number without a unit is in pixels, a unit without a number has
/// the number 0.
class VELLOX_API Dimension {
public:
    enum Units : int {
        px = 0,           ///< pixels, 9525 EMU each
        in = 1,           ///< inches, 914400 EMU
        mm = 2,           ///< millimetres
        cm = 3,           ///< centimetres
        pt = 4,           ///< points
        pi = 5,           ///< picas
        percent = 6,      ///< "%"
        proportional = 7, ///< "*"
        twips = 8,        ///< twentieths of a point, 635 EMU
        emus = 9,         ///< English Metric Units
        invalid = 10      ///< no unit; never that of a good dimension
    };

    /// One inch.
    Dimension();
    /// @throws invalidDimensionSign if the number is a lone minus sign
    /// @throws invalidDimensionUnits for an unknown unit, with the unit as written
    explicit Dimension(const std::wstring& value);
    Dimension(const Dimension&) = default;
    Dimension& operator=(const Dimension& other);

    /// True for a text with a number and with either a known unit or none. "-" passes, although no
    /// dimension can be made of it, and "in" doesn't, although one can.
    static bool isValid(const std::wstring& text);
    /// The unit of a text such as "CM", or `invalid`.
    static const Units& str2dim(const std::wstring& text);
    /// The text of a unit; empty for `invalid`.
    static const std::wstring& dim2str(Units unit);

    /// Number and unit with nothing between them, the number's digits as they were given.
    const std::wstring& getRawValue() const { return rawValue_; }
    /// As the constructor. After a failure the bad text stands here with the old number.
    void setRawValue(const std::wstring& value);
    double getNumericValue() const { return numericValue_; }
    Units getUnits() const { return units_; }
    bool isPercentValue() const { return units_ == percent; }
    bool isProportionalValue() const { return units_ == proportional; }
    /// Whether it is a share of something else: "50%" or "1.5*".
    bool isShare() const { return isPercentValue() || isProportionalValue(); }

    /// English Metric Units, the fraction dropped; at the limits of an int beyond its range.
    int getEMUNumber() const;
    std::wstring getEMUValue() const;
    /// Points: a number of points as it is, everything else through EMU at 12700 a point.
    double getPointNumber() const;
    std::wstring getPointValue() const;
    /// Twentieths of a point.
    double getDXANumber() const;
    std::wstring getDXAValue() const;
    /// @{ Parts of a point, the fraction dropped.
    std::wstring getHalfPointValue() const;
    std::wstring getEighthsPointValue() const;
    /// @}
    /// Pixels at 150 an inch.
    std::wstring getPixelValue() const;
    /// Twips, the fraction dropped; an EMU count comes back unchanged.
    std::wstring getTwipsValue() const;
    /// Fiftieths of a percent, whatever the unit.
    double getPCTNumber() const;
    std::wstring getPCTValue() const;
    /// @{ The number, whatever the unit.
    std::wstring getPercentValue() const;
    std::wstring getProportionalValue() const;
    /// @}

    /// Numbers compare directly where the units are the same, otherwise in points, exactly and without any
    /// tolerance.
    bool operator==(const Dimension& other) const;
    bool operator!=(const Dimension& other) const;
    bool operator<(const Dimension& other) const;
    bool operator>(const Dimension& other) const;

protected:
    void parse();

private:
    double toEMU() const;

    std::wstring rawValue_;
    double numericValue_ = 0;
    Units units_ = px;
};

} // namespace vellox

#endif
