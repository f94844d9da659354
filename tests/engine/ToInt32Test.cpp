#include "engine/ToInt32.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace vexa {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(ToInt32, TruncatesAndWraps) {
  const std::pair<double, std::int32_t> cases[] = {
      {0.0, 0},
      {-0.0, 0},
      {0.999, 0},
      {-0.999, 0},
      {1.5, 1},
      {-1.5, -1},
      {2147483647.0, kHighest},
      {2147483647.9, kHighest},
      {2147483648.0, kLowest},
      {2147483648.9, kLowest},
      {-2147483648.0, kLowest},
      {-2147483648.9, kLowest},
      {-2147483649.0, kHighest},
      {4294967295.0, -1},
      {4294967295.5, -1},
      {4294967296.0, 0},
      {4294967297.0, 1},
      {-4294967295.0, 1},
      {-4294967296.0, 0},
      {8589934591.0, -1},
      {9007199254740991.0, -1},
      {9007199254740993.0, 0},
      {1e300, 0},
      {-1e300, 0},
      {kInfinity, 0},
      {-kInfinity, 0},
      {kNan, 0},
      {std::numeric_limits<double>::denorm_min(), 0},
  };
  for (const auto& [value, expected] : cases) EXPECT_EQ(ToInt32(value), expected) << value;
}

TEST(ToInt32, WrapsAnySumOfMultiples) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 10'000; ++i) {
    const auto number = static_cast<std::int32_t>(random());
    const auto turns =
        static_cast<double>(static_cast<std::int64_t>(random() % 2'000'000) - 1'000'000);
    ASSERT_EQ(ToInt32(static_cast<double>(number) + turns * 4294967296.0), number) << turns;
  }
}

TEST(ToInt32, WholeNumbersOf32Bits) {
  for (const double value : {0.0, -0.0, 1.0, -1.0, 2147483647.0, -2147483648.0}) {
    EXPECT_TRUE(IsInt32(value)) << value;
  }
  for (const double value : {0.5, -0.5, 2147483646.5, 2147483648.0, -2147483649.0, 4294967296.0,
                             1e300, kInfinity, -kInfinity, kNan}) {
    EXPECT_FALSE(IsInt32(value)) << value;
  }
}

}  // namespace
}  // namespace vexa
