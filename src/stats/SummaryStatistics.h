#pragma once

#include "stats/DataList.h"

namespace vexa {

// All are made of the list's sums, which are added up at the first request; see DataList::AddUp for
// a list with so many rows that it takes long.

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

/// The sum of the products of X and Y, of a list with two columns of values.
double SumOfProducts(const DataList& list);

/// Whether the deviations of a column have lost nearly all digits, for the values have most of
/// theirs in common: fewer than four of them can be relied on.
bool DeviationLosesDigits(const DataList& list, std::size_t column);

}  // namespace vexa
