#include "stats/RegressionPlot.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "display/FormatResult.h"
#include "plotter/GraphFunction.h"

namespace vexa {
namespace {

constexpr double kMargin = 0.3;

/// A curve's text: what stands behind A and behind B, and whether C ends it.
struct CurvePattern {
  RegressionModel model;
  std::wstring_view afterA;
  std::wstring_view afterB;
  bool hasC;
};
constexpr CurvePattern kCurvePatterns[] = {
    {RegressionModel::Linear, L"*X+", L"", false},
    {RegressionModel::Power, L"*X^", L"", false},
    {RegressionModel::Inverse, L"/X+", L"", false},
    {RegressionModel::Logarithmic, L"*ln(X)+", L"", false},
    {RegressionModel::Exponential, L"*exp(", L"*X)", false},
    {RegressionModel::Quadratic, L"*X^2+", L"*X+", true},
};

struct Extent {
  double min;
  double max;
};

Extent ExtentOf(const std::vector<DataPoint>& points, double DataPoint::*coordinate) {
  if (points.empty()) return {0.0, 0.0};
  Extent extent{points.front().*coordinate, points.front().*coordinate};
  for (const DataPoint& point : points) {
    if (point.*coordinate < extent.min) extent.min = point.*coordinate;
    if (point.*coordinate > extent.max) extent.max = point.*coordinate;
  }
  return extent;
}

Extent WithMargins(const Extent& extent) {
  const double margin = (extent.max - extent.min) * kMargin;
  return {extent.min - margin, margin + extent.max};
}

std::vector<DataPoint> PointsOf(const DataList& list) {
  std::vector<DataPoint> points(list.RowCount());
  for (std::size_t row = 0; row < points.size(); ++row) {
    points[row] = {list.Value(row, 0), list.Value(row, 1)};
  }
  return points;
}

}  // namespace

std::wstring CurveText(RegressionModel model, const Coefficients& coefficients, int precision,
                       std::wstring& lastError) {
  const auto pattern = std::ranges::find(kCurvePatterns, model, &CurvePattern::model);
  if (pattern == std::ranges::end(kCurvePatterns)) return {};
  const auto text = [&](double coefficient) {
    return FormatResult(coefficient, DisplayType::FloatingPoint, precision, BaseType::Dec,
                        lastError);
  };
  std::wstring curve = text(coefficients.a);
  curve += pattern->afterA;
  curve += text(coefficients.b);
  curve += pattern->afterB;
  if (pattern->hasC) curve += text(coefficients.c);
  return curve;
}

std::wstring PrepareRegressionPlot(const DataList& list, Regression& regression, int precision,
                                   std::wstring& lastError, GraphData& graph) {
  graph = {.options = {.grid = false, .line = true, .coordinates = false}};
  graph.dataPoints = PointsOf(list);
  const Extent x = ExtentOf(graph.dataPoints, &DataPoint::x);
  const Extent y = ExtentOf(graph.dataPoints, &DataPoint::y);
  lastError.clear();
  const std::wstring curve =
      CurveText(regression.Model(), regression.Fitted(), precision, lastError);
  // An empty range is the better reason: the coefficients are no numbers because of it.
  if (y.min == y.max) lastError = kYRangeOrder;
  if (x.min == x.max) lastError = kXRangeOrder;
  if (!lastError.empty()) return lastError;

  GraphFunction function;
  lastError = ParseGraphFunction(0, curve, function);
  if (!lastError.empty()) return FunctionRefusal(curve, lastError);
  graph.functions = {std::move(function)};
  const Extent shownX = WithMargins(x);
  const Extent shownY = WithMargins(y);
  graph.ranges = {shownX.min, shownX.max, shownY.min, shownY.max};
  return {};
}

}  // namespace vexa
