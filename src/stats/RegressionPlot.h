#pragma once

#include <optional>
#include <string>

#include "plotter/GraphData.h"
#include "stats/Regression.h"

namespace vexa {

/// The text of a fitted curve, its coefficients written as the list's cells are, with `precision`.
/// A coefficient that cannot be shown leaves the overflow sentence in `lastError`. Empty for a
/// model outside the enum.
std::wstring CurveText(RegressionModel model, const Coefficients& coefficients, int precision,
                       std::wstring& lastError);

/// Prepares the graph of the current model: the curve, and a point for every row, however often it
/// counts, over the rows' extent and 30% more on each side. Returns the message that refuses it
/// (empty: success). `lastError` becomes the reason, without the curve that an error of the
/// expression engine is reported with; empty after a success. None: `watcher` stopped it, and
/// `lastError` and `graph` are as they were.
std::optional<std::wstring> PrepareRegressionPlot(const DataList& list, Regression& regression,
                                                  int precision, const ProgressWatcher& watcher,
                                                  std::wstring& lastError, GraphData& graph);

}  // namespace vexa
