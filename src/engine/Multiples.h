#pragma once

#include <cmath>

namespace vexa {

/// Below this size the test of a multiple needs no remainder.
inline constexpr double kLargestQuickMultiple = 17592186044416.0;  // 2^44

/// Whether `x` is a multiple of `unit`, a whole number from 1 to 256: whether fmod(x, unit) is 0.
/// False for what is not finite.
///
/// Up to 2^44 the nearest whole number to x / unit is found exactly enough: where x is a multiple,
/// the quotient is off by less than 2^-7, and the product with unit, a whole number below 2^53, is
/// exact; where x is none, no multiple equals it.
inline bool IsMultiple(double x, double unit) {
  if (!(std::fabs(x) <= kLargestQuickMultiple)) return std::fmod(x, unit) == 0.0;
  // Adding and taking away this leaves the nearest whole number.
  constexpr double kRounding = 6755399441055744.0;  // 1.5 * 2^52
  const double quotient = (x * (1.0 / unit) + kRounding) - kRounding;
  return quotient * unit == x;
}

}  // namespace vexa
