#include "engine/Factorial.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vexa {
namespace {

TEST(Factorial, Values) {
  const std::pair<double, double> cases[] = {
      {0.0, 1.0},
      {-0.0, 1.0},
      {1.0, 1.0},
      {2.0, 2.0},
      {5.0, 120.0},
      {10.0, 3628800.0},
      {20.0, 2432902008176640000.0},
      {22.0, 1124000727777607680000.0},
      {149.0, 0x1.8c5d92b5838fep+865},
  };
  for (const auto& [n, value] : cases) EXPECT_EQ(Factorial(n), value) << n;
}

TEST(Factorial, MultipliesDownward) {
  for (int n = 1; n <= 170; ++n) {
    double product = 1.0;
    for (int factor = n; factor > 0; --factor) product *= factor;
    ASSERT_EQ(Factorial(n), product) << n;
    ASSERT_TRUE(std::isfinite(product)) << n;
  }
}

TEST(Factorial, OverflowsToInfinity) {
  for (const double n : {171.0, 1000.0, 2147483647.0}) {
    EXPECT_EQ(Factorial(n), std::numeric_limits<double>::infinity()) << n;
  }
}

TEST(Factorial, RefusesWhatIsNoNaturalNumberOf32Bits) {
  for (const double n :
       {-1.0, -2147483648.0, 2.5, -2.5, 1e-300, 2147483648.0, 1e18,
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(Factorial(n), -1.0) << n;
  }
}

}  // namespace
}  // namespace vexa
