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

/// A key that computes a number.
struct ResultKey {
  std::wstring_view caption;
  double (*compute)(const ResultSource&);
  bool isRegression = false;
  /// Needs the X and Y edit.
  bool isPrediction = false;
};

/// The key with this caption; null when it computes nothing.
const ResultKey* FindResultKey(std::wstring_view caption);

}  // namespace vexa
