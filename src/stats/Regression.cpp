#include "stats/Regression.h"

#include <cmath>

#include "stats/LeastSquares.h"

namespace vexa {
namespace {

/// The share of a fit at which the rows are added up.
constexpr double kAddedUp = 0.5;

}  // namespace

void Regression::ChooseModel(RegressionModel chosen) {
  model = chosen;
  Invalidate();
}

bool Regression::Fit(const ProgressWatcher& watcher) {
  if (!list.AddUp(PartOf(watcher, 0.0, kAddedUp))) return false;
  if (!IsRegressionModel(model)) return true;
  if (model != RegressionModel::Linear) {
    const std::size_t count = model == RegressionModel::Quadratic ? 3 : 2;
    return FitCurve(model, count, PartOf(watcher, kAddedUp, 1.0));
  }
  if (!coefficientsValid) coefficients = FitLine(list);
  coefficientsValid = true;
  return true;
}

const Coefficients& Regression::Fitted() {
  Fit(Unwatched);
  return coefficients;
}

bool Regression::FitCurve(RegressionModel fittedModel, std::size_t count,
                          const ProgressWatcher& watcher) {
  if (coefficientsValid) return true;
  const auto fitted = vexa::FitCurve(list, fittedModel, count, watcher);
  if (!fitted) return false;
  coefficients = *fitted;
  coefficientsValid = true;
  return true;
}

double Regression::FitCoefficients(RegressionModel fittedModel, std::size_t count, int index) {
  FitCurve(fittedModel, count, Unwatched);
  const auto& [a, b, c] = coefficients;
  if (fittedModel != RegressionModel::Quadratic) return index == 0 ? a : b;
  return index == 0 ? c : index == 1 ? b : a;
}

bool Regression::HalvesCounts() const {
  return IsRegressionModel(model) && model != RegressionModel::Linear && list.Sums().weighted;
}

double Regression::Correlation() const {
  return CorrelationOf(list);
}

double Regression::PredictY(double x) {
  const auto [a, b, c] = Fitted();
  switch (model) {
    case RegressionModel::Power:
      return a * std::pow(x, b);
    case RegressionModel::Inverse:
      return a / x + b;
    case RegressionModel::Logarithmic:
      return a * std::log(x) + b;
    case RegressionModel::Exponential:
      return a * std::exp(b * x);
    case RegressionModel::Quadratic:
      return (b * x + a * std::pow(x, 2.0)) + c;
    case RegressionModel::Linear:
      break;
  }
  return a * x + b;
}

double Regression::PredictX(double y) {
  const auto [a, b, c] = Fitted();
  switch (model) {
    case RegressionModel::Power:
      return std::pow(y / a, 1.0 / b);
    case RegressionModel::Inverse:
      return a / (y - b);
    case RegressionModel::Logarithmic:
      return std::exp((y - b) / a);
    case RegressionModel::Exponential:
      return (std::log(y) - std::log(a)) / b;
    default:
      return (y - b) / a;
  }
}

double Regression::FirstRoot(double y) {
  const auto [a, b, c] = Fitted();
  const double d = std::pow(b * b - ((c - y) * a) * 4.0, 0.5);
  return (d - b) / (a * 2.0);
}

double Regression::SecondRoot(double y) {
  const auto [a, b, c] = Fitted();
  const double d = std::pow(b * b - ((c - y) * a) * 4.0, 0.5);
  return (b * -1.0 - d) / (a * 2.0);
}

}  // namespace vexa
