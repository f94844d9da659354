#pragma once

#include "stats/DataList.h"

namespace vexa {

/// What the statistics of a column are made of, each row weighted by its count. The sums run from
/// the first row to the last, so that they are the same to the last bit every time.
struct ColumnSums {
  double values = 0.0;   ///< of count * value
  double squares = 0.0;  ///< of (value * value) * count
};
ColumnSums SumColumn(const DataList& list, std::size_t column);

// Nothing is checked: what a division by zero or an overflow leaves is the result.

double Sum(const DataList& list, std::size_t column);
double SumOfSquares(const DataList& list, std::size_t column);
/// The sum divided by the list's total.
double Mean(const DataList& list, std::size_t column);
/// The standard deviation with the divisor n - 1, in one pass over the data. The method loses the
/// digits that all values have in common; meant, and told to users.
double SampleDeviation(const DataList& list, std::size_t column);
/// The same with the divisor n.
double PopulationDeviation(const DataList& list, std::size_t column);

/// What the linear regression of a list with two columns of values is made of.
struct PairSums {
  ColumnSums x;
  ColumnSums y;
  double products = 0.0;  ///< of (count * x) * y
};
PairSums SumPairs(const DataList& list);
double SumOfProducts(const DataList& list);

}  // namespace vexa
