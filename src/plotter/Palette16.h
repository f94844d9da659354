#pragma once

#include <array>
#include <cstdint>

#include "plotter/Canvas.h"

namespace vexa {

/// The sixteen colours of a saved graph. Entry 8 has green 134 where the other half intensities
/// have 132; meant.
inline constexpr std::array<Colour, 16> kPalette16{{
    {0, 0, 0},
    {255, 255, 255},
    {132, 132, 132},
    {198, 198, 198},
    {132, 0, 0},
    {255, 0, 0},
    {132, 132, 0},
    {255, 255, 0},
    {0, 134, 0},
    {0, 255, 0},
    {0, 132, 132},
    {0, 255, 255},
    {0, 0, 132},
    {0, 0, 255},
    {132, 0, 132},
    {255, 0, 255},
}};

/// The index of the entry nearest to `colour`, of equally near ones the first.
constexpr std::uint8_t NearestEntry(Colour colour) {
  const auto square = [](int a, int b) { return (a - b) * (a - b); };
  const auto distance = [&](Colour entry) {
    return square(entry.red, colour.red) + square(entry.green, colour.green) +
           square(entry.blue, colour.blue);
  };
  std::uint8_t nearest = 0;
  for (std::uint8_t i = 1; i < kPalette16.size(); ++i) {
    if (distance(kPalette16[i]) < distance(kPalette16[nearest])) nearest = i;
  }
  return nearest;
}

}  // namespace vexa
