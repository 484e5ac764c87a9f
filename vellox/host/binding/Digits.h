/// @file
/// Which whole numbers are texts of all their digits, for adapters that read values. The same for all hosts.

#ifndef VELLOX_HOST_BINDING_DIGITS_H
#define VELLOX_HOST_BINDING_DIGITS_H

#include <cmath>

#include "vellox/Api.h"
#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::hostbind {

/// Which whole numbers of 2^53 and more, which no double can tell apart, are texts of all their digits.
enum class Digits {
    OfItems, ///< those in lists and arrays
    Always,
    Never
};

/// @{ What the making of an object, and the setting of a property, show or count with.
VELLOX_API Digits getDigits(const BoundClass& bound);
VELLOX_API Digits getDigits(const BoundProperty& property);
/// @}

/// @param isItem whether the number stands in a list or an array
inline bool wantsDigits(Digits digits, bool isItem) {
    return digits == Digits::Always || (isItem && digits == Digits::OfItems);
}

/// From here on two whole numbers may be one double.
inline bool isLong(double number) {
    return std::abs(number) >= 9007199254740992.0;
}

/// Lists in lists beyond this are taken for ones that hold themselves.
inline constexpr unsigned int kDeepestList = 1000;

} // namespace vellox::ppt::hostbind

#endif
