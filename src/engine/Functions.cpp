#include "engine/Functions.h"

#include <array>
#include <cmath>

#include "engine/Keywords.h"

namespace vexa {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;  // pi / 180
constexpr double kDegreesPerRadian = 57.29577951308232;     // 180 / pi
constexpr double kPerRightAngle = 0.011111111111111112;     // 1 / 90
constexpr double kPerHalfPi = 0.6366197723675814;           // 2 / pi

constexpr FunctionOutcome kRefused{0.0, true};

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
  return std::fmod(rightAngles, 2.0) == 1.0 && std::fmod(degrees, 90.0) == 0.0;
}

FunctionOutcome Sin(double x, AngleType angle) {
  if (std::fmod(ToDegrees(x, angle), 180.0) == 0.0) return {0.0};
  return {std::sin(ToRadians(x, angle))};
}

// The quotient keeps its sign, so -90 degrees is not forced to zero; meant.
FunctionOutcome Cos(double x, AngleType angle) {
  const double degrees = ToDegrees(x, angle);
  if (IsOddRightAngle(degrees * kPerRightAngle, degrees)) return {0.0};
  return {std::cos(ToRadians(x, angle))};
}

FunctionOutcome Tan(double x, AngleType angle) {
  const double size = std::fabs(x);
  const double rightAngles = size * (InDegrees(angle) ? kPerRightAngle : kPerHalfPi);
  if (IsOddRightAngle(rightAngles, ToDegrees(size, angle))) return kRefused;
  if (std::fmod(ToDegrees(x, angle), 180.0) == 0.0) return {0.0};
  return {std::tan(ToRadians(x, angle))};
}

FunctionOutcome Asin(double x, AngleType angle) {
  if (x < -1.0 || x > 1.0) return kRefused;
  return {FromRadians(std::asin(x), angle)};
}

FunctionOutcome Acos(double x, AngleType angle) {
  if (x < -1.0 || x > 1.0) return kRefused;
  return {FromRadians(std::acos(x), angle)};
}

FunctionOutcome Atan(double x, AngleType angle) {
  return {FromRadians(std::atan(x), angle)};
}

FunctionOutcome Log(double x, AngleType) {
  if (x <= 0.0) return kRefused;
  return {std::log10(x)};
}

FunctionOutcome Ln(double x, AngleType) {
  if (x <= 0.0) return kRefused;
  return {std::log(x)};
}

// The square root of 0 is refused too; meant.
FunctionOutcome Sqrt(double x, AngleType) {
  if (x <= 0.0) return kRefused;
  return {std::pow(x, 0.5)};
}

FunctionOutcome Exp(double x, AngleType) {
  return {std::exp(x)};
}
FunctionOutcome Sinh(double x, AngleType) {
  return {std::sinh(x)};
}
FunctionOutcome Cosh(double x, AngleType) {
  return {std::cosh(x)};
}
FunctionOutcome Tanh(double x, AngleType) {
  return {std::tanh(x)};
}
FunctionOutcome Abs(double x, AngleType) {
  return {std::fabs(x)};
}
FunctionOutcome Int(double x, AngleType) {
  return {std::trunc(x)};
}
FunctionOutcome Frac(double x, AngleType) {
  double whole;
  return {std::modf(x, &whole)};
}

using Function = FunctionOutcome (*)(double, AngleType);

/// Indexed by FunctionCode - kSin.
constexpr std::array<Function, 16> kFunctions{Sin, Cos,  Tan,  Asin, Acos, Atan, Log, Ln,
                                              Exp, Sinh, Cosh, Tanh, Sqrt, Abs,  Int, Frac};

}  // namespace

FunctionOutcome EvaluateFunction(std::int32_t code, double x, AngleType angle) {
  const auto index = static_cast<std::size_t>(code - kSin);
  return index < kFunctions.size() ? kFunctions[index](x, angle) : kRefused;
}

std::wstring_view FunctionName(std::int32_t code) {
  for (const Keyword& keyword : kKeywords) {
    if (keyword.code == code) return keyword.name;
  }
  return {};
}

}  // namespace vexa
