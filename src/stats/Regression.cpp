#include "stats/Regression.h"

#include <cmath>
#include <limits>

#include "stats/LeastSquares.h"

namespace vexa {
namespace {

/// The share of a fit at which the rows are added up.
constexpr double kAddedUp = 0.5;

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

void Regression::ChooseModel(RegressionModel chosen) {
  model = chosen;
  Invalidate();
}

bool Regression::Fit(const ProgressWatcher& watcher) {
  if (!list.AddUp(PartOf(watcher, 0.0, kAddedUp))) return false;
  const RegressionCurve* const curve = FindCurve(model);
  if (!curve) return true;
  if (curve->fit) return FitCurve(model, curve->fit->count, PartOf(watcher, kAddedUp, 1.0));
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
  const RegressionCurve* const curve = FindCurve(model);
  return curve && curve->fit && list.Sums().weighted;
}

double Regression::Correlation() const {
  return CorrelationOf(list);
}

double Regression::PredictY(double x) {
  const RegressionCurve* const curve = FindCurve(model);
  return curve ? curve->predictY(Fitted(), x) : kNoNumber;
}

double Regression::PredictX(double y) {
  const RegressionCurve* const curve = FindCurve(model);
  return curve && curve->predictX ? curve->predictX(Fitted(), y) : kNoNumber;
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
