#include "stats/SummaryStatistics.h"

#include <cmath>

namespace vexa {
namespace {

void AddTo(ColumnSums& sums, double count, double value) {
  sums.values += count * value;
  sums.squares += (value * value) * count;
}

double Deviation(const DataList& list, std::size_t column, double divisor) {
  const ColumnSums sums = SumColumn(list, column);
  const double n = list.Total();
  const double mean = sums.values / n;
  const double deviation = sums.squares - (n * mean) * mean;
  // A power, not a square root: below zero, from rounding, both are no number.
  return std::pow(deviation / divisor, 0.5);
}

}  // namespace

ColumnSums SumColumn(const DataList& list, std::size_t column) {
  ColumnSums sums;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    AddTo(sums, list.Count(row), list.Value(row, column));
  }
  return sums;
}

double Sum(const DataList& list, std::size_t column) {
  return SumColumn(list, column).values;
}

double SumOfSquares(const DataList& list, std::size_t column) {
  return SumColumn(list, column).squares;
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

PairSums SumPairs(const DataList& list) {
  PairSums sums;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    const double count = list.Count(row);
    const double x = list.Value(row, 0);
    const double y = list.Value(row, 1);
    AddTo(sums.x, count, x);
    AddTo(sums.y, count, y);
    sums.products += (count * x) * y;
  }
  return sums;
}

double SumOfProducts(const DataList& list) {
  return SumPairs(list).products;
}

}  // namespace vexa
