#include "plotter/SampleGraph.h"

#include <algorithm>
#include <bitset>
#include <cmath>

#include "plotter/GraphMapping.h"

namespace vexa {
namespace {

using namespace plot_area;

constexpr int kMiddleRow = kTop + kHeight / 2;
/// Rows beyond an edge that make no difference any more.
constexpr double kFarthest = 1e5;

/// Samples one function after the other.
class Sampler {
 public:
  Sampler(AngleType angleType, const PlotRanges& shown) : angle(angleType), ranges(shown) {
    for (std::size_t i = 0; i < kSampleCount; ++i) xs[i] = SampleX(i, ranges.xMin, ranges.xMax);
  }

  /// Fills `samples`, which are empty.
  void Sample(const GraphFunction& function, SampledCurve& samples) {
    function.program.Evaluate(xs, angle, outcome);
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      rows[i] = graph_mapping::ExactRow(outcome.values[i], ranges);
    }
    bool previousFailed = false;
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      const bool failed = outcome.errors[i] != nullptr;
      if (!failed) Place(samples, i, previousFailed);
      previousFailed = failed;
    }
  }

 private:
  /// Stores the point of sample `i` and the edge points.
  void Place(SampledCurve& curve, std::size_t i, bool previousFailed) {
    const double row = rows[i];
    if (row >= kTop && row < kBottom + 1) {
      curve[i] = PointAt(i, row);
      if (i > 0 && curve[i - 1].IsEmpty() && !previousFailed) StoreEntry(curve, i);
      previousInside = true;
      return;
    }
    if (i > 0 && !curve[i - 1].IsEmpty() && previousInside) StoreExit(curve, i);
    previousInside = false;
  }

  /// The curve comes back into the area at `i`: it starts at the edge, one column before. A curve
  /// that comes in on the middle row has no such point.
  void StoreEntry(SampledCurve& curve, std::size_t i) const {
    if (curve[i].pixel.y < kMiddleRow) curve[i - 1] = EdgePoint(i - 1, kTop);
    if (curve[i].pixel.y > kMiddleRow) curve[i - 1] = EdgePoint(i - 1, kBottom);
  }

  /// The curve leaves the area at `i`: it ends at the edge. A row that is no number has none.
  void StoreExit(SampledCurve& curve, std::size_t i) const {
    if (rows[i] < kTop) curve[i] = EdgePoint(i, kTop);
    if (rows[i] >= kBottom + 1) curve[i] = EdgePoint(i, kBottom);
  }

  /// The point of sample `i`, which lies outside, on an edge. A curve that jumped over the whole
  /// area comes from the edge itself.
  CurvePoint EdgePoint(std::size_t i, int edge) const {
    CurvePoint point = PointAt(i, edge);
    const double beyond = rows[i] - edge;
    const bool isOnThisSide = edge == kTop ? beyond < 0 : beyond > 0;
    if (isOnThisSide) point.beyond = std::clamp(beyond, -kFarthest, kFarthest);
    return point;
  }

  static CurvePoint PointAt(std::size_t i, double exactRow) {
    return {{kLeft + static_cast<int>(i), static_cast<int>(exactRow)}, exactRow};
  }

  AngleType angle;
  PlotRanges ranges;
  std::array<double, kSampleCount> xs;
  FormulaValues outcome;
  std::array<double, kSampleCount> rows;
  bool previousInside = false;
};

/// The pixels of the points that lie in the plot area, in order, each once.
std::vector<PixelPoint> DataPixels(const std::vector<DataPoint>& points, const PlotRanges& ranges) {
  if (points.empty()) return {};
  std::bitset<(kWidth + 1) * (kHeight + 1)> taken;
  std::vector<PixelPoint> pixels;
  for (const DataPoint& point : points) {
    const std::optional<PixelPoint> pixel = graph_mapping::DataPixel(point, ranges);
    if (!pixel) continue;
    const auto place =
        static_cast<std::size_t>((pixel->y - kTop) * (kWidth + 1) + pixel->x - kLeft);
    if (taken[place]) continue;
    taken.set(place);
    pixels.push_back(*pixel);
  }
  return pixels;
}

}  // namespace

SampledGraph SampleGraph(const GraphData& data, const PlotRanges& ranges) {
  SampledGraph graph;
  Sampler sampler(data.angleType, ranges);
  graph.curves.resize(data.functions.size());
  for (std::size_t i = 0; i < graph.curves.size(); ++i) {
    sampler.Sample(data.functions[i], graph.curves[i]);
  }
  graph.axisRow = graph_mapping::AxisRow(ranges);
  graph.axisColumn = graph_mapping::AxisColumn(ranges);
  graph.dataPixels = DataPixels(data.dataPoints, ranges);
  return graph;
}

}  // namespace vexa
