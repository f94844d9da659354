#include "display/CountDecimals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "display/NumberPatterns.h"

namespace vexa {
namespace {

TEST(CountDecimals, Table) {
  const std::pair<double, int> cases[] = {
      {0.0, 0},
      {1.0, 0},
      {123456.0, 0},
      {1e12, 0},
      {0.1, 1},
      {-0.1, 1},
      {0.5, 1},
      {2.25, 2},
      {0.1 + 0.2, 1},
      {1.0 / 3, 12},
      {2.0 / 3, 12},
      {-1.0 / 3, 12},
      {1e-12, 12},
      {1e-13, 0},
      {0.00001, 5},
      {0.12345678901, 11},
      {0.123456789012, 12},
      {2.0000000000000004, 0},
      // A run of nines begins at the first decimal at the earliest, which keeps one.
      {1.9999999999999, 1},
      {0.9999999999999, 1},
      {0.99999999999995, 0},
      {0.29999999999999, 1},
      {0.3000000000001, 1},
      // A last digit behind the nines does not end their run.
      {0.1299999999992, 2},
      {0.1299999999995, 2},
      {1234567.1, 1},
  };
  for (const auto& [value, count] : cases) {
    EXPECT_EQ(CountDecimals(value), count) << testing::PrintToString(value);
  }
}

TEST(CountDecimals, OfAnyValueIsWithin13) {
  std::mt19937_64 random(41);
  std::uniform_real_distribution<double> exponent(-16.0, 13.0);
  for (int i = 0; i < 20'000; ++i) {
    const double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1.0 : -1.0);
    const int count = CountDecimals(value);
    ASSERT_GE(count, 0) << value;
    ASSERT_LE(count, 13) << value;
    ASSERT_EQ(CountDecimals(-value), count) << value;
  }
  for (const double value : {std::numeric_limits<double>::max(),
                             std::numeric_limits<double>::denorm_min(), 1e300, 1e-300}) {
    EXPECT_EQ(CountDecimals(value), 0) << value;
  }
}

TEST(CountDecimals, ShortDecimalsAreCountedAsWritten) {
  std::mt19937_64 random(42);
  for (int i = 0; i < 20'000; ++i) {
    // Up to 15 digits, at most 11 of them decimals, the last one not 0.
    const auto decimals = static_cast<int>(1 + random() % 11);
    const auto digits = static_cast<double>(random() % 99'999'999'999'999 * 10 + 1 + random() % 9);
    const double value = digits / std::pow(10.0, decimals);
    if (value < 1e-4) continue;
    ASSERT_EQ(CountDecimals(value), decimals) << FixedText(value, decimals);
  }
}

TEST(RoundToDecimals, HalfAwayFromZero) {
  struct RoundCase {
    double value;
    int n;
    double rounded;
  };
  const RoundCase cases[] = {
      {0.5, 1, 1},     {-0.5, 1, -1},    {1.5, 1, 2}, {2.5, 1, 3},   {-2.5, 1, -3},
      {0.25, 2, 0.3},  {-0.25, 2, -0.3}, {0.0, 5, 0}, {0.49, 1, 0},  {-0.49, 1, 0},
      {1234, 1, 1234}, {0.125, 3, 0.13}, {15, 0, 20}, {-15, 0, -20},
  };
  for (const RoundCase& c : cases) {
    EXPECT_DOUBLE_EQ(RoundToDecimals(c.value, c.n), c.rounded) << c.value;
  }
}

}  // namespace
}  // namespace vexa
