#pragma once

#include <array>
#include <cstddef>

namespace vexa {

/// The most coefficients of a fit.
inline constexpr std::size_t kMostCoefficients = 3;

/// The equations of a least-squares fit: `matrix` times the coefficients is `right`.
struct NormalEquations {
  std::array<std::array<double, kMostCoefficients>, kMostCoefficients> matrix{};
  std::array<double, kMostCoefficients> right{};
};

/// The coefficients of the first `count` equations, by Gauss-Jordan elimination without pivoting; a
/// pivot of zero leaves infinities and no numbers.
std::array<double, kMostCoefficients> Solve(NormalEquations equations, std::size_t count);

}  // namespace vexa
