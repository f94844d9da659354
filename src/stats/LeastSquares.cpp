#include "stats/LeastSquares.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "stats/NormalEquations.h"
#include "stats/SummaryStatistics.h"

namespace vexa {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// What the axes of a model's data are before the fit.
struct Transformation {
  RegressionModel model;
  bool logarithmOfX;
  bool logarithmOfY;
};
constexpr Transformation kTransformations[] = {
    {RegressionModel::Power, true, true},        {RegressionModel::Inverse, true, true},
    {RegressionModel::Logarithmic, true, false}, {RegressionModel::Exponential, false, true},
    {RegressionModel::Quadratic, false, false},
};

/// `base` to the power of a small whole number. The square, too, is the function's: in one of a
/// thousand cases its last bit is not the product's.
double Power(double base, std::size_t exponent) {
  if (exponent == 0) return 1.0;
  if (exponent == 1) return base;
  return std::pow(base, static_cast<double>(exponent));
}

NormalEquations EquationsOf(const DataList& list, const Transformation& transformation,
                            std::size_t count) {
  const auto basis = [&](double x) { return transformation.logarithmOfX ? std::log(x) : x; };
  const auto target = [&](double y) { return transformation.logarithmOfY ? std::log(y) : y; };
  // Elements with the same sum of indices are the same sum of powers.
  std::array<double, 2 * kMostCoefficients - 1> powers{};
  NormalEquations equations;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    const double weight = list.Count(row);
    const double x = list.Value(row, 0);
    const double t = basis(x);
    // Most rows count once, which saves a logarithm.
    const double weightedT = weight == 1.0 ? t : basis(weight * x);
    const double weightedTarget = weight * target(list.Value(row, 1));
    for (std::size_t p = 0; p < 2 * count - 1; ++p) powers[p] += weight * Power(t, p);
    for (std::size_t r = 0; r < count; ++r) {
      equations.right[r] += weightedTarget * Power(weightedT, r);
    }
  }
  for (std::size_t r = 0; r < count; ++r) {
    for (std::size_t c = 0; c < count; ++c) equations.matrix[r][c] = powers[r + c];
  }
  return equations;
}

/// Sums of the products of the deviations from the means.
struct Deviations {
  double xx;
  double yy;
  double xy;
};
Deviations DeviationsOf(const PairSums& sums, double n) {
  return {sums.x.squares - std::pow(sums.x.values, 2.0) / n,
          sums.y.squares - std::pow(sums.y.values, 2.0) / n,
          sums.products - (sums.y.values * sums.x.values) / n};
}

}  // namespace

Coefficients FitLine(const DataList& list) {
  const PairSums sums = SumPairs(list);
  const double n = list.Total();
  const Deviations deviations = DeviationsOf(sums, n);
  const double a = deviations.xy / deviations.xx;
  return {a, sums.y.values / n - a * (sums.x.values / n), 0.0};
}

double CorrelationOf(const DataList& list) {
  const Deviations deviations = DeviationsOf(SumPairs(list), list.Total());
  return deviations.xy / std::pow(deviations.yy * deviations.xx, 0.5);
}

Coefficients FitCurve(const DataList& list, RegressionModel model, std::size_t count) {
  const auto transformation = std::ranges::find(kTransformations, model, &Transformation::model);
  if (transformation == std::ranges::end(kTransformations)) {
    return {kNoNumber, kNoNumber, kNoNumber};
  }
  const auto c = Solve(EquationsOf(list, *transformation, count), count);
  switch (model) {
    case RegressionModel::Inverse: {
      // Fitted as a power is, and unlike the others taken back this way; meant.
      const double b = std::exp(-c[1]);
      return {std::exp(c[0]) - b, b, 0.0};
    }
    case RegressionModel::Logarithmic:
      return {c[1], c[0], 0.0};
    case RegressionModel::Quadratic:
      return {c[2], c[1], c[0]};
    default:
      return {std::exp(c[0]), c[1], 0.0};
  }
}

}  // namespace vexa
