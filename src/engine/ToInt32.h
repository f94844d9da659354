#pragma once

#include <cmath>
#include <cstdint>

namespace vexa {

/// `value` truncated toward zero and wrapped modulo 2^32 into the signed 32-bit range; 0 when it is
/// infinite or not a number.
inline std::int32_t ToInt32(double value) {
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
  if (!std::isfinite(value)) return 0;
  const double wrapped = std::fmod(std::trunc(value), 4294967296.0);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(wrapped)));
}

/// Whether `value` is a whole number within the 32-bit range.
inline bool IsInt32(double value) {
  return static_cast<double>(ToInt32(value)) == value;
}

}  // namespace vexa
