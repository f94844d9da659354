#pragma once

#include <string_view>

#include "stats/DataList.h"
#include "stats/Regression.h"

namespace vexa {

/// What a result is computed from: the rows, the fit, and for predictions what X and Y edit hold.
struct ResultSource {
  const DataList& list;
  Regression& regression;
  double x = 0.0;
  double y = 0.0;
};

/// What a result is made of, beside the rows.
enum class ResultBasis {
  Sums,
  Correlation,  ///< of the linear model, whatever the model; without a model there is none
  Fit,
  Prediction,  ///< the fit, and what X and Y edit hold
};

constexpr bool IsFitted(ResultBasis basis) {
  return basis == ResultBasis::Fit || basis == ResultBasis::Prediction;
}

/// Why a result may be less than it seems.
enum class ResultDoubt {
  None,
  /// A deviation of values that have nearly all digits in common: see DeviationLosesDigits.
  DigitsLost,
  /// A fit that weighs counts by half: see Regression::HalvesCounts.
  CountsHalved,
};

/// A key that computes a number.
struct ResultKey {
  std::wstring_view caption;
  double (*compute)(const ResultSource&);
  ResultBasis basis = ResultBasis::Sums;
  /// Of a deviation: whether it lost its digits.
  bool (*losesDigits)(const ResultSource&) = nullptr;
};

/// The key with this caption; null when it computes nothing.
const ResultKey* FindResultKey(std::wstring_view caption);

/// Does what takes long of the key's computation, which is immediate afterwards. False: `watcher`
/// stopped it.
bool Prepare(const ResultKey& key, const ResultSource& source, const ProgressWatcher& watcher);

/// Whether the key's result is less than it seems.
ResultDoubt DoubtOf(const ResultKey& key, const ResultSource& source);

}  // namespace vexa
