#include "engine/Functions.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/Multiples.h"

namespace vexa {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;  // pi / 180
constexpr double kDegreesPerRadian = 57.29577951308232;     // 180 / pi
constexpr double kPerRightAngle = 0.011111111111111112;     // 1 / 90
constexpr double kPerHalfPi = 0.6366197723675814;           // 2 / pi

bool InDegrees(AngleType angle) {
  return angle == AngleType::Degrees;
}
double ToDegrees(double x, AngleType angle) {
  return InDegrees(angle) ? x : x * kDegreesPerRadian;
}
double ToRadians(double x, AngleType angle) {
  return InDegrees(angle) ? x * kRadiansPerDegree : x;
}
/// An inverse function's value in the current unit.
double FromRadians(double x, AngleType angle) {
  return InDegrees(angle) ? x * kDegreesPerRadian : x;
}

/// Whether an angle is an odd multiple of 90 degrees, given the number of right angles in it and
/// the angle in degrees.
bool IsOddRightAngle(double rightAngles, double degrees) {
  return IsMultiple(degrees, 90.0) && std::fmod(rightAngles, 2.0) == 1.0;
}

double Sin(double x, AngleType angle) {
  return IsMultiple(ToDegrees(x, angle), 180.0) ? 0.0 : std::sin(ToRadians(x, angle));
}

// The quotient keeps its sign, so -90 degrees is not forced to zero; meant.
double Cos(double x, AngleType angle) {
  const double degrees = ToDegrees(x, angle);
  return IsOddRightAngle(degrees * kPerRightAngle, degrees) ? 0.0 : std::cos(ToRadians(x, angle));
}

double Tan(double x, AngleType angle) {
  return IsMultiple(ToDegrees(x, angle), 180.0) ? 0.0 : std::tan(ToRadians(x, angle));
}
bool HasNoTangent(double x, AngleType angle) {
  const double size = std::fabs(x);
  const double rightAngles = size * (InDegrees(angle) ? kPerRightAngle : kPerHalfPi);
  return IsOddRightAngle(rightAngles, ToDegrees(size, angle));
}

double Fraction(double x) {
  double whole;
  return std::modf(x, &whole);
}

// Arguments that a function refuses.
constexpr auto kOutsideOne = [](double x) { return x < -1.0 || x > 1.0; };
constexpr auto kNotPositive = [](double x) { return x <= 0.0; };

/// A row of the table: the name, the code, the value, and which arguments are refused.
template <typename Value, typename Refuses = NeverRefuses>
constexpr Keyword Row(std::wstring_view name, std::int32_t code, Value value,
                      Refuses refuses = {}) {
  return {name,
          code,
          MakeOperation(Operands::Finite, {EngineError{ErrorCode::LimitExceeded, name}}, value,
                        refuses),
          {ErrorCode::NeedsArgument, name}};
}

constexpr std::array kTable{
    Row(L"sin", 41, [](double x, AngleType angle) { return Sin(x, angle); }),
    Row(L"cos", 42, [](double x, AngleType angle) { return Cos(x, angle); }),
    Row(
        L"tan", 43, [](double x, AngleType angle) { return Tan(x, angle); },
        [](double x, AngleType angle) { return HasNoTangent(x, angle); }),
    Row(
        L"asin", 44, [](double x, AngleType angle) { return FromRadians(std::asin(x), angle); },
        kOutsideOne),
    Row(
        L"acos", 45, [](double x, AngleType angle) { return FromRadians(std::acos(x), angle); },
        kOutsideOne),
    Row(L"atan", 46, [](double x, AngleType angle) { return FromRadians(std::atan(x), angle); }),
    // A power, whose last bit differs from a square root's. The root of 0 is refused too; meant.
    Row(
        L"sqrt", 53, [](double x) { return std::pow(x, 0.5); }, kNotPositive),
    Row(L"int", 55, [](double x) { return std::trunc(x); }),
    Row(L"sinh", 50, [](double x) { return std::sinh(x); }),
    Row(L"cosh", 51, [](double x) { return std::cosh(x); }),
    Row(L"tanh", 52, [](double x) { return std::tanh(x); }),
    Row(
        L"log", 47, [](double x) { return std::log10(x); }, kNotPositive),
    Row(
        L"ln", 48, [](double x) { return std::log(x); }, kNotPositive),
    Row(L"exp", 49, [](double x) { return std::exp(x); }),
    Row(L"abs", 54, [](double x) { return std::fabs(x); }),
    Row(L"frac", 56, [](double x) { return Fraction(x); }),
};

constexpr Keyword kUnknown = Row(
    L"", 0, [](double x) { return x; }, [](double) { return true; });

constexpr bool CodesAreDistinct() {
  for (std::size_t i = 0; i < kTable.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (kTable[i].code == kTable[j].code || kTable[i].name == kTable[j].name) return false;
    }
  }
  return true;
}
static_assert(CodesAreDistinct(), "each function has a name and a code of its own");

}  // namespace

constinit const std::span<const Keyword> kKeywords{kTable};

const Keyword& FunctionOf(std::int32_t code) {
  const auto found = std::ranges::find(kTable, code, &Keyword::code);
  return found == kTable.end() ? kUnknown : *found;
}

}  // namespace vexa
