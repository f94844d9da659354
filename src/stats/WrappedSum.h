#pragma once

#include <cstdint>

namespace vexa {

/// a + b, wrapped into the signed 32-bit range.
constexpr std::int32_t WrappedSum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// a - b, wrapped into the signed 32-bit range.
constexpr std::int32_t WrappedDifference(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

}  // namespace vexa
