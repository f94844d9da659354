#include "stats/Regression.h"

#include <cmath>

#include "stats/LeastSquares.h"

namespace vexa {

void Regression::ChooseModel(RegressionModel chosen) {
  model = chosen;
  Invalidate();
}

const Coefficients& Regression::Fitted() {
  if (model == RegressionModel::Linear) {
    FitLinear();
  } else if (IsRegressionModel(model)) {
    FitCoefficients(model, model == RegressionModel::Quadratic ? 3 : 2, 0);
  }
  return coefficients;
}

void Regression::FitLinear() {
  if (coefficientsValid) return;
  coefficients = FitLine(list);
  coefficientsValid = true;
}

double Regression::FitCoefficients(RegressionModel fittedModel, std::size_t count, int index) {
  if (!coefficientsValid) coefficients = FitCurve(list, fittedModel, count);
  coefficientsValid = true;
  const auto& [a, b, c] = coefficients;
  if (fittedModel != RegressionModel::Quadratic) return index == 0 ? a : b;
  return index == 0 ? c : index == 1 ? b : a;
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
