#include "stats/RegressionPlot.h"

#include <algorithm>

#include "display/FormatResult.h"
#include "engine/ExprParser.h"

namespace vexa {
namespace {

constexpr std::wstring_view kXRangeEmpty =
    L"The maximum value of X should be bigger than the minimum value of X.";
constexpr std::wstring_view kYRangeEmpty =
    L"The maximum value of Y should be bigger than the minimum value of Y.";

constexpr std::wstring_view kLabelStart = L"R:F1(X)=";
constexpr double kMargin = 0.3;

/// A curve in a message: longer ones are cut.
constexpr std::size_t kLongestShown = 7;
constexpr std::size_t kShownOfLonger = 5;

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

std::wstring ShortCurve(const std::wstring& curve) {
  return curve.size() > kLongestShown ? curve.substr(0, kShownOfLonger) + L"..." : curve;
}

std::wstring PrepareRegressionPlot(const DataList& list, Regression& regression, int precision,
                                   std::wstring& lastError, RegressionPlot& plot) {
  plot = RegressionPlot();
  plot.points = PointsOf(list);
  const Extent x = ExtentOf(plot.points, &DataPoint::x);
  const Extent y = ExtentOf(plot.points, &DataPoint::y);
  lastError.clear();
  const std::wstring curve =
      CurveText(regression.Model(), regression.Fitted(), precision, lastError);
  // An empty range is the better reason: the coefficients are no numbers because of it.
  if (y.min == y.max) lastError = kYRangeEmpty;
  if (x.min == x.max) lastError = kXRangeEmpty;
  if (!lastError.empty()) return lastError;

  ExprParser parser;
  parser.Validate(curve);
  if (!parser.errorText.empty()) {
    lastError = parser.errorText;
    return ShortCurve(curve) + L" : " + lastError;
  }
  plot.label = std::wstring(kLabelStart) + curve;
  plot.tokens = parser.tokens;
  plot.tokenCount = parser.tokenCount;
  const Extent shownX = WithMargins(x);
  const Extent shownY = WithMargins(y);
  plot.xMin = shownX.min;
  plot.xMax = shownX.max;
  plot.yMin = shownY.min;
  plot.yMax = shownY.max;
  return {};
}

}  // namespace vexa
