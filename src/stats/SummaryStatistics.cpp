#include "stats/SummaryStatistics.h"

#include <cmath>

namespace vexa {
namespace {

/// Of this share of the squares' sum rounding leaves about four digits.
constexpr double kSafeShare = 1e-12;

const ColumnSums& SumsOf(const DataList& list, std::size_t column) {
  return column == 0 ? list.Sums().x : list.Sums().y;
}

/// The sum of the squared deviations from the mean.
double SquaredDeviations(const ColumnSums& sums, double n) {
  const double mean = sums.values / n;
  return sums.squares - (n * mean) * mean;
}

double Deviation(const DataList& list, std::size_t column, double divisor) {
  // A power, not a square root: below zero, from rounding, both are no number.
  return std::pow(SquaredDeviations(SumsOf(list, column), list.Total()) / divisor, 0.5);
}

}  // namespace

double Sum(const DataList& list, std::size_t column) {
  return SumsOf(list, column).values;
}

double SumOfSquares(const DataList& list, std::size_t column) {
  return SumsOf(list, column).squares;
}

double Mean(const DataList& list, std::size_t column) {
  return Sum(list, column) / list.Total();
}

double SampleDeviation(const DataList& list, std::size_t column) {
  return Deviation(list, column, static_cast<double>(list.Total()) - 1.0);
}

double PopulationDeviation(const DataList& list, std::size_t column) {
  return Deviation(list, column, list.Total());
}

double SumOfProducts(const DataList& list) {
  return list.Sums().products;
}

bool DeviationLosesDigits(const DataList& list, std::size_t column) {
  const ColumnSums& sums = SumsOf(list, column);
  const double squares = SquaredDeviations(sums, list.Total());
  // Equal values that leave nothing are right.
  if (squares == 0.0 && !(sums.least < sums.greatest)) return false;
  return std::abs(squares) <= std::abs(sums.squares) * kSafeShare;
}

}  // namespace vexa
