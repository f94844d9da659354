#include "stats/RegressionPlot.h"

#include <utility>
#include <vector>

#include "display/FormatResult.h"
#include "plotter/GraphFunction.h"

namespace vexa {
namespace {

constexpr double kMargin = 0.3;

struct Extent {
  double min = 0.0;
  double max = 0.0;

  /// The first value is the extent, then others widen it.
  void Take(double value, bool isFirst) {
    if (isFirst || value < min) min = value;
    if (isFirst || value > max) max = value;
  }
};

/// The points of the rows, and how far they reach; without rows as far as 0.
struct Points {
  std::vector<DataPoint> points;
  Extent x;
  Extent y;

  void Add(const NumberPiece& piece) {
    for (std::size_t i = 0; i < piece.x.size(); ++i) {
      x.Take(piece.x[i], points.empty());
      y.Take(piece.y[i], points.empty());
      points.push_back({piece.x[i], piece.y[i]});
    }
  }
};

/// The share of the work at which the curve is fitted.
constexpr double kFitted = 0.8;

Extent WithMargins(const Extent& extent) {
  const double margin = (extent.max - extent.min) * kMargin;
  return {extent.min - margin, margin + extent.max};
}

}  // namespace

std::wstring CurveText(RegressionModel model, const Coefficients& coefficients, int precision,
                       std::wstring& lastError) {
  const RegressionCurve* const found = FindCurve(model);
  if (!found) return {};
  const CurvePattern& pattern = found->pattern;
  const auto text = [&](double coefficient) {
    return FormatResult(coefficient, DisplayType::FloatingPoint, precision, BaseType::Dec,
                        lastError);
  };
  std::wstring curve = text(coefficients.a);
  curve += pattern.afterA;
  curve += text(coefficients.b);
  curve += pattern.afterB;
  if (pattern.hasC) curve += text(coefficients.c);
  return curve;
}

std::optional<std::wstring> PrepareRegressionPlot(const DataList& list, Regression& regression,
                                                  int precision, const ProgressWatcher& watcher,
                                                  std::wstring& lastError, GraphData& graph) {
  if (!regression.Fit(PartOf(watcher, 0.0, kFitted))) return std::nullopt;
  Points data;
  data.points.reserve(list.RowCount());
  const auto add = [&](const NumberPiece& piece) { data.Add(piece); };
  if (!list.VisitNumbers(add, PartOf(watcher, kFitted, 1.0))) return std::nullopt;

  graph = {.options = {.grid = false, .line = true, .coordinates = false}};
  lastError.clear();
  const std::wstring curve =
      CurveText(regression.Model(), regression.Fitted(), precision, lastError);
  // An empty range is the better reason: the coefficients are no numbers because of it.
  if (data.y.min == data.y.max) lastError = kYRangeOrder;
  if (data.x.min == data.x.max) lastError = kXRangeOrder;
  if (!lastError.empty()) return lastError;

  GraphFunction function;
  lastError = ParseGraphFunction(0, curve, function);
  if (!lastError.empty()) return FunctionRefusal(curve, lastError);
  graph.functions = {std::move(function)};
  graph.dataPoints = std::move(data.points);
  const Extent shownX = WithMargins(data.x);
  const Extent shownY = WithMargins(data.y);
  graph.ranges = {shownX.min, shownX.max, shownY.min, shownY.max};
  return std::wstring();
}

}  // namespace vexa
