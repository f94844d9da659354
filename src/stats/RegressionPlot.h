#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/CalcModes.h"
#include "engine/Token.h"
#include "stats/Regression.h"

namespace vexa {

/// A row as the plot shows it, however often it counts.
struct DataPoint {
  double x;
  double y;
};

/// What the graph of a fitted curve is drawn from.
struct RegressionPlot {
  std::wstring label;  ///< "R:F1(X)=" and the curve's text
  std::array<Token, kTokenRecords> tokens{};
  int tokenCount = 0;
  AngleType angleMode = AngleType::Degrees;
  double xMin = 0.0, xMax = 0.0, yMin = 0.0, yMax = 0.0;
  bool grid = false;
  bool line = true;
  bool coordinates = false;
  std::vector<DataPoint> points;
};

/// The text of a fitted curve, its coefficients written as the list's cells are, with `precision`.
/// A coefficient that cannot be shown leaves the overflow sentence in `lastError`. Empty for a
/// model outside the enum.
std::wstring CurveText(RegressionModel model, const Coefficients& coefficients, int precision,
                       std::wstring& lastError);

/// A curve as a message shows it: a long one is cut.
std::wstring ShortCurve(const std::wstring& curve);

/// Prepares the plot of the current model over the rows' extent and 30% more on each side. Returns
/// the message that refuses it (empty: success). `lastError` becomes the reason without the curve
/// that an error of the expression engine is reported with; empty after a success.
std::wstring PrepareRegressionPlot(const DataList& list, Regression& regression, int precision,
                                   std::wstring& lastError, RegressionPlot& plot);

}  // namespace vexa
