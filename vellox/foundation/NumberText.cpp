#include "vellox/foundation/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vellox {

std::wstring toShortest(double number) {
    constexpr double kLeastPlain = 1e-5, kGreatestPlain = 1e16;
    const double size = std::fabs(number);
    const bool isPlain = size == 0 || (size >= kLeastPlain && size < kGreatestPlain);
    std::array<char, 64> digits;
    const auto end = isPlain
                         ? std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed)
                         : std::to_chars(digits.begin(), digits.end(), number, std::chars_format::scientific);
    return {digits.begin(), end.ptr};
}

} // namespace vellox
