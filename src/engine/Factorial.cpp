#include "engine/Factorial.h"

#include <cmath>
#include <cstdint>

#include "engine/ToInt32.h"

namespace vexa {

double Factorial(double n) {
  if (!IsInt32(n) || n < 0.0) return -1.0;
  double product = 1.0;
  // An infinite product stays infinite, so huge numbers need no further steps.
  for (std::int32_t factor = ToInt32(n); factor > 0 && std::isfinite(product); --factor) {
    product *= factor;
  }
  return product;
}

}  // namespace vexa
