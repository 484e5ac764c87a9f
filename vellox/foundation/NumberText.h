/// @file
/// Numbers as people write them.

#ifndef VELLOX_FOUNDATION_NUMBERTEXT_H
#define VELLOX_FOUNDATION_NUMBERTEXT_H

#include <string>

namespace vellox {

/// The shortest text that reads back as the same number: 0.1 gives "0.1". Without an exponent, unless the number is
/// below 0.00001 or has more than 16 digits ahead of its point.
std::wstring toShortest(double number);

} // namespace vellox

#endif
