#pragma once
// Conversion from floating point to integer as the whole system does it: to the nearest
// integer, and an exact half to the even neighbour (0.5 -> 0, 1.5 -> 2, 191.5 -> 192,
// -2.5 -> -2). Written out instead of relying on the floating-point environment's rounding
// mode, so the result never depends on what another library set that mode to.

#include <cmath>

namespace iw {

// `value` must lie within the range of int.
inline int RoundHalfEven(double value) {
    const double lower = std::floor(value);
    const double fraction = value - lower;
    long long result = static_cast<long long>(lower);
    if (fraction > 0.5 || (fraction == 0.5 && (result & 1) != 0)) ++result;
    return static_cast<int>(result);
}

// The same rule for the exact quotient numerator / denominator (denominator > 0), without
// going through floating point: for callers whose factors are exact binary fractions
// (sixteenths and the like), where both forms give the same integer.
constexpr int RoundHalfEven(int numerator, int denominator) {
    int quotient = numerator / denominator;
    int remainder = numerator % denominator;
    if (remainder < 0) {  // make the quotient the floor
        remainder += denominator;
        --quotient;
    }
    const int twice = 2 * remainder;
    if (twice > denominator || (twice == denominator && (quotient & 1) != 0)) ++quotient;
    return quotient;
}

}  // namespace iw
