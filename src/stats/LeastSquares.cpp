#include "stats/LeastSquares.h"

#include <cmath>
#include <limits>

namespace vexa {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// `base` to the power of a small whole number. The square, too, is the function's: in one of a
/// thousand cases its last bit is not the product's.
double Power(double base, std::size_t exponent) {
  if (exponent == 0) return 1.0;
  if (exponent == 1) return base;
  return std::pow(base, static_cast<double>(exponent));
}

/// The equations of a fit, to which rows are added in turn.
class Equations {
 public:
  Equations(const TransformedFit& transformedFit, std::size_t coefficientCount)
      : fit(transformedFit), count(coefficientCount) {}

  void Add(const NumberPiece& piece) {
    for (std::size_t i = 0; i < piece.x.size(); ++i) {
      Add(piece.counts[i], piece.x[i], piece.y[i]);
    }
  }

  NormalEquations Result() const {
    NormalEquations equations;
    equations.right = right;
    for (std::size_t r = 0; r < kMostCoefficients; ++r) {
      for (std::size_t c = 0; c < kMostCoefficients; ++c) equations.matrix[r][c] = powers[r + c];
    }
    return equations;
  }

 private:
  double Basis(double x) const { return fit.logarithmOfX ? std::log(x) : x; }
  double Target(double y) const { return fit.logarithmOfY ? std::log(y) : y; }

  void Add(double weight, double x, double y) {
    const double t = Basis(x);
    std::array<double, 2 * kMostCoefficients - 1> powersOfT;
    for (std::size_t p = 0; p < 2 * count - 1; ++p) {
      powersOfT[p] = Power(t, p);
      powers[p] += weight * powersOfT[p];
    }
    const double weightedTarget = weight * Target(y);
    // Most rows count once, which saves a logarithm and powers.
    const bool once = weight == 1.0;
    const double weightedT = once ? t : Basis(weight * x);
    for (std::size_t r = 0; r < count; ++r) {
      right[r] += weightedTarget * (once ? powersOfT[r] : Power(weightedT, r));
    }
  }

  const TransformedFit& fit;
  const std::size_t count;
  /// Elements of the matrix with the same sum of indices are the same sum of powers.
  std::array<double, 2 * kMostCoefficients - 1> powers{};
  std::array<double, kMostCoefficients> right{};
};

/// Sums of the products of the deviations from the means.
struct Deviations {
  double xx;
  double yy;
  double xy;
};
Deviations DeviationsOf(const ListSums& sums, double n) {
  return {sums.x.squares - std::pow(sums.x.values, 2.0) / n,
          sums.y.squares - std::pow(sums.y.values, 2.0) / n,
          sums.products - (sums.y.values * sums.x.values) / n};
}

}  // namespace

Coefficients FitLine(const DataList& list) {
  const ListSums& sums = list.Sums();
  const double n = list.Total();
  const Deviations deviations = DeviationsOf(sums, n);
  const double a = deviations.xy / deviations.xx;
  return {a, sums.y.values / n - a * (sums.x.values / n), 0.0};
}

double CorrelationOf(const DataList& list) {
  const Deviations deviations = DeviationsOf(list.Sums(), list.Total());
  return deviations.xy / std::pow(deviations.yy * deviations.xx, 0.5);
}

std::optional<Coefficients> FitCurve(const DataList& list, RegressionModel model, std::size_t count,
                                     const ProgressWatcher& watcher) {
  const RegressionCurve* const curve = FindCurve(model);
  if (!curve || !curve->fit) return Coefficients{kNoNumber, kNoNumber, kNoNumber};
  Equations equations(*curve->fit, count);
  const auto add = [&](const NumberPiece& piece) { equations.Add(piece); };
  if (!list.VisitNumbers(add, watcher)) return std::nullopt;
  return curve->fit->takeBack(Solve(equations.Result(), count));
}

}  // namespace vexa
