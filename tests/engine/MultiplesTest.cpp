#include "engine/Multiples.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <random>

namespace vexa {
namespace {

constexpr double kUnits[] = {90.0, 180.0};

bool ByRemainder(double x, double unit) {
  return std::fmod(x, unit) == 0.0;
}

void ExpectAsRemainder(double x) {
  for (const double unit : kUnits) {
    ASSERT_EQ(IsMultiple(x, unit), ByRemainder(x, unit)) << x << " by " << unit;
    ASSERT_EQ(IsMultiple(-x, unit), ByRemainder(-x, unit)) << -x << " by " << unit;
  }
}

/// A number and those around it.
void ExpectAsRemainderAround(double x) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  double below = x;
  double above = x;
  for (int step = 0; step < 3; ++step) {
    ExpectAsRemainder(below);
    ExpectAsRemainder(above);
    below = std::nextafter(below, -kInfinity);
    above = std::nextafter(above, kInfinity);
  }
}

TEST(Multiples, NeighboursOfTheFirstMultiples) {
  for (int k = 0; k < 200'000; ++k) ExpectAsRemainderAround(k * 90.0);
}

TEST(Multiples, NeighboursOfMultiplesOfEverySize) {
  std::mt19937_64 random(1);
  for (int bits = 1; bits <= 60; ++bits) {
    for (int i = 0; i < 1'000; ++i) {
      const auto k = static_cast<double>(random() >> (64 - bits));
      ExpectAsRemainderAround(k * 90.0);
      ExpectAsRemainderAround(k * 180.0);
    }
  }
}

TEST(Multiples, WhereTheQuickTestEnds) {
  ExpectAsRemainderAround(kLargestQuickMultiple);
  const double last = std::floor(kLargestQuickMultiple / 180.0) * 180.0;
  for (double x = last - 1'800'000; x < last + 1'800'000; x += 90.0) ExpectAsRemainderAround(x);
}

TEST(Multiples, AnyDouble) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 300'000; ++i) {
    const auto x = std::bit_cast<double>(random());
    ExpectAsRemainder(x);
  }
  std::uniform_real_distribution<double> angle(0.0, 1e6);
  for (int i = 0; i < 300'000; ++i) ExpectAsRemainder(angle(random));
}

TEST(Multiples, ZeroIsAMultipleAndWhatIsNotFiniteIsNone) {
  for (const double unit : kUnits) {
    EXPECT_TRUE(IsMultiple(0.0, unit));
    EXPECT_TRUE(IsMultiple(-0.0, unit));
    EXPECT_FALSE(IsMultiple(std::numeric_limits<double>::infinity(), unit));
    EXPECT_FALSE(IsMultiple(std::nan(""), unit));
    EXPECT_FALSE(IsMultiple(std::numeric_limits<double>::denorm_min(), unit));
  }
}

}  // namespace
}  // namespace vexa
