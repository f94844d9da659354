#pragma once

#include <array>
#include <string>

namespace vexa {

/// Lines of the grid in each direction, at tenths of the range.
inline constexpr int kGridLines = 9;

/// The numbers at the lines that part the range from `low` to `high`, from `low` on: with as many
/// digits as tell them apart. Empty texts where the range is too wide to be told.
std::array<std::wstring, kGridLines> GridNumbers(double low, double high);

}  // namespace vexa
