#pragma once

#include <initializer_list>

namespace vexa {

/// Unit of the trigonometric functions, with the stored codes. Any value but Degrees acts as
/// radians.
enum class AngleType : int { Degrees = 1, Radians = 2 };

/// Number base of an expression and of its result, with the stored codes.
enum class BaseType : int { Dec = 1, Hex = 2, Bin = 3, Oct = 4 };

/// Some of the bases, one bit each.
using BaseSet = unsigned;

constexpr BaseSet Bases(std::initializer_list<BaseType> bases) {
  BaseSet set = 0;
  for (const BaseType base : bases) set |= 1u << static_cast<int>(base);
  return set;
}
constexpr bool Contains(BaseSet set, BaseType base) {
  return set & Bases({base});
}

inline constexpr BaseSet kNoBase = 0;
inline constexpr BaseSet kDecimalBase = Bases({BaseType::Dec});
inline constexpr BaseSet kIntegerBases = Bases({BaseType::Hex, BaseType::Bin, BaseType::Oct});
inline constexpr BaseSet kAllBases = kDecimalBase | kIntegerBases;

}  // namespace vexa
