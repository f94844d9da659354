#include "engine/Functions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "support/Vectors.h"

namespace vexa {
namespace {

constexpr AngleType kDegrees = AngleType::Degrees;
constexpr AngleType kRadians = AngleType::Radians;
constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;

using test::Narrow;

struct FunctionOutcome {
  double value = 0.0;
  bool refused = false;
};

FunctionOutcome Outcome(const Keyword& function, double x, AngleType angle) {
  double value = x;
  const EngineError* const error = function.operation.Run(value, value, angle);
  if (error) {
    EXPECT_EQ(error->code, ErrorCode::LimitExceeded);
    EXPECT_EQ(error->argument, function.name);
  }
  return {value, error != nullptr};
}

FunctionOutcome EvaluateFunction(std::wstring_view name, double x, AngleType angle) {
  const auto found = std::ranges::find(kKeywords, name, &Keyword::name);
  EXPECT_NE(found, kKeywords.end()) << Narrow(name);
  return Outcome(*found, x, angle);
}

struct FunctionCase {
  std::wstring_view name;
  AngleType angle;
  double x;
  double value;
};

TEST(Functions, Values) {
  const FunctionCase cases[] = {
      {L"sin", kDegrees, 30, 0.5},
      {L"sin", kDegrees, 90, 1},
      {L"sin", kDegrees, -30, -0.5},
      {L"sin", kRadians, kHalfPi, 1},
      {L"sin", kRadians, 1, 0.8414709848078965},
      {L"cos", kDegrees, 60, 0.5},
      {L"cos", kDegrees, 0, 1},
      {L"cos", kDegrees, 180, -1},
      {L"cos", kDegrees, -90, 6.123233995736766e-17},
      {L"cos", kRadians, 1, 0.5403023058681398},
      {L"tan", kDegrees, 45, 1},
      {L"tan", kDegrees, -45, -1},
      {L"tan", kRadians, 1, 1.5574077246549023},
      {L"asin", kDegrees, 0.5, 30},
      {L"asin", kDegrees, 1, 90},
      {L"asin", kRadians, 1, kHalfPi},
      {L"asin", kDegrees, -1, -90},
      {L"acos", kDegrees, 0.5, 60},
      {L"acos", kDegrees, -1, 180},
      {L"acos", kRadians, -1, kPi},
      {L"atan", kDegrees, 1, 45},
      {L"atan", kRadians, 1, 0.7853981633974483},
      {L"log", kDegrees, 1000, 3},
      {L"ln", kDegrees, 2.718281828459045, 1},
      {L"exp", kDegrees, 1, 2.718281828459045},
      {L"exp", kDegrees, 0, 1},
      {L"exp", kDegrees, 1000, std::numeric_limits<double>::infinity()},
      {L"sinh", kDegrees, 1, 1.1752011936438014},
      {L"cosh", kDegrees, 1, 1.5430806348152437},
      {L"tanh", kDegrees, 1, 0.7615941559557649},
      {L"sqrt", kDegrees, 2, 1.4142135623730951},
      {L"sqrt", kDegrees, 16, 4},
      {L"abs", kDegrees, -2.5, 2.5},
      {L"abs", kDegrees, 2.5, 2.5},
      {L"int", kDegrees, 2.9, 2},
      {L"int", kDegrees, -2.9, -2},
      {L"int", kDegrees, 1e300, 1e300},
      {L"frac", kDegrees, 2.75, 0.75},
      {L"frac", kDegrees, -2.75, -0.75},
      {L"frac", kDegrees, 3, 0},
  };
  for (const FunctionCase& c : cases) {
    const FunctionOutcome outcome = EvaluateFunction(c.name, c.x, c.angle);
    EXPECT_FALSE(outcome.refused) << Narrow(c.name) << " of " << c.x;
    EXPECT_DOUBLE_EQ(outcome.value, c.value) << Narrow(c.name) << " of " << c.x;
  }
}

TEST(Functions, ExactZeros) {
  for (int turns = -20; turns <= 20; ++turns) {
    EXPECT_EQ(EvaluateFunction(L"sin", turns * 180.0, kDegrees).value, 0.0) << turns;
    EXPECT_EQ(EvaluateFunction(L"tan", turns * 180.0, kDegrees).value, 0.0) << turns;
    const double odd = turns * 180.0 + 90.0;
    const FunctionOutcome cosine = EvaluateFunction(L"cos", odd, kDegrees);
    EXPECT_FALSE(cosine.refused);
    // The quotient of a negative angle keeps its sign, so its cosine is left as it comes.
    EXPECT_EQ(cosine.value == 0.0, odd > 0.0) << odd;
    EXPECT_TRUE(EvaluateFunction(L"tan", odd, kDegrees).refused) << odd;
  }
  EXPECT_EQ(EvaluateFunction(L"sin", kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(L"sin", -kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(L"tan", kPi, kRadians).value, 0.0);
  EXPECT_EQ(EvaluateFunction(L"cos", kHalfPi, kRadians).value, 0.0);
  EXPECT_NE(EvaluateFunction(L"cos", -kHalfPi, kRadians).value, 0.0);
  EXPECT_TRUE(EvaluateFunction(L"tan", kHalfPi, kRadians).refused);
  EXPECT_TRUE(EvaluateFunction(L"tan", -kHalfPi, kRadians).refused);
}

TEST(Functions, AnyUnitButDegreesIsRadians) {
  for (const int unit : {0, 3, -1}) {
    EXPECT_EQ(EvaluateFunction(L"sin", 1.0, static_cast<AngleType>(unit)).value,
              EvaluateFunction(L"sin", 1.0, kRadians).value);
  }
}

TEST(Functions, Domains) {
  struct DomainCase {
    std::wstring_view name;
    double x;
    bool refused;
  };
  const double above = std::nextafter(1.0, 2.0);
  const double tiny = std::numeric_limits<double>::denorm_min();
  const DomainCase cases[] = {
      {L"asin", 1, false},     {L"asin", -1, false},    {L"asin", above, true},
      {L"asin", -above, true}, {L"acos", 1, false},     {L"acos", -1, false},
      {L"acos", above, true},  {L"acos", -above, true}, {L"log", tiny, false},
      {L"log", 0, true},       {L"log", -0.0, true},    {L"log", -1, true},
      {L"ln", tiny, false},    {L"ln", 0, true},        {L"ln", -1, true},
      {L"sqrt", tiny, false},  {L"sqrt", 0, true},      {L"sqrt", -0.0, true},
      {L"sqrt", -4, true},     {L"atan", 1e300, false}, {L"exp", -1e300, false},
      {L"tanh", 1e300, false}, {L"sin", 1e300, false},  {L"abs", -1e300, false},
  };
  for (const DomainCase& c : cases) {
    for (const AngleType angle : {kDegrees, kRadians}) {
      EXPECT_EQ(EvaluateFunction(c.name, c.x, angle).refused, c.refused)
          << Narrow(c.name) << " of " << c.x;
    }
  }
}

TEST(Functions, WholeAndFractionalPartAddUp) {
  for (const double x : {0.0, 1.5, -1.5, 123456.789, -1e-9, 4.5e15}) {
    const double whole = EvaluateFunction(L"int", x, kDegrees).value;
    const double fraction = EvaluateFunction(L"frac", x, kDegrees).value;
    EXPECT_EQ(whole + fraction, x);
    EXPECT_EQ(std::signbit(whole), std::signbit(x)) << x;
    EXPECT_EQ(std::signbit(fraction), std::signbit(x)) << x;
  }
}

TEST(Functions, ByCode) {
  for (const Keyword& keyword : kKeywords) {
    EXPECT_EQ(&FunctionOf(keyword.code), &keyword);
    EXPECT_EQ(keyword.missingArgument.code, ErrorCode::NeedsArgument);
    EXPECT_EQ(keyword.missingArgument.argument, keyword.name);
  }
  for (const int code : {0, 40, 57, -1}) {
    EXPECT_TRUE(FunctionOf(code).name.empty()) << code;
    EXPECT_TRUE(Outcome(FunctionOf(code), 1.0, kDegrees).refused) << code;
  }
}

TEST(Functions, TheRootIsAPower) {
  for (int n = 1; n <= 10'000; ++n) {
    ASSERT_EQ(EvaluateFunction(L"sqrt", n, kDegrees).value, std::pow(n, 0.5)) << n;
  }
  // Its square root has another last bit.
  EXPECT_NE(EvaluateFunction(L"sqrt", 2921, kDegrees).value, std::sqrt(2921.0));
}

TEST(Functions, ExactZerosOfLargeAngles) {
  // As far as whole angles go, and as the remainder of the C library decides.
  for (double x = 180.0; x < 1e300; x *= 3.0) {
    const bool zero = std::fmod(x, 180.0) == 0.0;
    EXPECT_EQ(EvaluateFunction(L"sin", x, kDegrees).value == 0.0, zero) << x;
    EXPECT_EQ(EvaluateFunction(L"tan", x, kDegrees).value == 0.0, zero) << x;
  }
}

}  // namespace
}  // namespace vexa
