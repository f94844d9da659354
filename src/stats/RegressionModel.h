#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "stats/NormalEquations.h"

namespace vexa {

/// The curves that can be fitted, with their codes. What a code outside the enum does is said at
/// each operation.
enum class RegressionModel : int {
  Linear = 1,
  Power = 2,
  Inverse = 3,
  Logarithmic = 4,
  Exponential = 5,
  Quadratic = 6,
  Last = Quadratic,
};

/// The coefficients of a curve; C is the quadratic model's.
struct Coefficients {
  double a = 0.0;
  double b = 0.0;
  double c = 0.0;
};

/// A curve's text around its coefficients: what stands behind A and behind B,
/// and whether C ends it.
struct CurvePattern {
  std::wstring_view afterA;
  std::wstring_view afterB;
  bool hasC;
};

/// How a model is fitted by least squares: on which axes the data have
/// logarithms, how many coefficients the transformed curve has, and what they
/// are to the model.
struct TransformedFit {
  bool logarithmOfX;
  bool logarithmOfY;
  std::size_t count;
  Coefficients (*takeBack)(const std::array<double, kMostCoefficients>& solution);
};

/// All that tells a model from the others. Nothing has a default, so that the
/// compiler says what a new model lacks.
struct RegressionCurve {
  RegressionModel model;
  std::wstring_view menuText;
  /// The model's name on its button.
  std::wstring_view caption;
  CurvePattern pattern;
  /// None: in closed form.
  std::optional<TransformedFit> fit;
  /// The curve's Y at a given X.
  double (*predictY)(const Coefficients&, double x);
  /// The X where the curve has a given Y; null where there are two of them.
  double (*predictX)(const Coefficients&, double y);
};

/// The functions of the models.
namespace curves {
Coefficients TakeExponential(const std::array<double, kMostCoefficients>& solution);
Coefficients TakeInverse(const std::array<double, kMostCoefficients>& solution);
Coefficients TakeLogarithmic(const std::array<double, kMostCoefficients>& solution);
Coefficients TakeQuadratic(const std::array<double, kMostCoefficients>& solution);
double LinearY(const Coefficients& coefficients, double x);
double LinearX(const Coefficients& coefficients, double y);
double PowerY(const Coefficients& coefficients, double x);
double PowerX(const Coefficients& coefficients, double y);
double InverseY(const Coefficients& coefficients, double x);
double InverseX(const Coefficients& coefficients, double y);
double LogarithmicY(const Coefficients& coefficients, double x);
double LogarithmicX(const Coefficients& coefficients, double y);
double ExponentialY(const Coefficients& coefficients, double x);
double ExponentialX(const Coefficients& coefficients, double y);
double QuadraticY(const Coefficients& coefficients, double x);
}  // namespace curves

/// The models in the order of the menu, which is that of their codes.
// clang-format off
inline constexpr auto kRegressionModels = std::to_array<RegressionCurve>({
    {RegressionModel::Linear, L"Linear : A*X+B", L"Lin", {L"*X+", L"", false},
     std::nullopt, curves::LinearY, curves::LinearX},
    {RegressionModel::Power, L"Power : A*X^B", L"Pow", {L"*X^", L"", false},
     TransformedFit{true, true, 2, curves::TakeExponential}, curves::PowerY, curves::PowerX},
    {RegressionModel::Inverse, L"Inverse : A/X+B", L"Inv", {L"/X+", L"", false},
     TransformedFit{true, true, 2, curves::TakeInverse}, curves::InverseY, curves::InverseX},
    {RegressionModel::Logarithmic, L"Logarithmic : A*ln(X)+B", L"Log", {L"*ln(X)+", L"", false},
     TransformedFit{true, false, 2, curves::TakeLogarithmic}, curves::LogarithmicY, curves::LogarithmicX},
    {RegressionModel::Exponential, L"Exponential : A*exp(B*X)", L"Exp", {L"*exp(", L"*X)", false},
     TransformedFit{false, true, 2, curves::TakeExponential}, curves::ExponentialY, curves::ExponentialX},
    {RegressionModel::Quadratic, L"Quadratic : A*X^2+B*X+C", L"Quad", {L"*X^2+", L"*X+", true},
     TransformedFit{false, false, 3, curves::TakeQuadratic}, curves::QuadraticY, nullptr},
});
// clang-format on
static_assert(kRegressionModels.size() == static_cast<std::size_t>(RegressionModel::Last));

/// The curve with this code; null for a code outside the enum.
constexpr const RegressionCurve* FindCurve(RegressionModel model) {
  const auto curve = std::ranges::find(kRegressionModels, model, &RegressionCurve::model);
  return curve == kRegressionModels.end() ? nullptr : &*curve;
}

constexpr bool IsRegressionModel(RegressionModel model) {
  return FindCurve(model) != nullptr;
}

}  // namespace vexa
