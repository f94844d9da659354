#include "engine/Functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "engine/Keywords.h"

namespace vexa {
namespace {

constexpr AngleType kDegrees = AngleType::Degrees;
constexpr AngleType kRadians = AngleType::Radians;
constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;

struct FunctionCase {
  FunctionCode code;
  AngleType angle;
  double x;
  double value;
};

TEST(Functions, Values) {
  const FunctionCase cases[] = {
      {kSin, kDegrees, 30, 0.5},
      {kSin, kDegrees, 90, 1},
      {kSin, kDegrees, -30, -0.5},
      {kSin, kRadians, kHalfPi, 1},
      {kSin, kRadians, 1, 0.8414709848078965},
      {kCos, kDegrees, 60, 0.5},
      {kCos, kDegrees, 0, 1},
      {kCos, kDegrees, 180, -1},
      {kCos, kDegrees, -90, 6.123233995736766e-17},
      {kCos, kRadians, 1, 0.5403023058681398},
      {kTan, kDegrees, 45, 1},
      {kTan, kDegrees, -45, -1},
      {kTan, kRadians, 1, 1.5574077246549023},
      {kAsin, kDegrees, 0.5, 30},
      {kAsin, kDegrees, 1, 90},
      {kAsin, kRadians, 1, kHalfPi},
      {kAsin, kDegrees, -1, -90},
      {kAcos, kDegrees, 0.5, 60},
      {kAcos, kDegrees, -1, 180},
      {kAcos, kRadians, -1, kPi},
      {kAtan, kDegrees, 1, 45},
      {kAtan, kRadians, 1, 0.7853981633974483},
      {kLog, kDegrees, 1000, 3},
      {kLn, kDegrees, 2.718281828459045, 1},
      {kExp, kDegrees, 1, 2.718281828459045},
      {kExp, kDegrees, 0, 1},
      {kExp, kDegrees, 1000, std::numeric_limits<double>::infinity()},
      {kSinh, kDegrees, 1, 1.1752011936438014},
      {kCosh, kDegrees, 1, 1.5430806348152437},
      {kTanh, kDegrees, 1, 0.7615941559557649},
      {kSqrt, kDegrees, 2, 1.4142135623730951},
      {kSqrt, kDegrees, 16, 4},
      {kAbs, kDegrees, -2.5, 2.5},
      {kAbs, kDegrees, 2.5, 2.5},
      {kInt, kDegrees, 2.9, 2},
      {kInt, kDegrees, -2.9, -2},
      {kInt, kDegrees, 1e300, 1e300},
      {kFrac, kDegrees, 2.75, 0.75},
      {kFrac, kDegrees, -2.75, -0.75},
      {kFrac, kDegrees, 3, 0},
  };
  for (const FunctionCase& c : cases) {
    const FunctionOutcome outcome = EvaluateFunction(c.code, c.x, c.angle);
    EXPECT_FALSE(outcome.refused) << c.code << " of " << c.x;
    EXPECT_DOUBLE_EQ(outcome.value, c.value) << c.code << " of " << c.x;
  }
}

TEST(Functions, ExactZeros) {
  for (int turns = -20; turns <= 20; ++turns) {
    EXPECT_EQ(EvaluateFunction(kSin, turns * 180.0, kDegrees).value, 0.0) << turns;
    EXPECT_EQ(EvaluateFunction(kTan, turns * 180.0, kDegrees).value, 0.0) << turns;
    const double odd = turns * 180.0 + 90.0;
    const FunctionOutcome cosine = EvaluateFunction(kCos, odd, kDegrees);
    EXPECT_FALSE(cosine.refused);
    // The quotient of a negative angle keeps its sign, so its cosine is left as it comes.
    EXPECT_EQ(cosine.value == 0.0, odd > 0.0) << odd;
    EXPECT_TRUE(EvaluateFunction(kTan, odd, kDegrees).refused) << odd;
  }
  EXPECT_EQ(EvaluateFunction(kSin, kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(kSin, -kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(kTan, kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(kCos, kHalfPi, kRadians).value, 0.0);
  EXPECT_NE(EvaluateFunction(kCos, -kHalfPi, kRadians).value, 0.0);
  EXPECT_TRUE(EvaluateFunction(kTan, kHalfPi, kRadians).refused);
  EXPECT_TRUE(EvaluateFunction(kTan, -kHalfPi, kRadians).refused);
}

TEST(Functions, AnyUnitButDegreesIsRadians) {
  for (const int unit : {0, 3, -1}) {
    EXPECT_EQ(EvaluateFunction(kSin, 1.0, static_cast<AngleType>(unit)).value,
              EvaluateFunction(kSin, 1.0, kRadians).value);
  }
}

TEST(Functions, Domains) {
  struct DomainCase {
    FunctionCode code;
    double x;
    bool refused;
  };
  const double above = std::nextafter(1.0, 2.0);
  const double tiny = std::numeric_limits<double>::denorm_min();
  const DomainCase cases[] = {
      {kAsin, 1, false},     {kAsin, -1, false},    {kAsin, above, true}, {kAsin, -above, true},
      {kAcos, 1, false},     {kAcos, -1, false},    {kAcos, above, true}, {kAcos, -above, true},
      {kLog, tiny, false},   {kLog, 0, true},       {kLog, -0.0, true},   {kLog, -1, true},
      {kLn, tiny, false},    {kLn, 0, true},        {kLn, -1, true},      {kSqrt, tiny, false},
      {kSqrt, 0, true},      {kSqrt, -0.0, true},   {kSqrt, -4, true},    {kAtan, 1e300, false},
      {kExp, -1e300, false}, {kTanh, 1e300, false}, {kSin, 1e300, false}, {kAbs, -1e300, false},
  };
  for (const DomainCase& c : cases) {
    for (const AngleType angle : {kDegrees, kRadians}) {
      EXPECT_EQ(EvaluateFunction(c.code, c.x, angle).refused, c.refused) << c.code << " of " << c.x;
    }
  }
}

TEST(Functions, WholeAndFractionalPartAddUp) {
  for (const double x : {0.0, 1.5, -1.5, 123456.789, -1e-9, 4.5e15}) {
    const double whole = EvaluateFunction(kInt, x, kDegrees).value;
    const double fraction = EvaluateFunction(kFrac, x, kDegrees).value;
    EXPECT_EQ(whole + fraction, x);
    EXPECT_EQ(std::signbit(whole), std::signbit(x)) << x;
    EXPECT_EQ(std::signbit(fraction), std::signbit(x)) << x;
  }
}

TEST(Functions, NamesByCode) {
  for (const Keyword& keyword : kKeywords) EXPECT_EQ(FunctionName(keyword.code), keyword.name);
  for (const int code : {0, 40, 57, -1}) {
    EXPECT_TRUE(FunctionName(code).empty()) << code;
    EXPECT_TRUE(EvaluateFunction(code, 1.0, kDegrees).refused) << code;
  }
}

}  // namespace
}  // namespace vexa
