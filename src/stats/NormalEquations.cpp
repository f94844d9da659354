#include "stats/NormalEquations.h"

namespace vexa {

std::array<double, kMostCoefficients> Solve(NormalEquations equations, std::size_t count) {
  auto& [matrix, right] = equations;
  for (std::size_t pivot = 0; pivot < count; ++pivot) {
    const double scale = 1.0 / matrix[pivot][pivot];
    for (std::size_t j = pivot; j < count; ++j) matrix[pivot][j] *= scale;
    right[pivot] *= scale;
    for (std::size_t i = 0; i < count; ++i) {
      if (i == pivot) continue;
      const double factor = matrix[i][pivot];
      for (std::size_t j = pivot; j < count; ++j) matrix[i][j] -= matrix[pivot][j] * factor;
      right[i] -= factor * right[pivot];
    }
  }
  return right;
}

}  // namespace vexa
