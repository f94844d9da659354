#pragma once

#include <array>
#include <span>
#include <string_view>

namespace vexa {

/// A unit of a category, or a whole conversion by formula. `factor` is the size of one unit in the
/// category's reference unit, whose factor is 1; a formula does not use it.
struct UnitEntry {
  std::wstring_view name;
  double factor;
};

/// How a category's values are converted.
enum class CategoryKind {
  Factors,      ///< from any unit to any other by their factors
  Temperature,  ///< each entry is a whole conversion, computed by its formula
  UserDefined,  ///< the user's conversions, each with its rate; no built-in entries
};

/// A category as the list shows it, with its entries in the order of the stored positions.
struct UnitCategory {
  std::wstring_view name;
  CategoryKind kind;
  std::span<const UnitEntry> units;
};

/// Entries that a category can have, the user's included.
inline constexpr int kMaxUnits = 60;

inline constexpr int kCategoryCount = 15;

/// The categories in the order of their stored codes, 0 to 14. Names, factors and order are the
/// system's own, unusual spellings and rounded factors included: positions are remembered between
/// runs, and results must not change.
extern const std::array<UnitCategory, kCategoryCount> kUnitCategories;

/// The category with this code, which must be 0 to 14.
const UnitCategory& CategoryOf(int code);

}  // namespace vexa
